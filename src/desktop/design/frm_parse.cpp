#include "desktop/design/frm_parse.h"

#include "desktop/design/frm_srs.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace veln {

frmParse::frmParse(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Data Parsing / Stratification Details", {2000, 1500}, "hdoc02", {}}),
      form_(LoadParseForm(program.State))
{
  constexpr int Columns = 3;
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  auto* told = new QVBoxLayout;
  told->setSpacing(SmallGap / 2);
  told->addWidget(
      MakeText(this, "Label1",
               "Based on your EM survey data file sample size, VELN has determined that your survey can "
               "be parsed into "));
  QLabel* count = MakeValueLabel(this, "Label2", "");
  ShowValue(*count, ToQt(form_.Label2()));
  told->addWidget(count);
  layout->addLayout(told);

  auto* frame = new QGroupBox("Please Select the Strata that you want VELN to use: ", this);
  frame->setObjectName("Frame1");
  auto* grid = new QGridLayout(frame);
  for (int stratum = 1; stratum <= static_cast<int>(Options); ++stratum) {
    const auto index = static_cast<std::size_t>(stratum) - 1;
    auto* option = new QRadioButton(QString("Strata #&%1").arg(stratum), frame);
    option->setObjectName(QString("Option%1").arg(stratum));
    option->setAccessibleName(QString("Strata #%1").arg(stratum));
    option->setEnabled(form_.OptionEnabled(stratum));
    options_.at(index) = option;
    grid->addWidget(option, (stratum - 1) / Columns, (stratum - 1) % Columns);
    connect(option, &QRadioButton::clicked, this, [this, stratum] {
      Shared().Try([&] { ChooseStratum(form_, stratum); });
      Mirror();
    });
  }
  layout->addWidget(frame);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("Command3"));
  buttons->addStretch();
  QPushButton* cancel =
      MakeButton(this, "Command2", "&Cancel", " exit without initializing the parsing algorithm ");
  QPushButton* invoke =
      MakeButton(this, "Command1", "&Invoke Parsing",
                 " initialize the parsing algorithm using the currently selected strata # ");
  invoke->setDefault(true);
  buttons->addWidget(cancel);
  buttons->addWidget(invoke);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { WayOut(); });
  connect(invoke, &QPushButton::clicked, this, [this] {
    Program& shared = Shared();
    if (auto* design = shared.Find<frmSRS>(); design != nullptr) {
      design->Act([&](SrsForm& srs) { veln::InvokeParsing(form_, srs, shared.Ask()); });
    }
    Unload();
  });
  Mirror();
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
    const bool chosen = static_cast<int>(i) == form_.StrataChoice;
    options_.at(i)->setChecked(chosen);
    SetRole(*options_.at(i), chosen ? TextRole::Chosen : TextRole::Normal);
  }
}

}  // namespace veln
