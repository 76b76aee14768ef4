#include "logger/conversion_summary.h"

#include "logger/grouped_number.h"
#include "toolkit/number_text.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace veln {

namespace {

constexpr std::size_t MostFirstLines = 5;

std::string PadTo(const std::string& text, std::size_t width)
{
  const std::size_t length = CharacterCount(text);
  return text + std::string(length < width ? width - length : 1, ' ');
}

std::string CountColumn(std::size_t count)
{
  constexpr std::size_t Width = 11;
  const std::string text = GroupedNumber(count);
  return std::string(text.size() < Width ? Width - text.size() : 1, ' ') + text;
}

/// "lines 4, 17, 18 …", with the file's name where there are several.
std::string FirstLines(const Conversion& conversion, const FateCountOf& fate)
{
  std::string text;
  for (const SourceLine& line : fate.First) {
    const auto& files = conversion.Source.Files;
    const char* heading = fate.Count == 1 ? "line " : "lines ";
    text += text.empty() ? heading : ", ";
    text += (files.size() > 1 ? files[line.File].Path.filename().string() + ":" : "") +
            GeneralForm(static_cast<double>(line.Line));
  }
  return text + (fate.Count > fate.First.size() ? ", …" : "");
}

std::string AccountLine(const std::string& name, std::size_t count, const std::string& more = "")
{
  constexpr std::size_t NameWidth = 34;
  return count == 0
             ? ""
             : "  " + PadTo(name, NameWidth) + CountColumn(count) + (more.empty() ? "" : "  " + more) + "\n";
}

SignalSummary SummaryOf(const std::vector<TrackPoint>& sites, std::size_t signal)
{
  SignalSummary summary;
  const auto count = static_cast<double>(sites.size());
  const auto value = [signal](const TrackPoint& site) { return site.Signals.at(signal); };
  summary.Mean = std::accumulate(sites.begin(), sites.end(), 0.0,
                                 [&](double sum, const TrackPoint& site) { return sum + value(site); }) /
                 count;
  double squares = 0;
  for (const TrackPoint& site : sites) {
    const double deviation = value(site) - summary.Mean;
    squares += deviation * deviation;
    summary.NonPositive += value(site) > 0 ? 0 : 1;
  }
  summary.Deviation = std::sqrt(squares / (count - 1));
  const auto [low, high] = std::ranges::minmax(sites, {}, value);
  summary.Minimum = value(low);
  summary.Maximum = value(high);
  return summary;
}

double MedianSpacing(const std::vector<TrackPoint>& sites)
{
  std::vector<double> steps;
  for (std::size_t i = 1; i < sites.size(); ++i) {
    if (!BeginsPiece(sites[i - 1], sites[i])) {
      steps.push_back(Distance(sites[i - 1], sites[i]));
    }
  }
  if (steps.empty()) {
    return 0;
  }
  const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
  std::ranges::nth_element(steps, middle);
  return *middle;
}

/// Coordinates in the range of degrees, of a field so small that as metres it would fit in a room.
bool LooksLikeDegrees(const Conversion& conversion)
{
  constexpr double HalfDegree = 0.5;
  const auto within = [](double low, double high, AngleAxis axis) {
    return IsInRange(low, axis) && IsInRange(high, axis);
  };
  const PlanePoint& low = conversion.Low;
  const PlanePoint& high = conversion.High;
  const bool degrees =
      (within(low.X, high.X, AngleAxis::Longitude) && within(low.Y, high.Y, AngleAxis::Latitude)) ||
      (within(low.X, high.X, AngleAxis::Latitude) && within(low.Y, high.Y, AngleAxis::Longitude));
  return degrees && high.X - low.X < HalfDegree && high.Y - low.Y < HalfDegree;
}

}  // namespace

std::size_t LineAccount::Joined() const
{
  return Fates.at(static_cast<std::size_t>(Fate::Repeat)).Count +
         Fates.at(static_cast<std::size_t>(Fate::Thinned)).Count;
}

std::size_t LineAccount::Dropped() const
{
  std::size_t dropped = NotEveryNth;
  for (std::size_t i = 0; i < Fates.size(); ++i) {
    dropped += IsDropped(static_cast<Fate>(i)) ? Fates.at(i).Count : 0;
  }
  return dropped;
}

