#include "survey/survey_import.h"

#include "survey/import_fault.h"
#include "survey/raw_items.h"
#include "survey/statistics.h"
#include "toolkit/file_store.h"
#include "toolkit/refusal.h"
#include "toolkit/utf8.h"

#include <system_error>
#include <utility>

namespace veln {

namespace {

constexpr const char* Aborted = "\nData import process has been aborted!";

/// A raw survey file, as much of it as can matter: up to the record that is one too many. What has no end, or
/// none within reason, is no survey.
std::string ReadRawFile(const std::string& fileName)
{
  constexpr std::size_t MostBytes = std::size_t{64} << 20U;
  std::string content;
  LineCounter lines;
  ReadBlocks(fileName, [&](std::string_view block) {
    content += block;
    lines.Take(block);
    if (content.size() > MostBytes && lines.Count() <= MostSites) {
      throw Refusal(fileName + "\nis no survey: more than 64 MB before record 30,001.");
    }
    return lines.Count() <= MostSites;
  });
  return content;
}

/// The records of the file; a refusal tells where the fault lies.
RawSurvey LoadRecords(const ImportRequest& request, const ImportProgress& progress)
{
  const std::string content = request.Content ? *request.Content : ReadRawFile(request.FileName);
  try {
    return DataLoad(content, request.Layout, request.Log, progress);
  } catch (const Refusal& refusal) {
    throw Refusal(refusal.Message(), refusal.Kind(), ImportFault(content, request.Layout, request.Log));
  }
}

/// The statistics panel of a survey must be complete: refuses signals for which it can't be.
void TestSignals(const RawSurvey& survey, const ImportRequest& request)
{
  const bool two = request.Layout.SecondSignal;
  const std::array<const std::vector<double>*, 2> columns = {&survey.Signal1, &survey.Signal2};
  for (std::size_t i = 0; i < (two ? 2U : 1U); ++i) {
    const std::string name = "Error!  The signal column \"" + request.Labels.at(i) + "\" ";
    if (two && IsConstant(*columns.at(i))) {
      throw Refusal(name +
                    "is constant: all its values are equal,\nso that two signals can not be compared." +
                    Aborted);
    }
    if (!IsFinite(DescribeSignal(*columns.at(i)))) {
      throw Refusal(name + "holds values too large for its statistics." + Aborted);
    }
  }
  if (two && !Correlation(survey.Signal1, survey.Signal2)) {
    throw Refusal(std::string("Error!  The values of the two signal columns are too large or too small\n"
                              "for their correlation to be computed.") +
                  Aborted);
  }
}

}  // namespace

bool IsNoLabelCharacter(char32_t character)
{
  return character == U'"' || IsControlCharacter(character);
}

void ImportSurvey(SurveyState& state, const ImportRequest& request, const ImportProgress& progress)
{
  state.Menu.Require(MenuEntry::mnuImport, "Importing a survey");
  std::error_code failure;
  if (!std::filesystem::exists(request.FileName, failure)) {
    throw Refusal("Error! File not found! Please re-enter filename information...");
  }
  RawSurvey survey = LoadRecords(request, progress);
  TestSignals(survey, request);

  state.SurveySize = static_cast<int>(survey.SiteId.size());
  state.SignalCount = request.Layout.SecondSignal ? 2 : 1;
  state.SignalLabel = request.Labels;
  state.SignalUnits = request.Units;
  state.LogTransform = request.Log;
  survey.SiteStatus.assign(survey.SiteId.size(), site_status::Free);
  static_cast<SiteColumns&>(state) = std::move(survey);
  state.ImportFileName = request.FileName;
  state.Kind = request.Layout.Transect ? SurveyKind::Transect : SurveyKind::Grid;
  UpdateSignalStats(state);
  state.Menu.Apply(WorkflowEvent::SurveyImported);
}

}  // namespace veln
