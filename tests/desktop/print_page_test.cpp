// Pages of tables and lines on a printer.
#include "desktop/program/print_page.h"

#include "desktop/desktop_fixture.h"

#include <QPrinter>

namespace veln {
namespace {

using PrintPage = DesktopTest;

TEST_F(PrintPage, GoesToThePrinterAndTellsAFailure)
{
  const TextTable table{{"Site ID", "z1"}, {{"9", "-3.00"}, {"10", "<7.50>"}}};
  std::string target = "list.pdf";
  Shared.ChoosePrinter = [&](QPrinter& printer, QWidget*) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString((Directory / target).string()));
    return true;
  };
  QWidget window;
  PrintTable(Shared, &window, "Outliers", table, {"two of 100"});
  EXPECT_THAT(ReadText(Directory / "list.pdf"), StartsWith("%PDF-"));
  target = "lines.pdf";
  PrintLines(Shared, &window, "Levels", {"1 2", "3 4"});
  EXPECT_THAT(ReadText(Directory / "lines.pdf"), StartsWith("%PDF-"));
  EXPECT_TRUE(Asked.Said.empty());
  target = "nowhere/list.pdf";
  EXPECT_FALSE(PrintOnePage(Shared, &window, [](QPrinter& printer) { return QPainter().begin(&printer); }));
  EXPECT_THAT(Asked.Said, ElementsAre("warn: The page could not be printed.\nThe printer reports an error."));
}

}  // namespace
}  // namespace veln
