#include "desktop/design/frm_d_list.h"

#include "desktop/design/frm_srs.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/program/print_page.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QScreen>

#include <array>

namespace veln {

namespace {

/// The listing's height by size, on a screen of this height: the longest listing fits the full one.
int HeightOf(DesignSize size, const QFontMetrics& metrics, int screen)
{
  constexpr int Lines = 37;
  constexpr std::array<int, 3> Percent = {65, 80, 100};
  constexpr int Whole = 100;
  const int full = qMin(metrics.lineSpacing() * Lines, screen * 3 / 4);
  return full * Percent.at(static_cast<std::size_t>(size)) / Whole;
}

/// White paper with black text on any desktop.
void MakePaper(QWidget& widget)
{
  QPalette paper = widget.palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Window, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  widget.setPalette(paper);
}

}  // namespace

frmDList::frmDList(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Design Level Information", "", {}, program.Find<frmSRS>(), QPoint(1500, -350)})
{
  const auto* design = program.Find<frmSRS>();
  const SrsForm none;
  const SrsForm& form = design != nullptr ? design->Form() : none;
  QStringList lines = ToQt(ListDLevels(form.Listing(program.State))).split("\r\n");
  lines.removeLast();  // behind the last line end
  auto* listing = new QPlainTextEdit(lines.join('\n'), this);
  listing->setObjectName("listing");
  listing->setAccessibleName("Design levels");
  listing->setReadOnly(true);
  listing->setLineWrapMode(QPlainTextEdit::NoWrap);
  listing->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  MakePaper(*listing);
  constexpr int WidestLine = 48;  // characters
  const QFontMetrics metrics(listing->font());
  listing->setMinimumSize(metrics.averageCharWidth() * WidestLine,
                          HeightOf(form.Size, metrics, screen()->availableSize().height()));
  QLayout* whole = Tight(Column({listing}));
  whole->setSizeConstraint(QLayout::SetFixedSize);  // also where the window kept its place
  setLayout(whole);
  SetMenus({
      {"mnuP", nullptr, "&Print"},
      {"mnuPrint", "mnuP", "&Print DL Information",
       [this, lines] { PrintLines(Shared(), this, windowTitle(), lines); }, "Ctrl+P"},
      {"mnuE", nullptr, "&Return"},
      {"mnuDone", "mnuE", "&Return", Leaves()},
  });
}

}  // namespace veln
