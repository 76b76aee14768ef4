#include "desktop/survey/record_preview_table.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"
#include "desktop/parts/text_table.h"
#include "forms/record_preview.h"
#include "toolkit/refusal.h"

#include <QFileInfo>
#include <QHeaderView>

namespace veln {

namespace {

void FillTable(QTableWidget& table, const RecordPreview& preview)
{
  table.setRowCount(static_cast<int>(preview.Records.size()));
  table.setColumnCount(static_cast<int>(preview.Headings.size()));
  for (std::size_t column = 0; column < preview.Headings.size(); ++column) {
    table.setHorizontalHeaderItem(static_cast<int>(column), MakeCell(ToQt(preview.Headings[column])));
  }
  for (std::size_t row = 0; row < preview.Records.size(); ++row) {
    for (std::size_t column = 0; column < preview.Records[row].size(); ++column) {
      table.setItem(static_cast<int>(row), static_cast<int>(column),
                    MakeCell(ToQt(preview.Records[row][column])));
    }
  }
}

/// Enough of an item to know it by; what is no survey file may have items of any length.
QString Shortened(const QString& text)
{
  constexpr int Enough = 20;
  return text.size() <= Enough ? text : text.left(Enough) + QChar(0x2026);
}

QString MarkFault(QTableWidget& table, const RecordPreview& preview, const RecordPreview::Fault& fault)
{
  QTableWidgetItem* item = table.item(static_cast<int>(fault.Record), static_cast<int>(fault.Item));
  const QString reason = "Record " + QString::number(fault.Record + 1) + ", " +
                         ToQt(preview.Headings[fault.Item]) + ": \"" +
                         Shortened(ToQt(preview.Records[fault.Record][fault.Item])) +
                         "\" would be refused: " + ToQt(fault.Reason) + ".";
  QFont bold = item->font();
  bold.setBold(true);
  item->setFont(bold);
  item->setForeground(RoleColour(TextRole::Warning, table.palette()));
  item->setToolTip(reason);
  table.scrollToItem(item);
  return reason;
}

}  // namespace

QTableWidget* MakePreviewTable(QWidget* parent)
{
  constexpr int VisibleRows = 5;
  constexpr int WidestColumn = 240;  // what is no survey file may have items of any length
  auto* table = new QTableWidget(parent);
  table->setObjectName("preview");
  table->setAccessibleName("First records of the file");
  table->setTabKeyNavigation(false);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setMaximumSectionSize(WidestColumn);
  const int rowHeight = table->fontMetrics().lineSpacing() + SmallGap;
  table->verticalHeader()->setDefaultSectionSize(rowHeight);
  table->setMinimumHeight(rowHeight * (VisibleRows + 1) + SmallGap);
  return table;
}

QString FillPreviewTable(QTableWidget& table, const ImportRequest& request)
{
  table.clear();
  table.setRowCount(0);
  table.setColumnCount(0);
  if (request.FileName.empty()) {
    return "Choose a file, or drop it here: its first records will show as they would be read.";
  }
  if (!QFileInfo(ToQt(request.FileName)).isFile()) {
    return "There is no such file.";
  }
  try {
    const RecordPreview preview = PreviewFile(request.FileName, request.Layout, request.Log);
    FillTable(table, preview);
    if (const auto& fault = preview.FirstFault) {
      return MarkFault(table, preview, *fault);
    }
    return preview.Records.empty() ? "The file is empty." : "The first records, as they would be read.";
  } catch (const Refusal& refusal) {
    return ToQt(refusal.Message()).replace('\n', ' ');
  }
}

}  // namespace veln
