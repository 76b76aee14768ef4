#include "survey/field_extent.h"

#include "toolkit/refusal.h"

#include <cmath>

namespace veln {

FieldExtent FieldExtent::SquareAbout(double centreX, double centreY) const
{
  const double hx = X.Half();
  const double hy = Y.Half();
  if (hx == 0 && hy == 0) {
    return {Limits::Around(centreX, 1), Limits::Around(Y.Middle(), 1)};
  }
  if (hx <= hy) {
    return {Limits::Around(centreX, hy), Y};
  }
  return {X, Limits::Around(centreY, hx)};
}

FieldExtent MeasureField(const SurveyState& state)
{
  return {MinMax(state.CoordX), MinMax(state.CoordY)};
}

void RequireMeasurable(const FieldExtent& field)
{
  if (!std::isfinite(field.Width() * field.Width() + field.Height() * field.Height())) {
    throw Refusal("Error!  The coordinates of the survey are too large for distances to be computed.");
  }
}

double SiteDistance(const SurveyState& state, std::size_t i, std::size_t j)
{
  const double dx = state.CoordX[i] - state.CoordX[j];
  const double dy = state.CoordY[i] - state.CoordY[j];
  return std::sqrt(dx * dx + dy * dy);
}

}  // namespace veln
