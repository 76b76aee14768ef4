#include "desktop/program/print_page.h"

#include "desktop/parts/controls.h"
#include "toolkit/refusal.h"

#include <QPrinter>
#include <QTextDocument>
#include <QWidget>

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

QString HeadHtml(const Program& program, const QString& title)
{
  return "<h2>" + title.toHtmlEscaped() + "</h2><p>Field ID: " + ToQt(program.State.FieldId).toHtmlEscaped() +
         "<br/>" + ToQt(program.Now()()).toHtmlEscaped() + "</p>";
}

QString TableHtml(const TextTable& table)
{
  QString html = "<table cellspacing='0' cellpadding='4' width='100%'><thead>" +
                 HtmlRow(table.Headings, "th") + "</thead><tbody>";
  for (const auto& row : table.Rows) {
    html += HtmlRow(row, "td");
  }
  return html + "</tbody></table>";
}

void PrintHtml(Program& program, QWidget* parent, const QString& html)
{
  PrintOnePage(program, parent, [&html, parent](QPrinter& printer) {
    printer.setResolution(parent->logicalDpiX());  // the document's pixels are those of the screen
    QTextDocument page;
    page.setHtml(html);
    page.print(&printer);
    return true;
  });
}

}  // namespace

bool PrintOnePage(Program& program, QWidget* parent, const std::function<bool(QPrinter& printer)>& paint)
{
  bool sent = false;
  program.Try([&] {
    QPrinter printer(QPrinter::HighResolution);
    if (!program.ChoosePrinter(printer, parent)) {
      return;
    }
    if (!paint(printer) || printer.printerState() == QPrinter::Error) {
      throw Refusal("The page could not be printed.\nThe printer reports an error.");
    }
    sent = true;
  });
  return sent;
}

void PrintTable(Program& program, QWidget* parent, const QString& title, const TextTable& table,
                const QStringList& lines)
{
  QString text;
  for (const QString& line : lines) {
    text += "<p>" + line.toHtmlEscaped() + "</p>";
  }
  PrintHtml(program, parent, HeadHtml(program, title) + text + TableHtml(table));
}

void PrintLines(Program& program, QWidget* parent, const QString& title, const QStringList& lines)
{
  PrintHtml(program, parent,
            HeadHtml(program, title) + "<pre>" + lines.join('\n').toHtmlEscaped() + "</pre>");
}

}  // namespace veln
