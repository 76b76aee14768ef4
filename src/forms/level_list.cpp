#include "forms/level_list.h"

#include "toolkit/number_text.h"
#include "toolkit/text_report.h"

#include <cstddef>

namespace veln {

namespace {

constexpr int TextColumn = 5;
constexpr int FirstLevelColumn = 15;
constexpr int SecondLevelColumn = 25;

void PutHead(TextReport& report, const LevelListing& listing)
{
  const DesignSettings& settings = listing.Settings;
  const int order = settings.Size == DesignSize::Limited ? 1 : 2;
  report.EndLine();
  report.At(TextColumn).Line("CC-RSD: Order" + NumberToString(order));
  report.At(TextColumn).Line("(" + NumberToString(listing.SignalCount) + " signal data columns used )");
  report.EndLine();
  report.At(TextColumn)
      .Text("D-Factor Value:")
      .At(SecondLevelColumn)
      .Line(FormatNumber(settings.DFactor, "0.00"));
  report.At(TextColumn)
      .Text("Sample Size:")
      .At(SecondLevelColumn)
      .Line(GeneralForm(SampleSize(settings.Size, settings.IncludeSupportSites)));
  if (listing.Parsing) {
    report.At(TextColumn).Line("Data Parsing / Stratification Invoked");
  }
  report.EndLine();
  report.At(TextColumn).Text("D-Point").At(FirstLevelColumn).Line("Design Level(s)");
  report.EndLine();
}

void PutLevels(TextReport& report, const LevelListing& listing)
{
  const DesignLevels levels = InitDLevels(listing.Settings.Size, listing.Settings.DFactor);
  for (int point = 1; point <= TargetPoints(listing.Settings.Size); ++point) {
    report.At(TextColumn).Text(NumberToString(point));
    int column = FirstLevelColumn;
    for (const double level :
         TargetLevels(levels.at(static_cast<std::size_t>(point) - 1), listing.SignalCount)) {
      report.At(column).Text(NumberToString(RoundByFormat(level, "0.00")));
      column = SecondLevelColumn;
    }
    report.EndLine();
  }
}

void PutNotes(TextReport& report, const LevelListing& listing)
{
  report.EndLine();
  if (listing.Settings.IncludeSupportSites) {
    report.At(TextColumn).Line("+ " + Counted(SupportSites(listing.Settings.Size), "spatial support site"));
  }
  report.EndLine();
  if (listing.TransitionCounts) {
    report.At(TextColumn).Line("Note: Transition Analysis invoked");
    report.At(TextColumn).Line("TA adjustments will be applied during ");
    report.At(TextColumn).Line("sample site selection process...");
  }
}

}  // namespace

std::string ListDLevels(const LevelListing& listing)
{
  TextReport report;
  PutHead(report, listing);
  PutLevels(report, listing);
  PutNotes(report, listing);
  return report.Content();
}

}  // namespace veln
