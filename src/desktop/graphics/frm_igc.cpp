#include "desktop/graphics/frm_igc.h"

#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "graphics/plot_options.h"

#include <QGridLayout>

namespace veln {

namespace {

constexpr int Classes = 4;
constexpr int RightPalettes = Classes + 2;  // the column where the palettes on the right begin

/// A locked text box that shows a colour alone, whatever the desktop's colours are.
QLineEdit* MakeSwatch(QWidget* parent, const char* name, Colour colour)
{
  QLineEdit* swatch = MakeShownText(parent, name);
  swatch->setFocusPolicy(Qt::NoFocus);
  QPalette filled;
  filled.setColor(QPalette::Base, QColor(colour.Red, colour.Green, colour.Blue));
  swatch->setPalette(filled);
  const int side = swatch->sizeHint().height();
  swatch->setFixedSize(side + LargeGap, side);
  return swatch;
}

IgcForm LoadForm(const Program& program)
{
  const auto* window = program.Find<frmSvyGraph>();
  return window == nullptr ? IgcForm() : LoadIgcForm(window->Graph(), program.State);
}

}  // namespace

frmIGC::frmIGC(Program& program, QWidget* parent)
    : FormWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                 {Name, "Graphics Initialization", "hdoc03", {}, program.Find<frmSvyGraph>()},
                 LoadForm(program))
{
  QLayout* direction = MakeDirection();
  QLayout* checks = MakeChecks();
  QLayout* size = MakeSymbolSize();
  paletteFrame_ = MakePalettes();
  QGroupBox* places = MakePlaces();
  QPushButton* help = HelpButton("CHelp");
  help->setToolTip(" OnLIne Help... ");
  SetColumn(*this, {direction, checks, size, paletteFrame_, places, LayoutItem::Rest(),
                    ButtonRow({help,
                               MakeButton(this, "Command1", "Ca&ncel",
                                          " exit without initializing new plotting options ", Leaves()),
                               MakeButton(this, "Command2", "&Initialize ",
                                          " initialize all new plotting options indicated above ",
                                          [this] { Initialize(); })})});
  Mirror();
}

QLayout* frmIGC::MakeDirection()
{
  directionCaption_ = MakeLine(this, "Label1", "Transect Direction:");
  directions_ = {MakeOption(this, "Option1", "N&orth / South", " indicates north / south transect direction ",
                            Does(ChooseDirection, FieldAxis::Y)),
                 MakeOption(this, "Option2", "East / &West", " indicates east / west transect direction ",
                            Does(ChooseDirection, FieldAxis::X))};
  return Row({directionCaption_, directions_[0], directions_[1], LayoutItem::Rest()}, LargeGap);
}

QLayout* frmIGC::MakeChecks()
{
  checks_ = {MakeCheck(this, "Check1", "Initialize &Line (Transect) Plots",
                       " allow line plots to be produced ", Takes(TickLinePlots)),
             MakeCheck(this, "Check2", "Initialize Histo&gram Plots",
                       " allow histograms plots to be produced ", Keeps(&IgcForm::Check2)),
             MakeCheck(this, "Check3", "Initialize Color&Scale Grids",
                       " allow colorscale grids to be produced ", Keeps(&IgcForm::Check3)),
             MakeCheck(this, "Check4", "Highlight all &masked and outlier sites",
                       " plot masked / outlier sites as yellow points ", Keeps(&IgcForm::Check4)),
             MakeCheck(this, "Check5", "Highlight &all selected sample sites",
                       " plot sample sites as light blue points ", Keeps(&IgcForm::Check5))};
  SetShown({checks_[1], checks_[2]}, false);
  return Column(
      {checks_[0], checks_[3], checks_[4],
       MakeText(this, "Label2",
                "Note:  highlighting only effects Line plots, Scatter plots, and the Survey Grid plot.")});
}

QLayout* frmIGC::MakeSymbolSize()
{
  constexpr BarSteps Steps{SmallestSymbol, LargestSymbol, 2};
  constexpr int Digits = 3;
  sizeBar_ = MakeBar(this, "HScroll1", Steps, Takes(MoveSymbolSize));
  sizeText_ =
      MakeShownNumber(this, "Text1", " please use horizontal scroll bar to adjust plotting size ", Digits);
  sizeText_->setAccessibleName("Symbol size");
  sizeCaption_ = MakeFieldLabel(this, "Label3", "ColorScale S&ymbol Plotting Size", sizeBar_);
  return Row({sizeCaption_, {sizeBar_, 1}, sizeText_});
}

