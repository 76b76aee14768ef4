#include "desktop/print_page.h"

#include "desktop/controls.h"
#include "toolkit/refusal.h"

#include <QPrinter>
#include <QTextDocument>

namespace veln {

namespace {

QString HtmlRow(const std::vector<std::string>& cells, const QString& tag)
{
  QString html = "<tr>";
  for (const std::string& cell : cells) {
    html += "<" + tag + " align='right'>" + ToQt(cell).toHtmlEscaped() + "</" + tag + ">";
  }
  return html + "</tr>";
}

QString PageHtml(const Program& program, const QString& title, const TextTable& table)
{
  QString html = "<h2>" + title.toHtmlEscaped() +
                 "</h2><p>Field ID: " + ToQt(program.State.FieldId).toHtmlEscaped() + "<br/>" +
                 ToQt(program.Now()()).toHtmlEscaped() +
                 "</p><table cellspacing='0' cellpadding='4' width='100%'><thead>" +
                 HtmlRow(table.Headings, "th") + "</thead><tbody>";
  for (const auto& row : table.Rows) {
    html += HtmlRow(row, "td");
  }
  return html + "</tbody></table>";
}

}  // namespace

void PrintTable(Program& program, QWidget* parent, const QString& title, const TextTable& table)
{
  program.Try([&] {
    QPrinter printer;
    if (!program.ChoosePrinter(printer, parent)) {
      return;
    }
    QTextDocument page;
    page.setHtml(PageHtml(program, title, table));
    page.print(&printer);
    if (printer.printerState() == QPrinter::Error) {
      throw Refusal("The page could not be printed.\nThe printer reports an error.");
    }
  });
}

}  // namespace veln
