#include "desktop/graphics/frm_pct.h"

#include "desktop/design/frm_srs.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"

namespace veln {

namespace {

/// What the options do, from the top.
constexpr std::array<TranslationKind, 4> Kinds = {TranslationKind::Swap, TranslationKind::Rotate,
                                                  TranslationKind::ReverseX, TranslationKind::ReverseY};

}  // namespace

frmPCT::frmPCT(Program& program, QWidget* parent)
    : FormWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                 {Name, "Coordinate Translation Options", "hdoc07", {}, program.Find<frmSvyGraph>()}, {})
{
  const auto makeKind = [this](const char* name, const QString& caption, const QString& toolTip,
                               TranslationKind kind) {
    return MakeOption(this, name, caption, toolTip, [this, kind] {
      form_.Selected = kind;
      Mirror();
    });
  };
  options_[0] = makeKind("Option1", "&Swap x and y coordinates", " set x= y and y = x ", Kinds[0]);
  options_[1] =
      makeKind("Option2", "&Rotate axis", " rotate (x,y) axis from -180 to (+/-)180 degrees", Kinds[1]);
  QLayout* rotation = MakeRotation();
  options_[2] = makeKind("Option3", "Reverse &x axis", " set x = -x ", Kinds[2]);
  options_[3] = makeKind("Option4", "Reverse &y axis", " set y = -y ", Kinds[3]);
  QPushButton* help = HelpButton("CHelp");
  QPushButton* cancel =
      MakeButton(this, "Command1", "&Cancel", " exit without changing coordinates ", Leaves());
  apply_ = MakeButton(this, "Command2", "&Apply Translation",
                      " apply translation and calculate new coordinates ", [this] { Apply(); });
  KeepRoom(*apply_);
  SetColumn(*this,
            {options_[0], options_[1], rotation, options_[2], options_[3], LayoutItem::Gap(SmallGap),
             LayoutItem::Rest(), ButtonRow({help, cancel, apply_})},
            SmallGap);
  Mirror();
}

QLayout* frmPCT::MakeRotation()
{
  constexpr int HalfTurn = 180;
  constexpr BarSteps Steps{-HalfTurn, HalfTurn, 15};
  constexpr int Digits = 5;
  const QString toolTip = " please use horizontal scroll bar to set / change degree of rotation ";
  degreesBar_ = MakeBar(this, "HScroll1", Steps, Takes(MoveRotation));
  degreesBar_->setMinimumWidth(HalfTurn);
  degreesText_ = MakeShownNumber(this, "Text1", toolTip, Digits);
  degreesText_->setAccessibleName("Degrees");
  degreesCaption_ = MakeFieldLabel(this, "Label1", "&Degrees:", degreesBar_);
  degreesCaption_->setToolTip(toolTip);
  for (QWidget* widget : std::initializer_list<QWidget*>{degreesBar_, degreesCaption_, degreesText_}) {
    KeepRoom(*widget);
  }
  return Row({LayoutItem::Gap(2 * LargeGap), {degreesBar_, 1}, degreesCaption_, degreesText_});
}

void frmPCT::Apply()
{
  Program& program = Shared();
  auto* window = program.Find<frmSvyGraph>();
  if (window == nullptr) {
    Unload();
    return;
  }
  const auto* design = program.Find<frmSRS>();
  window->Act(
      [&](SurveyGraph& graph) {
        ApplyTranslation(form_, graph, State(), design != nullptr && design->Form().Finished);
      },
      frmSvyGraph::Effect::Replaces);
  if (form_.Closed) {
    Unload();
    window->BringUp();
    program.Changed();
  }
}

void frmPCT::Mirror()
{
  for (std::size_t i = 0; i < options_.size(); ++i) {
    ShowChoice(*options_.at(i), form_.Selected == Kinds.at(i));
  }
  ShowNumber(*degreesBar_, form_.HScroll1);
  degreesText_->setText(ToQt(form_.Text1()));
  SetShown({degreesBar_, degreesCaption_, degreesText_}, form_.RotationVisible());
  apply_->setVisible(form_.Command2Visible());
}

}  // namespace veln
