#include "desktop/graphics/frm_pct.h"

#include "desktop/design/frm_srs.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace veln {

namespace {

/// What the options do, from the top.
constexpr std::array<TranslationKind, 4> Kinds = {TranslationKind::Swap, TranslationKind::Rotate,
                                                  TranslationKind::ReverseX, TranslationKind::ReverseY};

}  // namespace

frmPCT::frmPCT(Program& program, QWidget* parent)
    : ChildWindow(
          program, frmSvyGraph::OwnerOfCompanions(program, parent),
          {Name, "Coordinate Translation Options", {1000, 750}, "hdoc07", {}, program.Find<frmSvyGraph>()})
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(SmallGap);
  options_ = {MakeOption(this, "Option1", "&Swap x and y coordinates", " set x= y and y = x "),
              MakeOption(this, "Option2", "&Rotate axis", " rotate (x,y) axis from -180 to (+/-)180 degrees"),
              MakeOption(this, "Option3", "Reverse &x axis", " set x = -x "),
              MakeOption(this, "Option4", "Reverse &y axis", " set y = -y ")};
  for (std::size_t i = 0; i < options_.size(); ++i) {
    layout->addWidget(options_.at(i));
    if (Kinds.at(i) == TranslationKind::Rotate) {
      layout->addLayout(MakeRotation());
    }
    connect(options_.at(i), &QRadioButton::clicked, this, [this, i] {
      form_.Selected = Kinds.at(i);
      Mirror();
    });
  }
  layout->addSpacing(SmallGap);
  layout->addStretch();
  apply_ =
      MakeButton(this, "Command2", "&Apply Translation", " apply translation and calculate new coordinates ");
  apply_->setDefault(true);
  KeepRoom(*apply_);
  QPushButton* cancel = MakeButton(this, "Command1", "&Cancel", " exit without changing coordinates ");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(apply_);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(apply_, &QPushButton::clicked, this, [this] { Apply(); });
  Mirror();
}

QLayout* frmPCT::MakeRotation()
{
  constexpr int HalfTurn = 180;
  constexpr int LargeChange = 15;
  constexpr int Digits = 5;
  degreesBar_ = new QScrollBar(Qt::Horizontal, this);
  degreesBar_->setObjectName("HScroll1");
  degreesBar_->setFocusPolicy(Qt::StrongFocus);
  degreesBar_->setInvertedControls(false);  // to the right is more
  degreesBar_->setMinimumWidth(HalfTurn);
  degreesBar_->setRange(-HalfTurn, HalfTurn);
  degreesBar_->setPageStep(LargeChange);
  degreesText_ = new QLineEdit(this);
  degreesText_->setObjectName("Text1");
  degreesText_->setAccessibleName("Degrees");
  degreesText_->setReadOnly(true);
  degreesText_->setAlignment(Qt::AlignRight);
  degreesText_->setMaximumWidth(fontMetrics().horizontalAdvance('0') * Digits + LargeGap);
  degreesCaption_ = MakeFieldLabel(this, "Label1", "&Degrees:", degreesBar_);
  const QString toolTip = " please use horizontal scroll bar to set / change degree of rotation ";
  degreesCaption_->setToolTip(toolTip);
  degreesText_->setToolTip(toolTip);
  auto* line = new QHBoxLayout;
  line->addSpacing(2 * LargeGap);
  for (QWidget* widget : std::initializer_list<QWidget*>{degreesBar_, degreesCaption_, degreesText_}) {
    KeepRoom(*widget);
    line->addWidget(widget);
  }
  line->setStretch(1, 1);
  connect(degreesBar_, &QScrollBar::valueChanged, this, [this](int degrees) {
    MoveRotation(form_, degrees);
    Mirror();
  });
  return line;
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
  const QSignalBlocker quiet(degreesBar_);
  degreesBar_->setValue(form_.HScroll1);
  degreesText_->setText(ToQt(form_.Text1()));
  for (QWidget* widget : std::initializer_list<QWidget*>{degreesBar_, degreesCaption_, degreesText_}) {
    widget->setVisible(form_.RotationVisible());
  }
  apply_->setVisible(form_.Command2Visible());
}

}  // namespace veln
