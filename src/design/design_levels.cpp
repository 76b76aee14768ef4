#include "design/design_levels.h"

#include "toolkit/number_text.h"
#include "toolkit/text_lines.h"
#include "toolkit/text_report.h"

#include <cstddef>
#include <string_view>

namespace veln {

namespace {

constexpr std::size_t FirstInnerPoint = 10;  // index of point 11
constexpr std::size_t OuterOffset = 9;       // an inner point's outer one stands nine places before it

/// Column 0 of all points; columns 1 and 2 of points 1 to 10, the inner figure follows from them.
constexpr DesignLevels BaseLevels = {{{0.75, 0.75, 0},
                                      {2.5, 1.75, 1.75},
                                      {-2.5, -1.75, -1.75},
                                      {1.5, 1.75, -1.75},
                                      {-1.5, -1.75, 1.75},
                                      {2.0, 2.5, 0},
                                      {-2.0, -2.5, 0},
                                      {1.0, 0, 2.5},
                                      {-1.0, 0, -2.5},
                                      {-0.75, -0.75, 0},
                                      {2.25, 0, 0},
                                      {-2.25, 0, 0},
                                      {1.75, 0, 0},
                                      {-1.75, 0, 0},
                                      {1.25, 0, 0},
                                      {-1.25, 0, 0},
                                      {0.5, 0, 0},
                                      {-0.5, 0, 0}}};

constexpr int TextColumn = 5;
constexpr int FirstLevelColumn = 15;
constexpr int SecondLevelColumn = 25;

void PutHead(TextReport& report, const LevelListing& listing)
{
  constexpr double LargestFirstOrder = 6;
  const int order = ParseNumber(listing.LblSS).value_or(0) <= LargestFirstOrder ? 1 : 2;
  report.EndLine();
  report.At(TextColumn).Line("CC-RSD: Order" + NumberToString(order));
  report.At(TextColumn).Line("(" + listing.LblSC + " signal data columns used )");
  report.EndLine();
  report.At(TextColumn).Text("D-Factor Value:").At(SecondLevelColumn).Line(listing.DFactorText);
  report.At(TextColumn).Text("Sample Size:").At(SecondLevelColumn).Line(listing.LblSS);
  if (listing.Parsing) {
    report.At(TextColumn).Line("Data Parsing / Stratification Invoked");
  }
  report.EndLine();
  report.At(TextColumn).Text("D-Point").At(FirstLevelColumn).Line("Design Level(s)");
  report.EndLine();
}

void PutLevels(TextReport& report, const LevelListing& listing, const DesignLevels& levels)
{
  const auto level = [](double value) { return NumberToString(RoundByFormat(value, "0.00")); };
  const auto points = static_cast<std::size_t>(TargetPoints(listing.Size));
  for (std::size_t i = 0; i < points; ++i) {
    const LevelRow& row = levels.at(i);
    report.At(TextColumn).Text(NumberToString(static_cast<double>(i + 1))).At(FirstLevelColumn);
    if (listing.SignalCount == 1) {
      report.Text(level(row[0]));
    } else {
      report.Text(level(row[1])).At(SecondLevelColumn).Text(level(row[2]));
    }
    report.EndLine();
  }
}

void PutNotes(TextReport& report, const LevelListing& listing)
{
  report.EndLine();
  if (listing.IncludeSupportSites) {
    const bool one = listing.Size == DesignSize::Limited;
    report.At(TextColumn).Line(one ? "+ 1 spatial support site" : "+ 2 spatial support sites");
  }
  report.EndLine();
  if (listing.TransitionCounts) {
    report.At(TextColumn).Line("Note: Transition Analysis invoked");
    report.At(TextColumn).Line("TA adjustments will be applied during ");
    report.At(TextColumn).Line("sample site selection process...");
  }
}

std::vector<std::string> SplitLines(std::string_view text)
{
  std::vector<std::string> lines;
  while (!text.empty()) {
    lines.emplace_back(TakeLine(text));
  }
  return lines;
}

}  // namespace

int TargetPoints(DesignSize size)
{
  constexpr std::array<int, 3> Points = {5, 10, 18};
  return Points.at(static_cast<std::size_t>(size));
}

int SupportSites(DesignSize size)
{
  return size == DesignSize::Limited ? 1 : 2;
}

int SampleSize(DesignSize size, bool includeSupportSites)
{
  return TargetPoints(size) + (includeSupportSites ? SupportSites(size) : 0);
}

DesignLevels InitDLevels(DesignSize size, double dFactor)
{
  DesignLevels levels = BaseLevels;
  for (std::size_t i = FirstInnerPoint; i < levels.size(); ++i) {
    levels.at(i)[1] = 0.5 * levels.at(i - OuterOffset)[1];
    levels.at(i)[2] = 0.5 * levels.at(i - OuterOffset)[2];
  }
  if (size == DesignSize::Limited) {
    levels[0] = {0, 0, 0};
  }
  for (LevelRow& row : levels) {
    for (double& level : row) {
      level = level * dFactor;
    }
  }
  return levels;
}

std::vector<std::string> ListDLevels(const LevelListing& listing, const DesignLevels& levels)
{
  TextReport report;
  PutHead(report, listing);
  PutLevels(report, listing, levels);
  PutNotes(report, listing);
  return SplitLines(report.Content());
}

}  // namespace veln
