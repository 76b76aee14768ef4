#include "survey/survey_export.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/text_report.h"
#include "workspace/project.h"

#include <vector>

namespace veln {

namespace {

constexpr const char* CoordinateFormat = "0.0#####";
constexpr const char* SignalFormat = "0.00###";

std::string Quoted(const std::string& text)
{
  return "\"" + text + "\"";
}

void PutHeader(TextReport& report, const SurveyState& state)
{
  const bool two = state.SignalCount == 2;
  report.Line(GeneralForm(state.SurveySize) + "," + GeneralForm(state.SignalCount + 2) + "," +
              Quoted(IsTransect(state) ? "T" : "G") + "," + Quoted(state.LogTransform ? "log" : "none"));
  std::string labels = Quoted(state.Signals.Rows[0].Label);
  if (two) {
    labels += "," + Quoted(state.Signals.Rows[1].Label);
  }
  labels += "," + Quoted("1st-PCS");
  if (two) {
    labels += "," + Quoted("2nd-PCS");
  }
  report.Line(labels);
}

void PutSite(TextReport& report, const SurveyState& state, std::size_t i)
{
  constexpr const char* Gap = "  ";
  const auto put = [&report](double value, const char* format) { report.Text(Gap).Number(value, format); };
  report.Number(state.SiteId[i]).Text(Gap);
  if (IsTransect(state)) {
    report.Number(state.RowNumber[i]).Text(Gap);
  }
  report.Number(state.SiteStatus[i]);
  put(state.CoordX[i], CoordinateFormat);
  put(state.CoordY[i], CoordinateFormat);
  put(state.Signal1[i], SignalFormat);
  if (state.SignalCount == 2) {
    put(state.Signal2[i], SignalFormat);
  }
  put(state.Decorr1[i], SignalFormat);
  if (state.SignalCount == 2) {
    put(state.Decorr2[i], SignalFormat);
  }
  report.EndLine();
}

}  // namespace

std::string ComposeSurveyExport(const SurveyState& state, const ExportProgress& progress)
{
  constexpr std::size_t SmallStep = 20;
  constexpr std::size_t LargeStep = 100;
  const std::size_t step = !IsTransect(state) && state.SignalCount == 1 ? LargeStep : SmallStep;
  TextReport report;
  PutHeader(report, state);
  for (std::size_t i = 0; i < state.SiteId.size(); ++i) {
    PutSite(report, state, i);
    if (progress && (i + 1) % step == 0) {
      progress(static_cast<int>(i + 1));
    }
  }
  return report.Content();
}

ExportResult MakeOutF(const SurveyState& state, const ExportProgress& progress)
{
  if (!HasDesign(state)) {
    throw Refusal("The survey is exported only after a sample design has been saved.");
  }
  const std::string name = OutputName(state, "data.svy");
  ExportResult result;
  result.Path = OutputPath(state, "data.svy");
  try {
    WriteFieldFiles(state, {{result.Path, ComposeSurveyExport(state, progress)}});
    result.Written = true;
  } catch (const Refusal& refusal) {
    result.Reason = refusal.Message();
  }
  result.Label1 = NumberToString(result.Written ? state.SurveySize : 0) + " lines were successfully exported";
  result.Label2 = name + (result.Written ? " output signal data file created" : " could not be written");
  return result;
}

bool ExportTimer::Tick()
{
  ++TickCount;
  if (TickCount != 2 || Done) {
    return false;
  }
  TickCount = 0;
  Done = true;
  return true;
}

}  // namespace veln
