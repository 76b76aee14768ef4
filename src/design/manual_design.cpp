#include "design/manual_design.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/text_report.h"
#include "workspace/project.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace veln {

namespace {

constexpr const char* Suffix = "ugsd.txt";
constexpr const char* SignalFormat = "0.00";
constexpr const char* CoordinateFormat = "########0.0###";

void PutSite(TextReport& report, const SurveyState& state, std::size_t i)
{
  const bool two = state.SignalCount == 2;
  report.At(3).Number(state.SiteId[i]).At(15).Number(state.Signal1[i], SignalFormat);
  if (two) {
    report.At(23).Number(state.Signal2[i], SignalFormat);
  }
  report.At(31).Number(state.Decorr1[i], SignalFormat);
  if (two) {
    report.At(40).Number(state.Decorr2[i], SignalFormat);
  }
  report.At(50)
      .Number(state.CoordX[i], CoordinateFormat)
      .At(65)
      .Number(state.CoordY[i], CoordinateFormat)
      .EndLine();
}

std::string ComposeManualDesign(const SurveyState& state, const std::vector<std::size_t>& sites,
                                const Clock& clock)
{
  TextReport report;
  report.Line("Full Path:    " + OutputPath(state, Suffix).string())
      .Line("Project:      " + state.ProjectName)
      .Line("File Name:    " + OutputName(state, Suffix))
      .BlankLines()
      .Line("Date & Time:  " + clock())
      .Line("Field Desc:   " + state.FieldDescription)
      .BlankLines()
      .Line("Sample Size:  " + FormatNumber(static_cast<double>(sites.size()), "0"))
      .BlankLines(3)
      .Line("Target Information for User Generated Sampling Design")
      .BlankLines()
      .Line(state.SignalCount == 1
                ? "  Site ID     s1_sig          Ds1-STD            X-Coordinate   Y-Coordinate "
                : "  Site ID     s1_sig  s2_sig  Ds1-STD  Ds2-STD   X-Coordinate   Y-Coordinate ")
      .BlankLines();
  for (const std::size_t i : sites) {
    PutSite(report, state, i);
  }
  return report.Content();
}

}  // namespace

std::optional<std::size_t> FindSite(const SurveyState& state, double siteNumber)
{
  const auto found =
      std::ranges::find_if(state.SiteId, [siteNumber](std::int16_t id) { return id == siteNumber; });
  if (found == state.SiteId.end()) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(found - state.SiteId.begin());
}

std::string UnknownSiteWarning(double siteNumber)
{
  return " Warning! Site " + NumberToString(siteNumber) + " does not exist.";
}

std::vector<std::size_t> SelectedSites(const SurveyState& state)
{
  std::vector<std::size_t> sites;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (state.SiteStatus[i] == site_status::Selected) {
      sites.push_back(i);
    }
  }
  return sites;
}

bool SelectSite(SurveyState& state, std::size_t site)
{
  return std::exchange(state.SiteStatus.at(site), site_status::Selected) != site_status::Selected;
}

bool UnselectSite(SurveyState& state, std::size_t site)
{
  return std::exchange(state.SiteStatus.at(site), site_status::Free) != site_status::Free;
}

std::filesystem::path SaveUDSamInfo(SurveyState& state, Dialogs& dialogs, const Clock& clock)
{
  const std::vector<std::size_t> sites = SelectedSites(state);
  const std::filesystem::path path = OutputPath(state, Suffix);
  try {
    WriteFieldFiles(state, {{path, ComposeManualDesign(state, sites, clock)}});
  } catch (const Refusal& refusal) {
    throw Refusal("Warning: could not create output UGSD file...\n" + refusal.Message());
  }
  state.ManualDesignSize = static_cast<int>(sites.size());
  dialogs.Inform("User generated sampling design information has been saved to " + OutputName(state, Suffix));
  state.ManualDesignDone = true;
  state.Menu.Apply(WorkflowEvent::ManualDesignSaved);
  return path;
}

}  // namespace veln