QGroupBox* frmIGC::MakePalettes()
{
  auto* grid = new QGridLayout;
  grid->setSpacing(SmallGap);
  for (const auto& [name, column] : {std::pair{"Label4", 1}, std::pair{"Label5", RightPalettes + 1}}) {
    QLabel* label = MakeText(this, name, "low EC  to  high EC");
    label->setAlignment(Qt::AlignCenter);
    grid->addWidget(label, 0, column, 1, Classes);
  }
  for (int number = 1; number <= PaletteCount; ++number) {
    AddPalette(*grid, number);
  }
  grid->setColumnMinimumWidth(RightPalettes - 1, LargeGap);
  grid->setColumnStretch(RightPalettes + Classes + 1, 1);
  return Frame(this, "fraCSC", "ColorScale Grid Color Pallette Choices", grid);
}

void frmIGC::AddPalette(QGridLayout& grid, int number)
{
  constexpr std::array<const char*, 4> Names = {"optColor1", "optColor2", "optColor3", "optGray"};
  constexpr int FirstSwatch = 2;  // `Text2`
  const auto index = static_cast<std::size_t>(number) - 1;
  const int row = number % 2 == 1 ? 1 : 2;
  const int column = number <= 2 ? 0 : RightPalettes;
  palettes_.at(index) =
      MakeOption(this, Names.at(index), QString("&%1").arg(number), "", Does(ChoosePalette, number));
  grid.addWidget(palettes_.at(index), row, column);
  for (int i = 0; i < Classes; ++i) {
    const std::string name = "Text" + std::to_string(FirstSwatch + (number - 1) * Classes + i);
    QLineEdit* swatch = MakeSwatch(this, name.c_str(), Palette(number).at(static_cast<std::size_t>(i)));
    swatch->setAccessibleName(QString("Palette %1, class %2").arg(number).arg(i + 1));
    grid.addWidget(swatch, row, column + 1 + i);
  }
}

QGroupBox* frmIGC::MakePlaces()
{
  const auto makePlaces = [this](const char* name, const QString& caption, int places) {
    return MakeOption(this, name, caption, "", Does(ChoosePlaces, places));
  };
  places_ = {makePlaces("optDP2", "2 &dec places", 2), makePlaces("optDP3", "3 dec &places", 3),
             makePlaces("optDP4", "4 de&c places", 4), makePlaces("optDP5", "5 d&ec places", 5)};
  return Frame(this, "fraDP", "Decimal Precision for all plots displaying X or Y Cordinates on an Axis",
               Row({places_[0], places_[1], places_[2], places_[3]}));
}

void frmIGC::Initialize()
{
  if (auto* window = Shared().Find<frmSvyGraph>(); window != nullptr) {
    window->Act([this](SurveyGraph& graph) { InitializeGraphics(form_, graph, State(), Shared().Ask()); });
    if (!form_.Closed) {
      return;
    }
  }
  Unload();
}

void frmIGC::Mirror()
{
  directionCaption_->setEnabled(form_.DirectionEnabled);
  ShowChoice(*directions_[0], form_.Option1, form_.DirectionEnabled);
  ShowChoice(*directions_[1], form_.Option2, form_.DirectionEnabled);
  ShowChoice(*checks_[0], form_.Check1, form_.DirectionEnabled);
  ShowChoice(*checks_[1], form_.Check2, false);
  ShowChoice(*checks_[2], form_.Check3, false);
  ShowChoice(*checks_[3], form_.Check4);
  ShowChoice(*checks_[4], form_.Check5);
  SetShown({sizeCaption_, sizeBar_, sizeText_, paletteFrame_}, form_.MapChoicesVisible());
  ShowNumber(*sizeBar_, form_.SizeChoice);
  sizeText_->setText(ToQt(form_.Text1()));
  for (std::size_t i = 0; i < palettes_.size(); ++i) {
    ShowChoice(*palettes_.at(i), form_.ColorChoice == static_cast<int>(i) + 1);
    ShowChoice(*places_.at(i), form_.PlacesChoice == static_cast<int>(i) + FewestPlaces);
  }
}

}  // namespace veln
