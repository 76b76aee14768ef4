#include "design/design_files.h"

#include "toolkit/number_text.h"
#include "toolkit/text_report.h"
#include "workspace/project.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace veln {

namespace {

constexpr const char* CoordinateFormat = "########0.0#####";
constexpr const char* LevelFormat = "0.00";

/// What the three files of a design are composed from. The statuses are those after the saving.
struct DesignReport {
  const SurveyState& State;
  const DesignToSave& Save;
  int Number;
  std::vector<std::int16_t> SiteStatus;
};

void PutHead(TextReport& report, const DesignReport& design, const std::string& suffix, const Clock& clock)
{
  const DesignSettings& settings = design.Save.Made.Settings;
  report.Line("Full Path:    " + OutputPath(design.State, suffix).string())
      .Line("Project:      " + design.State.ProjectName)
      .Line("File Name:    " + OutputName(design.State, suffix))
      .BlankLines()
      .Line("Date & Time:  " + clock())
      .Line("Field Desc:   " + design.State.FieldDescription)
      .BlankLines()
      .Line("Sample Size:  " + FormatNumber(design.Save.Made.PointCount(), "0") + "   " +
            design.Save.SurveySizeNote)
      .Line("D-Factor Val: " + FormatNumber(settings.DFactor, "0.00"))
      .Line("Opt-Criteria: " + FormatNumber(design.Save.Made.OptCriteria, "0.00"))
      .Line("Loop Count:   " + FormatNumber(design.Save.Made.LoopCount, "0"))
      .BlankLines();
  if (settings.Parsing.ParseDenominator != 1) {
    report
        .Line("Parsing Algorithm Empolyed:  forced data stratification using Strata #" +
              PrintedNumber(settings.Parsing.ParseModulus + 1))
        .BlankLines();
  }
  report.BlankLines();
  report.Line("Target Information for SRS Sampling Design # " + FormatNumber(design.Number, "0"));
  if (TransitionCounts(design.State, settings.IgnoreTA)) {
    report.Line("Note: transition scores incorporated into design optimization...");
  }
  report.BlankLines();
}

void PutTarget(TextReport& report, const DesignPoint& point)
{
  report.At(15);
  if (point.Support) {
    report.Text("support site");
    return;
  }
  report.Number(point.Target[0], LevelFormat);
  if (point.Target.size() > 1) {
    report.At(23).Number(point.Target[1], LevelFormat);
  }
}

void PutTargetRow(TextReport& report, const SurveyState& state, const DesignPoint& point, std::size_t i)
{
  report.At(3).Number(state.SiteId[i]);
  PutTarget(report, point);
  report.At(31).Number(state.Decorr1[i], LevelFormat);
  if (state.SignalCount == 2) {
    report.At(40).Number(state.Decorr2[i], LevelFormat);
  }
  report.At(50)
      .Number(point.Site.X, CoordinateFormat)
      .At(65)
      .Number(point.Site.Y, CoordinateFormat)
      .EndLine();
}

/// One row for every site that carries the code of a point's site, which marks it as a member of the design.
void PutTargetTable(TextReport& report, DesignReport& design)
{
  report.Line(design.State.SignalCount == 1
                  ? "  Site ID     Design Level    Ds1-STD            X-Coordinate   Y-Coordinate "
                  : "  Site ID     Design Levels   Ds1-STD  Ds2-STD   X-Coordinate   Y-Coordinate ");
  report.BlankLines();
  for (const DesignPoint& point : PointsOf(design.Save.Made)) {
    for (std::size_t i = 0; i < design.State.SiteId.size(); ++i) {
      if (design.State.SiteId[i] == point.Site.SiteId) {
        PutTargetRow(report, design.State, point, i);
        design.SiteStatus[i] = static_cast<std::int16_t>(design.Number);
      }
    }
  }
}

/// The three lists of the chosen sites, in survey order: a part of the report, and the two files for the
/// field.
struct SiteLists {
  TextReport& Report;
  TextReport Gps;
  TextReport Xrs;
};

void PutListedSite(SiteLists& lists, const SurveyState& state, std::size_t i, int sample)
{
  const bool rows = IsTransect(state);
  const std::string position = FormatNumber(state.CoordX[i], CoordinateFormat) + ", " +
                               FormatNumber(state.CoordY[i], CoordinateFormat) + ", ";
  const std::string siteId = FormatNumber(state.SiteId[i], "0");
  lists.Report.At(5).Number(sample).At(15).Number(state.SiteId[i]);
  if (rows) {
    lists.Report.At(25).Number(state.RowNumber[i]);
  }
  lists.Report.EndLine();
  lists.Gps.At(2).Line(position + siteId + (rows ? ", " + FormatNumber(state.RowNumber[i], "0") : ""));
  lists.Xrs.At(2).Line(position + "\"" + state.FieldId + "-" + siteId + "\"");
}

void PutSiteLists(SiteLists& lists, const DesignReport& design)
{
  const SurveyState& state = design.State;
  lists.Report.BlankLines(2).Line("Ordered Listing of Sample Sites").BlankLines();
  lists.Report.Line(IsTransect(state) ? "  Sample #    Site ID   Row #" : "  Sample #    Site ID")
      .BlankLines();
  int sample = 0;
  for (std::size_t i = 0; i < design.SiteStatus.size(); ++i) {
    if (design.SiteStatus[i] == design.Number) {
      PutListedSite(lists, state, i, ++sample);
    }
  }
}

/// `UpdateSSDInfo`: the design's row in the panel of designs.
void UpdateSSDInfo(SurveyState& state, const DesignToSave& save)
{
  state.Designs.at(static_cast<std::size_t>(state.DesignCount) - 1) = {save.Made.PointCount(),
                                                                       save.Made.OptCriteria};
}

}  // namespace

std::vector<std::filesystem::path> SaveSamInfo(SurveyState& state, const DesignToSave& save, Dialogs& dialogs,
                                               const Clock& clock)
{
  DesignReport design{state, save, state.DesignCount + 1, state.SiteStatus};
  const std::string digit = FormatNumber(design.Number, "0");
  const std::string reportSuffix = "rsd" + digit + ".txt";
  const std::vector<std::filesystem::path> paths = {OutputPath(state, reportSuffix),
                                                    OutputPath(state, "gps" + digit + ".txt"),
                                                    OutputPath(state, "xrs" + digit + ".asc")};
  TextReport report;
  PutHead(report, design, reportSuffix, clock);
  PutTargetTable(report, design);
  SiteLists lists{report, {}, {}};
  PutSiteLists(lists, design);
  WriteFieldFiles(
      state,
      {{paths[0], report.Content()}, {paths[1], lists.Gps.Content()}, {paths[2], lists.Xrs.Content()}});

  state.DesignCount = design.Number;
  state.SiteStatus = std::move(design.SiteStatus);
  UpdateSSDInfo(state, save);
  state.Menu.Apply(WorkflowEvent::DesignSaved);
  dialogs.Inform("SRSD sampling design information has been saved to " + OutputName(state, reportSuffix));
  return paths;
}

}  // namespace veln
