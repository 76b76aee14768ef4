#include "graphics/map_furniture.h"

#include "toolkit/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

namespace veln {

namespace {

constexpr double Inset = 0.02;  // from the frame, in logical coordinates
constexpr double FontSize = 8;

/// A place for furniture inside the box.
struct Corner {
  bool Right = false;
  bool Bottom = false;
  bool operator==(const Corner&) const = default;
};

struct Block {
  double Width, Height;
};

constexpr Block ArrowBlock{0.14, 0.27};
constexpr double BarHeight = 0.16;
constexpr double BarMargin = 0.03;  // beside the bar
constexpr double LongestBar = 0.48;

DrawPoint TopLeftOf(Corner corner, const Block& block)
{
  const double edge = BoxEdge - Inset;
  return {corner.Right ? edge - block.Width : -edge, corner.Bottom ? edge - block.Height : -edge};
}

/// The corner, in order of liking, in which the fewest sites lie under the block.
Corner EmptiestCorner(const Plot& plot, const PlotView& view, const Block& block,
                      const std::array<Corner, 4>& liking, const std::optional<Corner>& taken)
{
  constexpr double DotReach = 0.025;
  std::array<std::size_t, 4> sites{};
  for (const PlotSite& site : plot.Sites) {
    const DrawPoint at = view.Place(site.At);
    for (std::size_t i = 0; i < liking.size(); ++i) {
      const DrawPoint corner = TopLeftOf(liking.at(i), block);
      const bool inside = at.X >= corner.X - DotReach && at.X <= corner.X + block.Width + DotReach &&
                          at.Y >= corner.Y - DotReach && at.Y <= corner.Y + block.Height + DotReach;
      sites.at(i) += inside ? 1 : 0;
    }
  }
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < liking.size(); ++i) {
    if (liking.at(i) != taken && (!best || sites.at(i) < sites.at(*best))) {
      best = i;
    }
  }
  return liking.at(best.value_or(0));
}

/// A scale bar: its text, its length on the surface and the room that both need.
struct ScaleBar {
  std::string Text;
  double Length;
  Block Room;
};

ScaleBar MakeScaleBar(const PlotAxis& axis, double zoom)
{
  constexpr double CharacterWidth = 0.037;
  const double perUnit = AxisScale(axis.Range).Half() / zoom;
  const double length = RoundLength(LongestBar * perUnit);
  const std::string text = FormatNumber(length, "0.############");
  const double widest = std::max(length / perUnit, CharacterWidth * static_cast<double>(text.size()));
  return {text, length / perUnit, {widest + 2 * BarMargin, BarHeight}};
}

void AddBar(std::vector<DrawMark>& marks, DrawPoint topLeft, const ScaleBar& bar)
{
  constexpr double TextTop = 0.02;
  constexpr double BarDown = 0.12;
  constexpr double TickUp = 0.025;
  const double middle = topLeft.X + bar.Room.Width / 2;
  const double left = middle - bar.Length / 2;
  const double right = middle + bar.Length / 2;
  const double y = topLeft.Y + BarDown;
  const Pen pen{QBColor(0), 2};
  marks.emplace_back(
      BoxMark{topLeft, {topLeft.X + bar.Room.Width, topLeft.Y + bar.Room.Height}, {QBColor(15), 1}, true});
  marks.emplace_back(LineMark{{left, y}, {right, y}, pen});
  marks.emplace_back(LineMark{{left, y}, {left, y - TickUp}, pen});
  marks.emplace_back(LineMark{{right, y}, {right, y - TickUp}, pen});
  marks.emplace_back(
      TextMark{{middle, topLeft.Y + TextTop}, bar.Text, QBColor(0), FontSize, false, TextAnchor::Middle});
}

void AddArrow(std::vector<DrawMark>& marks, DrawPoint topLeft)
{
  constexpr double TextTop = 0.01;
  constexpr double Tip = 0.075;
  constexpr double Foot = 0.25;
  constexpr double HeadDown = 0.06;
  constexpr double HeadSide = 0.03;
  const double x = topLeft.X + ArrowBlock.Width / 2;
  const DrawPoint tip{x, topLeft.Y + Tip};
  const Pen pen{QBColor(0), 2};
  marks.emplace_back(BoxMark{
      topLeft, {topLeft.X + ArrowBlock.Width, topLeft.Y + ArrowBlock.Height}, {QBColor(15), 1}, true});
  marks.emplace_back(LineMark{{x, topLeft.Y + Foot}, tip, pen});
  marks.emplace_back(LineMark{tip, {x - HeadSide, tip.Y + HeadDown}, pen});
  marks.emplace_back(LineMark{tip, {x + HeadSide, tip.Y + HeadDown}, pen});
  marks.emplace_back(TextMark{{x, topLeft.Y + TextTop}, "N", QBColor(0), FontSize, true, TextAnchor::Middle});
}

}  // namespace

bool NorthArrowOffered(const SurveyState& state)
{
  return state.Orientation.AsSurveyed();
}

double RoundLength(double longest)
{
  const double power = std::pow(10.0, std::floor(std::log10(longest)));
  for (const double step : {10.0, 5.0, 2.0}) {
    if (step * power <= longest) {
      return step * power;
    }
  }
  return power;
}

std::vector<DrawMark> FurnitureMarks(const Plot& plot, const PlotView& view, const MapFurniture& furniture)
{
  constexpr Corner TopLeft{false, false};
  constexpr Corner TopRight{true, false};
  constexpr Corner BottomLeft{false, true};
  constexpr Corner BottomRight{true, true};
  std::vector<DrawMark> marks;
  if (!plot.FieldMap) {
    return marks;
  }
  std::optional<Corner> taken;
  if (furniture.ScaleBar) {
    const ScaleBar bar = MakeScaleBar(plot.AxisX, view.Zoom());
    taken = EmptiestCorner(plot, view, bar.Room, {BottomLeft, BottomRight, TopLeft, TopRight}, taken);
    AddBar(marks, TopLeftOf(*taken, bar.Room), bar);
  }
  if (furniture.NorthArrow) {
    const Corner corner =
        EmptiestCorner(plot, view, ArrowBlock, {TopRight, TopLeft, BottomRight, BottomLeft}, taken);
    AddArrow(marks, TopLeftOf(corner, ArrowBlock));
  }
  return marks;
}

}  // namespace veln
