#include "signal/info_file.h"

#include "survey/row_table.h"
#include "toolkit/number_text.h"
#include "toolkit/text_report.h"
#include "toolkit/utf8.h"
#include "workspace/captions.h"

#include <array>

namespace veln {

namespace {

void PutHead(TextReport& report, const SurveyState& state, const Clock& clock)
{
  std::string type = SurveyTypeText(state.Kind);
  if (IsTransect(state)) {
    type += "  (rowcount =" + NumberToString(static_cast<double>(InitRows(state.RowNumber).size())) + ")";
  }
  report.Line("Input File:   " + state.ImportFileName)
      .BlankLines()
      .Line("Output File:  " + OutputPath(state, "info.txt").string())
      .Line("Project:      " + state.ProjectName)
      .Line("O-File Name:  " + OutputName(state, "info.txt"))
      .BlankLines()
      .Line("Date & Time:  " + clock())
      .Line("Field Desc:   " + state.FieldDescription)
      .BlankLines()
      .Line("FieldID Code:    " + state.FieldId)
      .Line("File Type:       " + type)
      .Line("Survey Size:    " + PrintedNumber(state.SurveySize))
      .Line("# of Signals:   " + PrintedNumber(state.SignalCount))
      .Line(std::string("Signal Units:    ") + UnitsText(state.SignalUnits))
      .Line(std::string("Sig Trnsfrm:     ") + SignalTransformText(state.LogTransform))
      .BlankLines(3)
      .Line("Signal Statistics")
      .BlankLines();
}

/// Puts a value so that it ends in front of `column`.
void PutRightAligned(TextReport& report, const std::string& value, int column)
{
  report.At(column - static_cast<int>(CharacterCount(value))).Text(value);
}

void PutStatistics(TextReport& report, const SurveyState& state)
{
  struct StatisticsLine {
    const char* Caption;
    std::string SignalTexts::* Value;
  };
  const std::array<StatisticsLine, 5> lines = {{{"   N", &SignalTexts::LblSz},
                                                {"   Mean", &SignalTexts::LblMu},
                                                {"   Std", &SignalTexts::LblStd},
                                                {"   Min", &SignalTexts::LblMn},
                                                {"   Max", &SignalTexts::LblMx}}};
  constexpr int FirstEnd = 25;
  constexpr int SecondEnd = 45;
  const bool two = state.SignalCount == 2;
  const SignalTexts first = TextsOf(state.Signals.Rows[0]);
  const SignalTexts second = TextsOf(state.Signals.Rows[1]);
  report.At(20).Text(first.LblNm);
  if (two) {
    report.At(40).Text(second.LblNm);
  }
  report.EndLine().BlankLines();
  for (const StatisticsLine& line : lines) {
    report.Text(line.Caption);
    if (!two) {
      report.NextZone();
    }
    PutRightAligned(report, first.*line.Value, FirstEnd);
    if (two) {
      PutRightAligned(report, second.*line.Value, SecondEnd);
    }
    report.EndLine();
  }
  if (two) {
    report.BlankLines().Line("   Signal Corr =   " + PanelCorrelation(state.Signals));
  }
}

void PutDecorrelation(TextReport& report, const DecorrelationTexts& panel)
{
  report.BlankLines(2).Line("Decorrelation Statistics").BlankLines();
  report.At(30).Text("Level").At(40).Line("# Sites > Level");
  report.Text("   Masking STD").At(30).Text(panel.Lblmstd).At(46).Line(panel.Lblmstdcnt);
  report.Text("   Outlier STD").At(30).Text(panel.Lblostd).At(46).Line(panel.Lblostdcnt);
  report.BlankLines();
  report.Text("   Total # of deleted sites:").At(40).Line(panel.LblDcnt);
  report.Text("   # of Validation iterations:").At(40).Line(panel.LblVcnt);
  report.BlankLines(2);
}

}  // namespace

std::string ComposeInfoFile(const SurveyState& state, const Clock& clock)
{
  TextReport report;
  PutHead(report, state, clock);
  PutStatistics(report, state);
  PutDecorrelation(report, DecorrelationTextsOf(state));
  const AlgorithmFacts algorithms = state.Algorithms.value_or(AlgorithmFacts{});
  report.Line(std::string("Edge Buffering:          ") + AlgorithmText(algorithms.EdgeBuffering))
      .Line(std::string("Transition Analysis:     ") + AlgorithmText(algorithms.TransitionAnalysis));
  return report.Content();
}

}  // namespace veln
