#include "desktop/design/frm_parse.h"

#include "design/survey_reduction.h"
#include "desktop/design/frm_srs.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"

#include <QGridLayout>

namespace veln {

frmParse::frmParse(Program& program, QWidget* parent)
    : FormWindow(program, parent,
                 {Name, "Data Parsing / Stratification Details", "hdoc02", {}, nullptr, QPoint(2000, 1500)},
                 LoadParseForm(program.State))
{
  constexpr int Columns = 3;
  QLabel* told =
      MakeText(this, "Label1",
               "Based on your EM survey data file sample size, VELN has determined that your survey "
               "can be parsed into ");
  QLabel* count = MakeValueLabel(this, "Label2", "");
  ShowValue(*count, ToQt(form_.Label2()));
  auto* grid = new QGridLayout;
  for (int stratum = 1; stratum <= MostStrata; ++stratum) {
    QRadioButton* option = MakeOption(this, ("Option" + std::to_string(stratum)).c_str(),
                                      QString("Strata #&%1").arg(stratum), "", Does(ChooseStratum, stratum));
    options_.push_back(option);
    grid->addWidget(option, (stratum - 1) / Columns, (stratum - 1) % Columns);
  }
  SetColumn(*this,
            {Column({told, count}, SmallGap / 2),
             Frame(this, "Frame1", "Please Select the Strata that you want VELN to use: ", grid),
             ButtonRow({HelpButton("Command3"),
                        MakeButton(this, "Command2", "&Cancel",
                                   " exit without initializing the parsing algorithm ", Leaves()),
                        MakeButton(this, "Command1", "&Invoke Parsing",
                                   " initialize the parsing algorithm using the currently selected strata # ",
                                   [this] { Invoke(); })})});
  Mirror();
}

void frmParse::Invoke()
{
  if (auto* design = Shared().Find<frmSRS>(); design != nullptr) {
    design->Act([this](SrsForm& srs) { InvokeParsing(form_, srs, Shared().Ask()); });
  }
  Unload();
}

void frmParse::WayOut()
{
  if (auto* design = Shared().Find<frmSRS>(); design != nullptr) {
    design->Act([](SrsForm& srs) { CancelParsing(srs); });
  }
  Unload();
}

void frmParse::Mirror()
{
  for (std::size_t i = 0; i < options_.size(); ++i) {
    const int stratum = static_cast<int>(i) + 1;
    ShowChoice(*options_[i], stratum == form_.StrataChoice + 1, form_.OptionEnabled(stratum));
  }
}

}  // namespace veln
