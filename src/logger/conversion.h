#pragma once

#include "logger/cleaning.h"
#include "logger/row_finding.h"
#include "toolkit/advice.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace veln {

/// Bounds of a survey's size.
inline constexpr std::size_t FewestSurveySites = 50;
inline constexpr std::size_t MostSurveySites = 30'000;

/// A signal of the sites, in its own units.
struct SignalSummary {
  std::string Label, Unit;
  double Mean = 0, Deviation = 0;  ///< sample deviation, n - 1
  double Minimum = 0, Maximum = 0;
  std::size_t NonPositive = 0;          ///< sites of 0 or less
  std::size_t NonPositiveReadings = 0;  ///< readings of 0 or less, before any were joined
};

/// A place among the files: file by index, line from 1.
struct SourceLine {
  std::size_t File = 0;
  std::size_t Line = 0;
};

/// How many lines had one fate, and the first of them.
struct FateCountOf {
  std::size_t Count = 0;
  std::vector<SourceLine> First;
};

/// Where the lines of all files went. Sites, joined, dropped, header, comment and blank lines add up to those
/// read.
struct LineAccount {
  std::size_t Lines = 0, Header = 0, Comments = 0, Blank = 0, NotEveryNth = 0;
  std::array<FateCountOf, FateCount> Fates;  ///< by `Fate`

  [[nodiscard]] std::size_t Sites() const { return Fates[0].Count; }
  [[nodiscard]] std::size_t Joined() const;
  [[nodiscard]] std::size_t Dropped() const;
};

/// A logger's files made into a survey: the sites in survey order, and all that there is to say of them.
struct Conversion {
  ConversionOptions Options;
  Readings Source;  ///< `Source.Points` are the sites
  CoordinateSystem Crs;
  double JumpMetres = 0;
  std::vector<Polygon> Boundary, Exclusions;
  std::size_t ReadingsTaken = 0;  ///< that reached the step of values of 0 or less
  RowSummary Rows;
  std::vector<SignalSummary> Signals;
  LineAccount Account;
  PlanePoint Low, High;  ///< corners of the sites' box
  double MedianSpacing = 0;
  std::vector<Advice> Advices;
  std::vector<std::string> Notes;
  std::vector<DroppedPlace> Dropped;  ///< where they were asked for

  [[nodiscard]] const std::vector<TrackPoint>& Sites() const { return Source.Points; }
};

/// Makes a survey of readings: positions to metres, then jumps, lag, offset, boundary, values of 0 or less,
/// repeats, median, rows and turns, thinning, in this order; a line counts under the first that takes it.
/// With `keepDropped` the places of dropped sites are kept for a map. Throws Refusal for what the readings do
/// not allow, and for fewer than 50 or more than 30,000 sites.
Conversion Convert(Readings readings, const ConversionOptions& options, bool keepDropped = false);

/// The units that the survey's run works in: "mS/m" or "dS/m" where a text tells one of them in any spelling,
/// else empty.
std::string KnownUnits(const std::string& text);

}  // namespace veln
