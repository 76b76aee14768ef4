#include "desktop/parts/text_table.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "toolkit/number_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>
#include <optional>

namespace veln {

namespace {

constexpr int GivenRow = Qt::UserRole;  // of a cell: the row of the table given that it stands in

/// A cell that sorts by its number.
class NumberCell : public QTableWidgetItem {
 public:
  NumberCell(const std::string& text, int row) : QTableWidgetItem(ToQt(text)), number_(ParseNumber(text))
  {
    setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    setData(GivenRow, row);
  }

  bool operator<(const QTableWidgetItem& other) const override
  {
    const auto& theirs = dynamic_cast<const NumberCell&>(other).number_;
    return number_ && theirs ? *number_ < *theirs : QTableWidgetItem::operator<(other);
  }

 private:
  std::optional<double> number_;
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

}  // namespace

TextTableView::TextTableView(QWidget* parent, const char* name, const QString& accessibleName,
                             const TextTable& table)
    : QTableWidget(parent)
{
  setObjectName(name);
  setAccessibleName(accessibleName);
  setItemDelegate(new DecimalAligner(this));  // columns get the width of its texts
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + SmallGap);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setTabKeyNavigation(false);
  setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  Show(table);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
}

void TextTableView::Show(const TextTable& table)
{
  table_ = table;
  const bool sorted = isSortingEnabled();
  setSortingEnabled(false);  // or cells would move while they are filled in
  clear();
  setColumnCount(static_cast<int>(table.Headings.size()));
  setRowCount(static_cast<int>(table.Rows.size()));
  for (int column = 0; column < columnCount(); ++column) {
    const auto cell = static_cast<std::size_t>(column);
    QTableWidgetItem* heading = MakeCell(ToQt(table.Headings[cell]));
    setHorizontalHeaderItem(column, heading);
    int decimals = 0;
    for (int row = 0; row < rowCount(); ++row) {
      auto* item = new NumberCell(table.Rows[static_cast<std::size_t>(row)][cell], row);
      setItem(row, column, item);
      decimals = qMax(decimals, DecimalAligner::Decimals(item->text()));
    }
    heading->setData(Qt::UserRole, decimals);
  }
  resizeColumnsToContents();
  setSortingEnabled(sorted);
}

TextTable TextTableView::Sorted() const
{
  TextTable sorted{table_.Headings, {}};
  for (int row = 0; row < rowCount(); ++row) {
    sorted.Rows.push_back(table_.Rows[RowGiven(row)]);
  }
  return sorted;
}

std::size_t TextTableView::RowGiven(int shownRow) const
{
  return item(shownRow, 0)->data(GivenRow).toUInt();
}

int TextTableView::RowShown(std::size_t givenRow) const
{
  int row = 0;
  while (RowGiven(row) != givenRow) {
    ++row;
  }
  return row;
}

/// Copies rows, not cells, by the key for it.
void TextTableView::keyPressEvent(QKeyEvent* event)
{
  if (!event->matches(QKeySequence::Copy)) {
    QTableWidget::keyPressEvent(event);
    return;
  }
  TextTable copied = Sorted();
  const bool any = selectionModel()->hasSelection();
  for (int row = rowCount() - 1; row >= 0 && any; --row) {
    if (!selectionModel()->isRowSelected(row)) {
      copied.Rows.erase(copied.Rows.begin() + row);
    }
  }
  QGuiApplication::clipboard()->setText(TabSeparated(copied));
}

QTableWidgetItem* MakeCell(const QString& text)
{
  auto* cell = new QTableWidgetItem(text);
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return cell;
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
