#include "desktop/signal/frm_list.h"

#include "desktop/parts/layout.h"
#include "desktop/parts/text_table.h"
#include "desktop/program/print_page.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "forms/outlier_list.h"

namespace veln {

frmList::frmList(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Listing of all Outlier Sites", "", {}, program.Find<frmSigDecorr>()})
{
  auto* grid = new TextTableView(this, "OutGrid", "Outlier sites", ListOutliers(program.State));
  SetColumn(*this, {grid});
  SetMenus({
      {"mnuP", nullptr, "&Print"},
      {"mnuPrint", "mnuP", "Print &List",
       [this, grid] { PrintTable(Shared(), this, windowTitle(), grid->Sorted()); }, "Ctrl+P"},
      {"mnuD", nullptr, "&Return"},
      {"mnuDone", "mnuD", "&Return to Signal Decorrelation Window", Leaves()},
  });
}

}  // namespace veln
