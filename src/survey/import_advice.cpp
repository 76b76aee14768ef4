#include "survey/import_advice.h"

#include "toolkit/number_text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace veln {

namespace {

/// Least and greatest of a coordinate.
struct Range {
  double Low = 0, High = 0;

  [[nodiscard]] bool Within(double most) const { return Low >= -most && High <= most; }
  [[nodiscard]] double Width() const { return High - Low; }
};

Range RangeOf(const std::vector<double>& values)
{
  const auto [low, high] = std::ranges::minmax_element(values);
  return {*low, *high};
}

bool LooksLikeDegrees(const SurveyState& state)
{
  constexpr double Latitudes = 90;
  constexpr double Longitudes = 180;
  constexpr double LargestField = 0.5;
  const Range x = RangeOf(state.CoordX);
  const Range y = RangeOf(state.CoordY);
  const bool degrees =
      (x.Within(Longitudes) && y.Within(Latitudes)) || (x.Within(Latitudes) && y.Within(Longitudes));
  return degrees && x.Width() < LargestField && y.Width() < LargestField;
}

/// Site IDs that stand at more than one site.
std::size_t RepeatedIds(const SurveyState& state)
{
  auto ids = state.SiteId;
  std::ranges::sort(ids);
  std::size_t repeated = 0;
  for (std::size_t i = 1; i < ids.size(); ++i) {
    const bool second = ids[i] == ids[i - 1] && (i == 1 || ids[i] != ids[i - 2]);
    repeated += second ? 1 : 0;
  }
  return repeated;
}

std::size_t RepeatedPositions(const SurveyState& state)
{
  std::size_t repeated = 0;
  for (std::size_t i = 1; i < state.CoordX.size(); ++i) {
    repeated += state.CoordX[i] == state.CoordX[i - 1] && state.CoordY[i] == state.CoordY[i - 1] ? 1 : 0;
  }
  return repeated;
}

std::string Counted(std::size_t number)
{
  return GeneralForm(static_cast<double>(number));
}

}  // namespace

std::vector<Advice> AdviseImport(const SurveyState& state)
{
  constexpr std::size_t OneInTwenty = 20;
  std::vector<Advice> advices;
  if (LooksLikeDegrees(state)) {
    advices.push_back(
        {"degrees", "coordinates look like degrees; distances will be wrong: convert the file"});
  }
  if (const std::size_t ids = RepeatedIds(state); ids > 0) {
    advices.push_back({"site-ids-repeated", Counted(ids) +
                                                (ids == 1 ? " site ID occurs" : " site IDs occur") +
                                                " more than once; a chosen ID stands for all its sites"});
  }
  const std::size_t positions = RepeatedPositions(state);
  if (positions * OneInTwenty > state.CoordX.size()) {
    advices.push_back({"positions-repeated", Counted(positions) + " of " + Counted(state.CoordX.size()) +
                                                 " positions repeat the one before"});
  }
  return advices;
}

}  // namespace veln
