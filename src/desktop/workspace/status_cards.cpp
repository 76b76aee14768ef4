#include "desktop/workspace/status_cards.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "toolkit/number_text.h"
#include "workspace/captions.h"
#include "workspace/survey_state.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace veln {

namespace {

constexpr int Sideways = 4;  // the column from which single values stand beside a table of three columns

struct NamedText {
  const char* Name;
  const char* Text;
};

QGroupBox* MakeCard(QWidget* parent, const char* name, const QString& caption)
{
  auto* card = new QGroupBox(caption, parent);
  card->setObjectName(name);
  auto* grid = new QGridLayout(card);
  grid->setHorizontalSpacing(LargeGap);
  grid->setVerticalSpacing(SmallGap / 2);
  card->hide();
  return card;
}

QGridLayout& GridOf(QGroupBox& card)
{
  return dynamic_cast<QGridLayout&>(*card.layout());
}

QLabel* AddText(QGroupBox& card, const char* name, const char* text, int row, int column,
                Qt::Alignment side = Qt::AlignLeft)
{
  QLabel* label = MakeText(&card, name, text);
  label->setWordWrap(false);
  label->setAlignment(side | Qt::AlignVCenter);
  GridOf(card).addWidget(label, row, column);
  return label;
}

QLabel* AddValue(QGroupBox& card, const char* name, const QString& caption, int row, int column,
                 Qt::Alignment side = Qt::AlignLeft)
{
  QLabel* label = MakeValueLabel(&card, name, caption);
  label->setAlignment(side | Qt::AlignVCenter);
  GridOf(card).addWidget(label, row, column);
  return label;
}

/// A caption and the value behind it.
void AddPair(QGroupBox& card, NamedText caption, const char* value, int row, int column)
{
  AddText(card, caption.Name, caption.Text, row, column);
  AddValue(card, value, QString(caption.Text).chopped(1), row, column + 1);
}

/// A pair whose value may be long: it is cut in the middle where the room is short.
void AddLongPair(QGroupBox& card, NamedText caption, const char* value, int row)
{
  constexpr int Columns = 3;
  AddText(card, caption.Name, caption.Text, row, 0);
  ElidedLabel* label = MakeElidedLabel(&card, value, QString(caption.Text).chopped(1));
  GridOf(card).addWidget(label, row, 1, 1, Columns);
}

void Show(const QGroupBox& card, const char* name, const std::string& value)
{
  ShowValue(*card.findChild<QLabel*>(name), ToQt(value));
}

void SetShown(const QGroupBox& card, std::initializer_list<const char*> names, bool shown)
{
  for (const char* name : names) {
    card.findChild<QLabel*>(name)->setVisible(shown);
  }
}

/// Lets what stands sideways of a small table begin behind a gap, with the rest of the card empty.
void SetSideways(QGroupBox& card)
{
  constexpr int Gap = 4 * LargeGap;
  GridOf(card).setColumnMinimumWidth(Sideways - 1, Gap);
  GridOf(card).setColumnStretch(Sideways + 2, 1);
}

QGroupBox* MakeProjectCard(QWidget* parent)
{
  QGroupBox* card = MakeCard(parent, "PSFrame", "Project Status Window");
  AddLongPair(*card, {"LblFDCaption", "Project Description:"}, "LblFD", 0);
  AddPair(*card, {"LblPSCaption", "Project Subdirectory:"}, "LblPS", 1, 0);
  AddPair(*card, {"LblIDCaption", "Field ID Code:"}, "LblID", 1, 2);
  AddLongPair(*card, {"LblIFCaption", "Import Filename:"}, "LblIF", 2);
  AddPair(*card, {"LblFTCaption", "Survey Type:"}, "LblFT", 3, 0);
  AddPair(*card, {"LblSSCaption", "# of Survey Sites:"}, "LblSS", 3, 2);
  AddPair(*card, {"LblSCCaption", "# of Signal Columns:"}, "LblSC", 4, 0);
  AddPair(*card, {"LblSTCaption", "Signal Transformation:"}, "LblST", 4, 2);
  GridOf(*card).setColumnStretch(1, 1);
  GridOf(*card).setColumnStretch(3, 1);
  return card;
}

void MirrorProject(QGroupBox& card, const SurveyState& state)
{
  Show(card, "LblFD", state.FieldDescription);
  Show(card, "LblPS", state.ProjectName);
  Show(card, "LblID", state.FieldId);
  Show(card, "LblIF", state.ImportFileName);
  const bool imported = state.SurveySize > 0;
  Show(card, "LblFT", imported ? SurveyTypeText(state.Kind) : "");
  Show(card, "LblSS", imported ? GeneralForm(state.SurveySize) : "");
  Show(card, "LblSC", imported ? NumberToString(state.SignalCount) : "");
  Show(card, "LblST", imported ? SignalTransformText(state.LogTransform) : "");
  SetShown(card,
           {"LblIFCaption", "LblIF", "LblFTCaption", "LblFT", "LblSSCaption", "LblSS", "LblSCCaption",
            "LblSC", "LblSTCaption", "LblST"},
           imported);
}

QGroupBox* MakeSignalCard(QWidget* parent)
{
  constexpr std::array<NamedText, 5> Columns = {
      {{"LblSz", "N"}, {"LblMu", "Mean"}, {"LblStd", "Std"}, {"LblMn", "Min"}, {"LblMx", "Max"}}};
  QGroupBox* card = MakeCard(parent, "BSSFrame", "Signal Statistics");
  for (int row = 1; row <= 2; ++row) {
    const std::string number = std::to_string(row);
    AddValue(*card, ("LblNm" + number).c_str(), "Signal " + ToQt(number), row, 0);
    int column = 1;
    for (const NamedText& heading : Columns) {
      AddValue(*card, (heading.Name + number).c_str(), heading.Text, row, column++, Qt::AlignRight);
    }
  }
  int column = 1;
  for (const NamedText& heading : Columns) {
    AddText(*card, (std::string(heading.Name) + "Heading").c_str(), heading.Text, 0, column, Qt::AlignRight);
    GridOf(*card).setColumnStretch(column++, 1);
  }
  AddText(*card, "Label13", "Corr", 0, column, Qt::AlignRight);
  AddValue(*card, "LblCorr", "Corr", 1, column, Qt::AlignRight);
  GridOf(*card).setColumnStretch(column, 1);
  return card;
}

void MirrorSignals(QGroupBox& card, const SignalPanel& panel)
{
  int number = 1;
  for (const SignalFacts& signal : panel.Rows) {
    const SignalTexts row = TextsOf(signal);
    const std::string suffix = std::to_string(number++);
    Show(card, ("LblNm" + suffix).c_str(), row.LblNm);
    Show(card, ("LblSz" + suffix).c_str(), row.LblSz);
    Show(card, ("LblMu" + suffix).c_str(), row.LblMu);
    Show(card, ("LblStd" + suffix).c_str(), row.LblStd);
    Show(card, ("LblMn" + suffix).c_str(), row.LblMn);
    Show(card, ("LblMx" + suffix).c_str(), row.LblMx);
  }
  Show(card, "LblCorr", PanelCorrelation(panel));
  SetShown(card, {"Label13", "LblCorr", "LblNm2", "LblSz2", "LblMu2", "LblStd2", "LblMn2", "LblMx2"},
           panel.Rows[1].Statistics.Count > 0);
}

QGroupBox* MakeDecorrelationCard(QWidget* parent)
{
  QGroupBox* card = MakeCard(parent, "DCFrame", "Decorrelation Statistics");
  AddText(*card, "LblLevelHeading", "Level", 0, 1, Qt::AlignRight);
  AddText(*card, "LblCountHeading", "# Sites >", 0, 2, Qt::AlignRight);
  AddText(*card, "LblmstdCaption", "Masking STD:", 1, 0);
  AddValue(*card, "Lblmstd", "Masking STD", 1, 1, Qt::AlignRight);
  AddValue(*card, "Lblmstdcnt", "Masking STD, # Sites >", 1, 2, Qt::AlignRight);
  AddText(*card, "LblostdCaption", "Outlier STD:", 2, 0);
  AddValue(*card, "Lblostd", "Outlier STD", 2, 1, Qt::AlignRight);
  AddValue(*card, "Lblostdcnt", "Outlier STD, # Sites >", 2, 2, Qt::AlignRight);
  AddPair(*card, {"LblDcntCaption", "Number of Previously Deleted Sites:"}, "LblDcnt", 1, Sideways);
  AddPair(*card, {"LblVcntCaption", "Number of Validation Iterations:"}, "LblVcnt", 2, Sideways);
  SetSideways(*card);
  return card;
}

void MirrorDecorrelation(QGroupBox& card, const DecorrelationTexts& panel)
{
  Show(card, "Lblmstd", panel.Lblmstd);
  Show(card, "Lblmstdcnt", panel.Lblmstdcnt);
  Show(card, "Lblostd", panel.Lblostd);
  Show(card, "Lblostdcnt", panel.Lblostdcnt);
  Show(card, "LblDcnt", panel.LblDcnt);
  Show(card, "LblVcnt", panel.LblVcnt);
}

QGroupBox* MakeAlgorithmCard(QWidget* parent)
{
  QGroupBox* card = MakeCard(parent, "TFrame", "EB / TA  Algorithms");
  AddPair(*card, {"LblEBCaption", "Edge Buffering:"}, "LblEB", 0, 0);
  AddPair(*card, {"Label21Caption", "Transition Analysis:"}, "Label21", 0, 2);
  GridOf(*card).setColumnStretch(1, 1);
  GridOf(*card).setColumnStretch(3, 1);
  return card;
}

void MirrorAlgorithms(QGroupBox& card, const AlgorithmFacts& algorithms)
{
  Show(card, "LblEB", AlgorithmText(algorithms.EdgeBuffering));
  Show(card, "Label21", AlgorithmText(algorithms.TransitionAnalysis));
}

constexpr int FirstDesignLabel = 27;  // `Label27` to `Label31`

std::string DesignLabel(int design)
{
  return "Label" + std::to_string(FirstDesignLabel + design - 1);
}

QGroupBox* MakeDesignCard(QWidget* parent)
{
  QGroupBox* card = MakeCard(parent, "SDFrame", "Sample Site Designs");
  AddText(*card, "LblDesignHeading", "Dsgn #", 0, 0);
  AddText(*card, "LblSizeHeading", "# of SS", 0, 1, Qt::AlignRight);
  AddText(*card, "LblCriterionHeading", "OptCri", 0, 2, Qt::AlignRight);
  for (int design = 1; design <= MaxDesigns; ++design) {
    const std::string number = std::to_string(design);
    AddText(*card, DesignLabel(design).c_str(), number.c_str(), design, 0);
    AddValue(*card, ("Lblss" + number + "n").c_str(), "Design " + ToQt(number) + " # of SS", design, 1,
             Qt::AlignRight);
    AddValue(*card, ("Lblssoc" + number).c_str(), "Design " + ToQt(number) + " OptCri", design, 2,
             Qt::AlignRight);
  }
  AddText(*card, "Lblssmdc", "Manual Dsgn Created", 0, Sideways);
  AddPair(*card, {"Lblssmd", "# of SS in MD:"}, "Lblssmdn", 1, Sideways);
  SetSideways(*card);
  return card;
}

void MirrorDesigns(QGroupBox& card, const SurveyState& state)
{
  int design = 1;
  for (const DesignFacts& saved : state.Designs) {
    const DesignTexts row = TextsOf(saved);
    const std::string number = std::to_string(design);
    const std::string size = "Lblss" + number + "n";
    const std::string criterion = "Lblssoc" + number;
    Show(card, size.c_str(), row.Lblssn);
    Show(card, criterion.c_str(), row.Lblssoc);
    SetShown(card, {DesignLabel(design).c_str(), size.c_str(), criterion.c_str()}, saved.SampleSize > 0);
    ++design;
  }
  Show(card, "Lblssmdn", state.ManualDesignDone ? NumberToString(state.ManualDesignSize) : "");
  SetShown(card, {"Lblssmdc", "Lblssmd", "Lblssmdn"}, state.ManualDesignDone);
}

}  // namespace

