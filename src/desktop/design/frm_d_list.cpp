#include "desktop/design/frm_d_list.h"

#include "design/design_levels.h"
#include "desktop/controls.h"
#include "desktop/design/frm_srs.h"
#include "desktop/print_page.h"

#include <QAction>
#include <QFontDatabase>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace veln {

namespace {

QStringList ListLevels(const Program& program)
{
  QStringList lines;
  if (const auto* design = program.Find<frmSRS>()) {
    const LevelListing listing = design->Form().Listing(program.State);
    for (const std::string& line :
         ListDLevels(listing, InitDLevels(listing.Size, design->Form().Settings().DFactor))) {
      lines << ToQt(line);
    }
  }
  return lines;
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
                  {Name, "Design Level Information", {1500, -350}, "", {}, program.Find<frmSRS>()})
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  const QStringList lines = ListLevels(program);
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
                          metrics.lineSpacing() * (static_cast<int>(lines.size()) + 2));
  layout->addWidget(listing);

  auto* bar = new QMenuBar(this);
  QMenu* print = bar->addMenu("&Print");
  print->menuAction()->setObjectName("mnuP");
  QAction* printLevels = print->addAction("&Print DL Information");
  printLevels->setObjectName("mnuPrint");
  printLevels->setShortcut(QKeySequence::Print);
  QMenu* back = bar->addMenu("&Return");
  back->menuAction()->setObjectName("mnuE");
  QAction* done = back->addAction("&Return");
  done->setObjectName("mnuDone");
  layout->setMenuBar(bar);
  connect(printLevels, &QAction::triggered, this,
          [this, lines] { PrintLines(Shared(), this, windowTitle(), lines); });
  connect(done, &QAction::triggered, this, [this] { Unload(); });
}

}  // namespace veln
