#include "survey/coordinate_translation.h"

#include "survey/statistics.h"
#include "toolkit/refusal.h"

#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace veln {

namespace {

void Rotate(std::vector<double>& x, std::vector<double>& y, int degrees)
{
  constexpr double HalfTurn = 180;
  const double theta = degrees / HalfTurn * std::numbers::pi;
  const double cosine = std::cos(theta);
  const double sine = std::sin(theta);
  const double mx = MeanStd(x).Mean;
  const double my = MeanStd(y).Mean;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double dx = x[i] - mx;
    const double dy = y[i] - my;
    x[i] = mx + dx * cosine - dy * sine;
    y[i] = my + dx * sine + dy * cosine;
  }
}

void Mirror(std::vector<double>& axis)
{
  const double mean = MeanStd(axis).Mean;
  for (double& value : axis) {
    value = mean - (value - mean);
  }
}

/// A swap and the two reversals are the mirroring in x with a turn by -90, 0 and 180 degrees behind it.
FieldOrientation Translated(FieldOrientation field, const CoordinateTranslation& translation)
{
  constexpr int HalfTurn = 180;
  constexpr int QuarterTurn = 90;
  constexpr int FullTurn = 360;
  int turn = translation.Degrees;
  if (translation.Kind != TranslationKind::Rotate) {
    field = {-field.Degrees, !field.Mirrored};
    turn = translation.Kind == TranslationKind::Swap ? -QuarterTurn : 0;
    turn = translation.Kind == TranslationKind::ReverseY ? HalfTurn : turn;
  }
  field.Degrees = ((field.Degrees + turn + HalfTurn) % FullTurn + FullTurn) % FullTurn - HalfTurn;
  return field;
}

}  // namespace

void TranslateCoordinates(SurveyState& state, const CoordinateTranslation& translation)
{
  state.Menu.Require(MenuEntry::mnuSG, "Coordinate translation");
  std::vector<double> x = state.CoordX;
  std::vector<double> y = state.CoordY;
  switch (translation.Kind) {
    case TranslationKind::Swap:
      std::swap(x, y);
      break;
    case TranslationKind::Rotate:
      Rotate(x, y, translation.Degrees);
      break;
    case TranslationKind::ReverseX:
      Mirror(x);
      break;
    case TranslationKind::ReverseY:
      Mirror(y);
      break;
  }
  if (!AllFinite(x) || !AllFinite(y)) {
    throw Refusal(
        "Error!  The coordinates are too large for this translation!\n"
        "The coordinates have been left as they were.");
  }
  state.CoordX = std::move(x);
  state.CoordY = std::move(y);
  state.Orientation = Translated(state.Orientation, translation);
}

}  // namespace veln
