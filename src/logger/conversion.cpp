#include "logger/conversion.h"

#include "logger/boundary_file.h"
#include "logger/conversion_summary.h"
#include "logger/grouped_number.h"
#include "logger/survey_position.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <utility>

namespace veln {

namespace {

/// One conversion, step by step.
class Converter {
 public:
  Converter(Readings readings, const ConversionOptions& options, bool keepDropped)
      : track_{result_.Source.Points, result_.Source.Fates, keepDropped ? &result_.Dropped : nullptr}
  {
    result_.Options = options;
    result_.Source = std::move(readings);
    result_.Notes = result_.Source.Notes;
  }

  Conversion Run()
  {
    Place();
    Clean();
    JoinRepeats(track_, Options().StillMetres, Options().RepeatsAs);
    HandleRows();
    Thin();
    FinishAccount(result_);
    RequireEnoughSites();
    Summarise(result_);
    Advise(result_);
    return std::move(result_);
  }

 private:
  [[nodiscard]] const ConversionOptions& Options() const { return result_.Options; }

  void Place()
  {
    Readings& source = result_.Source;
    result_.Crs = SystemOf(source, Options().Crs);
    ProjectReadings(source, result_.Crs);
    for (const auto& path : Options().Boundaries) {
      Append(result_.Boundary, ReadAreas(path, result_.Crs));
    }
    for (const auto& path : Options().Exclusions) {
      Append(result_.Exclusions, ReadAreas(path, result_.Crs));
    }
    if (!source.Fixes.empty()) {
      DropJumpingFixes(source.Fixes, Options().JumpMetres);
    }
    PlaceReadings(track_, source.Fixes, source, Options().LagSeconds);
    if (!source.RowColumn || Options().Rows.From != RowsFrom::Column) {
      for (TrackPoint& point : source.Points) {
        point.Row = 0;
      }
    }
  }

  static void Append(std::vector<Polygon>& all, std::vector<Polygon> more)
  {
    all.insert(all.end(), more.begin(), more.end());
  }

  void Clean()
  {
    result_.JumpMetres = JumpDistance(track_.Points, Options().JumpMetres);
    DropJumps(track_, result_.JumpMetres);
    if (Options().LagSeconds != 0) {
      ShiftByLag(track_, Options().LagSeconds, result_.Source);
    }
    if (const auto& offset = Options().Offset) {
      ShiftByOffset(track_, *offset);
    }
    DropOutside(track_, result_.Boundary, result_.Exclusions, Options().InsetMetres);
    CountNonPositive(result_);
    JudgeNonPositive(track_, Options().NonPositives, result_.Source);
  }

  /// Rows are known before the median, which stays within them, and turns are dropped behind it.
  void HandleRows()
  {
    result_.Rows = FindRows(track_.Points, Options().Rows);
    SmoothByMedian(track_.Points, result_.Source.SignalCount, Options().MedianSites);
    if (!result_.Rows.HasRows) {
      return;
    }
    if (Options().Rows.KeepTurns.value_or(false)) {
      KeepTurns(track_.Points);
    } else {
      track_.Drop([this](std::size_t i) { return track_.Points[i].Row == 0 ? Fate::Turn : Fate::Site; });
    }
  }

  void Thin()
  {
    ThinPath(track_, Options().ThinMetres);
    if (track_.Points.size() > MostSurveySites) {
      throw Refusal("The files make " + GroupedNumber(track_.Points.size()) +
                    " sites; a survey has at most 30,000. --thin " + FittingThin() + " makes it fit.");
    }
  }

  /// The least thinning, in tenths of metres, that leaves as many sites as there may be.
  [[nodiscard]] std::string FittingThin() const
  {
    constexpr double Tenths = 10;
    std::size_t fits = 1;
    const auto sites = [this](std::size_t tenths) {
      return CountThinned(track_.Points, static_cast<double>(tenths) / Tenths);
    };
    constexpr std::size_t Longest = 1'000'000;
    while (fits < Longest && sites(fits) > MostSurveySites) {
      fits *= 2;
    }
    std::size_t tooShort = fits / 2;
    while (fits - tooShort > 1) {
      const std::size_t middle = (fits + tooShort) / 2;
      (sites(middle) > MostSurveySites ? tooShort : fits) = middle;
    }
    return ShortestForm(static_cast<double>(fits) / Tenths);
  }

  void RequireEnoughSites() const
  {
    if (track_.Points.size() >= FewestSurveySites) {
      return;
    }
    std::string text = "The files make " + GroupedNumber(track_.Points.size()) +
                       " sites; a survey needs at least 50.\n" + AccountText(result_);
    for (const FileAccount& file : result_.Source.Files) {
      text += file.FirstFault.empty() ? "" : file.FirstFault + "\n";
    }
    text.pop_back();
    throw Refusal(text);
  }

  Conversion result_;
  Track track_;
};

}  // namespace

std::string KnownUnits(const std::string& text)
{
  std::string letters;
  for (const char c : text) {
    if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
      letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
  }
  if (letters == "msm") {
    return "mS/m";
  }
  return letters == "dsm" ? "dS/m" : "";
}

Conversion Convert(Readings readings, const ConversionOptions& options, bool keepDropped)
{
  return Converter(std::move(readings), options, keepDropped).Run();
}

}  // namespace veln