void CountNonPositive(Conversion& conversion)
{
  conversion.ReadingsTaken = conversion.Source.Points.size();
  conversion.Signals.resize(static_cast<std::size_t>(conversion.Source.SignalCount));
  for (const TrackPoint& point : conversion.Source.Points) {
    for (std::size_t i = 0; i < conversion.Signals.size(); ++i) {
      conversion.Signals[i].NonPositiveReadings += point.Signals.at(i) > 0 ? 0 : 1;
    }
  }
}

void FinishAccount(Conversion& conversion)
{
  LineAccount& account = conversion.Account;
  const Readings& source = conversion.Source;
  for (std::size_t f = 0; f < source.Files.size(); ++f) {
    const FileAccount& file = source.Files[f];
    account.Lines += file.Lines;
    account.Header += file.Header;
    account.Comments += file.Comments;
    account.Blank += file.Blank;
    account.NotEveryNth += file.NotEveryNth;
    for (std::size_t i = file.FirstReading; i < file.FirstReading + file.ReadingCount; ++i) {
      FateCountOf& fate = account.Fates.at(static_cast<std::size_t>(source.Fates[i]));
      ++fate.Count;
      if (fate.First.size() < MostFirstLines) {
        fate.First.push_back({f, source.Lines[i]});
      }
    }
  }
}

void Summarise(Conversion& conversion)
{
  const std::vector<TrackPoint>& sites = conversion.Sites();
  for (std::size_t i = 0; i < conversion.Signals.size(); ++i) {
    const std::size_t readings = conversion.Signals[i].NonPositiveReadings;
    conversion.Signals[i] = SummaryOf(sites, i);
    conversion.Signals[i].NonPositiveReadings = readings;
    conversion.Signals[i].Label = conversion.Source.Labels.at(i);
    conversion.Signals[i].Unit = conversion.Source.Units.at(i);
  }
  const auto [west, east] = std::ranges::minmax(sites, {}, &TrackPoint::X);
  const auto [south, north] = std::ranges::minmax(sites, {}, &TrackPoint::Y);
  conversion.Low = {west.X, south.Y};
  conversion.High = {east.X, north.Y};
  conversion.MedianSpacing = MedianSpacing(sites);
}

void Advise(Conversion& conversion)
{
  const auto advise = [&](const char* code, const std::string& text) {
    conversion.Advices.push_back({code, text});
  };
  if (!conversion.Source.Geographic && LooksLikeDegrees(conversion)) {
    advise("degrees",
           "coordinates look like degrees; distances will be wrong: name the columns by --lat and --lon");
  } else if (!conversion.Source.Geographic && !conversion.Options.Crs) {
    advise("no-crs",
           "nothing tells what the coordinates are; they are taken as local metres (--crs names them)");
  }
  for (const SignalSummary& signal : conversion.Signals) {
    if (signal.NonPositiveReadings > 0) {
      advise("nonpositive", GroupedNumber(signal.NonPositiveReadings) + " of " +
                                GroupedNumber(conversion.ReadingsTaken) + " readings of " + signal.Label +
                                " are 0 or less");
    }
  }
  const std::string& unit = conversion.Source.Units[0];
  if (conversion.Source.SignalCount == 2 && conversion.Source.Units[1] != unit) {
    advise("units-differ",
           "the signals are in different units: \"" + unit + "\" and \"" + conversion.Source.Units[1] + "\"");
  }
}

std::string AccountText(const Conversion& conversion)
{
  const LineAccount& account = conversion.Account;
  std::string text = AccountLine("lines read", account.Lines) + AccountLine("header", account.Header) +
                     AccountLine("comment", account.Comments) + AccountLine("blank", account.Blank) +
                     AccountLine("sites", account.Sites());
  text += AccountLine("dropped: not every N-th", account.NotEveryNth);
  for (std::size_t i = 1; i < account.Fates.size(); ++i) {
    const auto fate = static_cast<Fate>(i);
    const FateCountOf& counted = account.Fates.at(i);
    text += AccountLine((IsDropped(fate) ? "dropped: " : "joined: ") + std::string(FateText(fate)),
                        counted.Count, FirstLines(conversion, counted));
  }
  return text;
}

}  // namespace veln
