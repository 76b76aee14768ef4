#include "desktop/signal/frm_list.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_table.h"
#include "desktop/program/print_page.h"
#include "desktop/signal/frm_sig_decorr.h"

#include <QAction>
#include <QMenuBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace veln {

frmList::frmList(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Listing of all Outlier Sites", {1000, 750}, "", {}, program.Find<frmSigDecorr>()})
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  grid_ = MakeTextTable(this, "OutGrid", ListOutliers(program.State));
  grid_->setAccessibleName("Outlier sites");
  layout->addWidget(grid_);
  MakeMenus();
}

void frmList::MakeMenus()
{
  auto* bar = new QMenuBar(this);
  QMenu* print = bar->addMenu("&Print");
  print->menuAction()->setObjectName("mnuP");
  QAction* printList = print->addAction("Print &List");
  printList->setObjectName("mnuPrint");
  printList->setShortcut(QKeySequence::Print);
  QMenu* back = bar->addMenu("&Return");
  back->menuAction()->setObjectName("mnuD");
  QAction* done = back->addAction("&Return to Signal Decorrelation Window");
  done->setObjectName("mnuDone");
  layout()->setMenuBar(bar);
  connect(printList, &QAction::triggered, this,
          [this] { PrintTable(Shared(), this, windowTitle(), ReadTextTable(*grid_)); });
  connect(done, &QAction::triggered, this, [this] { Unload(); });
}

}  // namespace veln