StatusCards::StatusCards(QWidget* parent)
    : QWidget(parent),
      project_(MakeProjectCard(this)),
      signals_(MakeSignalCard(this)),
      decorrelation_(MakeDecorrelationCard(this)),
      algorithms_(MakeAlgorithmCard(this)),
      designs_(MakeDesignCard(this))
{
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(LargeGap);
  for (QGroupBox* card : {project_, signals_, decorrelation_, algorithms_, designs_}) {
    column->addWidget(card);
  }
}

QWidget* StatusCards::Mirror(const SurveyState& state)
{
  MirrorProject(*project_, state);
  MirrorSignals(*signals_, state.Signals);
  MirrorDecorrelation(*decorrelation_, DecorrelationTextsOf(state));
  MirrorAlgorithms(*algorithms_, state.Algorithms.value_or(AlgorithmFacts{}));
  MirrorDesigns(*designs_, state);

  QWidget* fresh = nullptr;
  const auto reveal = [&fresh](QGroupBox* card, bool visible) {
    fresh = visible && card->isHidden() ? card : fresh;
    card->setVisible(visible);
  };
  reveal(project_, !state.ProjectName.empty());
  reveal(signals_, state.Signals.Rows[0].Statistics.Count > 0);
  reveal(decorrelation_, state.DecorrDone);
  reveal(algorithms_, state.Algorithms.has_value());
  reveal(designs_, HasDesign(state));
  return fresh;
}

}  // namespace veln
