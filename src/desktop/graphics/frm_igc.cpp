#include "desktop/graphics/frm_igc.h"

#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "graphics/plot_options.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
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

/// A locked text box that shows a colour alone, whatever the desktop's colours are.
QLineEdit* MakeSwatch(QWidget* parent, const QString& name, Colour colour)
{
  auto* swatch = new QLineEdit(parent);
  swatch->setObjectName(name);
  swatch->setReadOnly(true);
  swatch->setFocusPolicy(Qt::NoFocus);
  QPalette filled;
  filled.setColor(QPalette::Base, QColor(colour.Red, colour.Green, colour.Blue));
  swatch->setPalette(filled);
  const int side = swatch->sizeHint().height();
  swatch->setFixedSize(side + LargeGap, side);
  return swatch;
}

}  // namespace

frmIGC::frmIGC(Program& program, QWidget* parent)
    : ChildWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                  {Name, "Graphics Initialization", {1000, 750}, "hdoc03", {}, program.Find<frmSvyGraph>()})
{
  if (const auto* window = program.Find<frmSvyGraph>()) {
    form_ = LoadIgcForm(window->Graph(), program.State);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addLayout(MakeDirection());
  layout->addLayout(MakeChecks());
  layout->addLayout(MakeSymbolSize());
  layout->addWidget(MakePalettes());
  layout->addWidget(MakePlaces());
  layout->addStretch();
  QPushButton* help = HelpButton("CHelp");
  help->setToolTip(" OnLIne Help... ");
  QPushButton* cancel =
      MakeButton(this, "Command1", "Ca&ncel", " exit without initializing new plotting options ");
  QPushButton* initialize =
      MakeButton(this, "Command2", "&Initialize ", " initialize all new plotting options indicated above ");
  initialize->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(help);
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(initialize);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(initialize, &QPushButton::clicked, this, [this] { Initialize(); });
  Mirror();
}

QLayout* frmIGC::MakeDirection()
{
  directionCaption_ = new QLabel("Transect Direction:", this);
  directionCaption_->setObjectName("Label1");
  directions_ = {
      MakeOption(this, "Option1", "N&orth / South", " indicates north / south transect direction "),
      MakeOption(this, "Option2", "East / &West", " indicates east / west transect direction ")};
  auto* line = new QHBoxLayout;
  line->addWidget(directionCaption_);
  for (QRadioButton* option : directions_) {
    line->addSpacing(SmallGap);
    line->addWidget(option);
    connect(option, &QRadioButton::clicked, this, [this, option] {
      ChooseDirection(form_, option == directions_.front() ? FieldAxis::Y : FieldAxis::X);
      Mirror();
    });
  }
  line->addStretch();
  return line;
}

QLayout* frmIGC::MakeChecks()
{
  checks_ = {
      MakeCheck(this, "Check1", "Initialize &Line (Transect) Plots", " allow line plots to be produced "),
      MakeCheck(this, "Check2", "Initialize Histo&gram Plots", " allow histograms plots to be produced "),
      MakeCheck(this, "Check3", "Initialize Color&Scale Grids", " allow colorscale grids to be produced "),
      MakeCheck(this, "Check4", "Highlight all &masked and outlier sites",
                " plot masked / outlier sites as yellow points "),
      MakeCheck(this, "Check5", "Highlight &all selected sample sites",
                " plot sample sites as light blue points ")};
  checks_[1]->hide();
  checks_[2]->hide();
  auto* column = new QVBoxLayout;
  column->setSpacing(SmallGap);
  for (const std::size_t shown : {0, 3, 4}) {
    column->addWidget(checks_.at(shown));
  }
  column->addWidget(
      MakeText(this, "Label2",
               "Note:  highlighting only effects Line plots, Scatter plots, and the Survey Grid plot."));
  connect(checks_[0], &QCheckBox::toggled, this, [this](bool on) {
    TickLinePlots(form_, on);
    Mirror();
  });
  connect(checks_[3], &QCheckBox::toggled, this, [this](bool on) {
    form_.Check4 = on;
    Mirror();
  });
  connect(checks_[4], &QCheckBox::toggled, this, [this](bool on) {
    form_.Check5 = on;
    Mirror();
  });
  return column;
}

QLayout* frmIGC::MakeSymbolSize()
{
  constexpr int LargeChange = 2;
  constexpr int ShortestBar = 160;
  constexpr int Digits = 3;
  sizeBar_ = new QScrollBar(Qt::Horizontal, this);
  sizeBar_->setObjectName("HScroll1");
  sizeBar_->setFocusPolicy(Qt::StrongFocus);
  sizeBar_->setInvertedControls(false);  // to the right is more
  sizeBar_->setMinimumWidth(ShortestBar);
  sizeBar_->setRange(SmallestSymbol, LargestSymbol);
  sizeBar_->setPageStep(LargeChange);
  sizeText_ = new QLineEdit(this);
  sizeText_->setObjectName("Text1");
  sizeText_->setAccessibleName("Symbol size");
  sizeText_->setToolTip(" please use horizontal scroll bar to adjust plotting size ");
  sizeText_->setReadOnly(true);
  sizeText_->setAlignment(Qt::AlignRight);
  sizeText_->setMaximumWidth(fontMetrics().horizontalAdvance('0') * Digits + LargeGap);
  sizeCaption_ = MakeFieldLabel(this, "Label3", "ColorScale S&ymbol Plotting Size", sizeBar_);
  auto* line = new QHBoxLayout;
  line->addWidget(sizeCaption_);
  line->addWidget(sizeBar_, 1);
  line->addWidget(sizeText_);
  connect(sizeBar_, &QScrollBar::valueChanged, this, [this](int size) {
    MoveSymbolSize(form_, size);
    Mirror();
  });
  return line;
}

QGroupBox* frmIGC::MakePalettes()
{
  constexpr int Right = 6;  // first column of the palettes on the right
  paletteFrame_ = new QGroupBox("ColorScale Grid Color Pallette Choices", this);
  paletteFrame_->setObjectName("fraCSC");
  auto* grid = new QGridLayout(paletteFrame_);
  grid->setSpacing(SmallGap);
  const QString heading = "low EC  to  high EC";
  for (const auto& [name, column] : {std::pair{"Label4", 1}, std::pair{"Label5", Right + 1}}) {
    QLabel* label = MakeText(paletteFrame_, name, heading);
    label->setAlignment(Qt::AlignCenter);
    grid->addWidget(label, 0, column, 1, 4);
  }
  constexpr std::array<const char*, 4> Captions = {"&1", "&2", "&3", "&4"};
  for (int number = 1; number <= PaletteCount; ++number) {
    AddPalette(*grid, number, Captions.at(static_cast<std::size_t>(number) - 1));
  }
  grid->setColumnMinimumWidth(Right - 1, LargeGap);
  grid->setColumnStretch(Right + Right - 1, 1);
  return paletteFrame_;
}

void frmIGC::AddPalette(QGridLayout& grid, int number, const QString& caption)
{
  constexpr std::array<const char*, 4> Names = {"optColor1", "optColor2", "optColor3", "optGray"};
  constexpr int Right = 6;
  constexpr int FirstSwatch = 2;  // `Text2`
  constexpr int Classes = 4;
  const auto index = static_cast<std::size_t>(number) - 1;
  const int row = number % 2 == 1 ? 1 : 2;
  const int column = number <= 2 ? 0 : Right;
  palettes_.at(index) = MakeOption(paletteFrame_, Names.at(index), caption);
  grid.addWidget(palettes_.at(index), row, column);
  for (int i = 0; i < Classes; ++i) {
    const int text = FirstSwatch + (number - 1) * Classes + i;
    QLineEdit* swatch = MakeSwatch(paletteFrame_, "Text" + QString::number(text),
                                   Palette(number).at(static_cast<std::size_t>(i)));
    swatch->setAccessibleName(QString("Palette %1, class %2").arg(number).arg(i + 1));
    grid.addWidget(swatch, row, column + 1 + i);
  }
  connect(palettes_.at(index), &QRadioButton::clicked, this, [this, number] {
    ChoosePalette(form_, number);
    Mirror();
  });
}

QGroupBox* frmIGC::MakePlaces()
{
  auto* frame =
      new QGroupBox("Decimal Precision for all plots displaying X or Y Cordinates on an Axis", this);
  frame->setObjectName("fraDP");
  places_ = {MakeOption(frame, "optDP2", "2 &dec places"), MakeOption(frame, "optDP3", "3 dec &places"),
             MakeOption(frame, "optDP4", "4 de&c places"), MakeOption(frame, "optDP5", "5 d&ec places")};
  auto* line = new QHBoxLayout(frame);
  for (std::size_t i = 0; i < places_.size(); ++i) {
    line->addWidget(places_.at(i));
    connect(places_.at(i), &QRadioButton::clicked, this, [this, i] {
      ChoosePlaces(form_, FewestPlaces + static_cast<int>(i));
      Mirror();
    });
  }
  return frame;
}

void frmIGC::Initialize()
{
  auto* window = Shared().Find<frmSvyGraph>();
  if (window == nullptr) {
    Unload();
    return;
  }
  window->Act([this](SurveyGraph& graph) { InitializeGraphics(form_, graph, State(), Shared().Ask()); });
  if (form_.Closed) {
    Unload();
  }
}

void frmIGC::Mirror()
{
  directionCaption_->setEnabled(form_.DirectionEnabled);
  const std::array<bool, 2> directions = {form_.Option1, form_.Option2};
  for (std::size_t i = 0; i < directions.size(); ++i) {
    directions_.at(i)->setEnabled(form_.DirectionEnabled);
    ShowChoice(*directions_.at(i), directions.at(i));
  }
  const std::array<bool, 5> checks = {form_.Check1, form_.Check2, form_.Check3, form_.Check4, form_.Check5};
  for (std::size_t i = 0; i < checks.size(); ++i) {
    ShowChoice(*checks_.at(i), checks.at(i));
  }
  checks_[0]->setEnabled(form_.DirectionEnabled);
  checks_[1]->setEnabled(false);
  checks_[2]->setEnabled(false);
  for (QWidget* widget : std::initializer_list<QWidget*>{sizeCaption_, sizeBar_, sizeText_, paletteFrame_}) {
    widget->setVisible(form_.MapChoicesVisible());
  }
  const QSignalBlocker quiet(sizeBar_);
  sizeBar_->setValue(form_.SizeChoice);
  sizeText_->setText(ToQt(form_.Text1()));
  for (std::size_t i = 0; i < palettes_.size(); ++i) {
    ShowChoice(*palettes_.at(i), form_.ColorChoice == static_cast<int>(i) + 1);
    ShowChoice(*places_.at(i), form_.PlacesChoice == static_cast<int>(i) + FewestPlaces);
  }
}

}  // namespace veln
