#include "desktop/parts/text_table.h"

#include "desktop/parts/controls.h"
#include "toolkit/number_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>

namespace veln {

namespace {

/// A cell that sorts by the number that it shows.
class NumberCell : public QTableWidgetItem {
 public:
  explicit NumberCell(const QString& text) : QTableWidgetItem(text)
  {
    setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
  }

  bool operator<(const QTableWidgetItem& other) const override
  {
    const auto mine = ParseNumber(FromQt(text()));
    const auto theirs = ParseNumber(FromQt(other.text()));
    return mine && theirs ? *mine < *theirs : QTableWidgetItem::operator<(other);
  }
};

/// Draws a number with blanks of a digit's width in place of the decimals that others in its column have
/// more, so that the decimal points stand under each other. The cell's text stays as it is.
class DecimalAligner : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// The characters from the decimal point on.
  static int Decimals(const QString& number)
  {
    const qsizetype point = number.indexOf('.');
    return point < 0 ? 0 : static_cast<int>(number.size() - point);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
  {
    constexpr QChar FigureSpace(0x2007);
    QStyledItemDelegate::initStyleOption(option, index);
    const int most = index.model()->headerData(index.column(), Qt::Horizontal, Qt::UserRole).toInt();
    if (ParseNumber(FromQt(option->text))) {
      option->text += QString(most - Decimals(option->text), FigureSpace);
    }
  }
};

std::vector<std::string> ReadRow(const QTableWidget& widget, int row)
{
  std::vector<std::string> cells;
  cells.reserve(static_cast<std::size_t>(widget.columnCount()));
  for (int column = 0; column < widget.columnCount(); ++column) {
    cells.push_back(FromQt(widget.item(row, column)->text()));
  }
  return cells;
}

void CopyRows(const QTableWidget& widget)
{
  TextTable table = ReadTextTable(widget);
  const QModelIndexList selected = widget.selectionModel()->selectedRows();
  if (!selected.isEmpty()) {
    table.Rows.clear();
    std::vector<int> rows;
    for (const QModelIndex& index : selected) {
      rows.push_back(index.row());
    }
    std::ranges::sort(rows);
    for (const int row : rows) {
      table.Rows.push_back(ReadRow(widget, row));
    }
  }
  QGuiApplication::clipboard()->setText(TabSeparated(table));
}

/// Copies rows, not cells, by the key for it.
class CopyableTable : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override
  {
    if (event->matches(QKeySequence::Copy)) {
      CopyRows(*this);
    } else {
      QTableWidget::keyPressEvent(event);
    }
  }
};

}  // namespace

QTableWidget* MakeTextTable(QWidget* parent, const char* name, const TextTable& table)
{
  auto* widget = new CopyableTable(parent);
  widget->setObjectName(name);
  widget->setItemDelegate(new DecimalAligner(widget));  // columns get the width of its texts
  widget->verticalHeader()->hide();
  widget->verticalHeader()->setDefaultSectionSize(widget->fontMetrics().lineSpacing() + SmallGap);
  widget->setSelectionBehavior(QAbstractItemView::SelectRows);
  widget->setTabKeyNavigation(false);
  widget->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  FillTextTable(*widget, table);
  widget->horizontalHeader()->setStretchLastSection(true);
  widget->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  widget->setSortingEnabled(true);
  return widget;
}

void FillTextTable(QTableWidget& widget, const TextTable& table)
{
  const bool sorted = widget.isSortingEnabled();
  widget.setSortingEnabled(false);  // or cells would move while they are filled in
  widget.clear();
  widget.setColumnCount(static_cast<int>(table.Headings.size()));
  widget.setRowCount(static_cast<int>(table.Rows.size()));
  for (int column = 0; column < widget.columnCount(); ++column) {
    auto* heading = new QTableWidgetItem(ToQt(table.Headings[static_cast<std::size_t>(column)]));
    heading->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    widget.setHorizontalHeaderItem(column, heading);
    int decimals = 0;
    for (int row = 0; row < widget.rowCount(); ++row) {
      const auto& cells = table.Rows[static_cast<std::size_t>(row)];
      const QString text = ToQt(cells[static_cast<std::size_t>(column)]);
      widget.setItem(row, column, new NumberCell(text));
      decimals = qMax(decimals, DecimalAligner::Decimals(text));
    }
    heading->setData(Qt::UserRole, decimals);
  }
  widget.resizeColumnsToContents();
  widget.setSortingEnabled(sorted);
}

TextTable ReadTextTable(const QTableWidget& widget)
{
  TextTable table;
  for (int column = 0; column < widget.columnCount(); ++column) {
    table.Headings.push_back(FromQt(widget.horizontalHeaderItem(column)->text()));
  }
  for (int row = 0; row < widget.rowCount(); ++row) {
    table.Rows.push_back(ReadRow(widget, row));
  }
  return table;
}

QString TabSeparated(const TextTable& table)
{
  const auto join = [](const std::vector<std::string>& cells) {
    QStringList list;
    for (const std::string& cell : cells) {
      list << ToQt(cell);
    }
    return list.join('\t') + '\n';
  };
  QString text = join(table.Headings);
  for (const auto& row : table.Rows) {
    text += join(row);
  }
  return text;
}

}  // namespace veln
