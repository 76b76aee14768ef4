#include "graphics/site_map.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

/// `NormX` and `NormY`: where sites stand on the unit square.
class SquarePlaces {
 public:
  explicit SquarePlaces(const SurveyState& state) : state_(state), extent_(FitSquare(MeasureField(state))) {}

  [[nodiscard]] DrawPoint At(std::size_t i) const
  {
    return {(state_.CoordX[i] - extent_.X.Minimum) / extent_.Width(),
            1 - (state_.CoordY[i] - extent_.Y.Minimum) / extent_.Height()};
  }

 private:
  const SurveyState& state_;
  FieldExtent extent_;
};

bool IsOffered(const SiteMapForm& form, int number)
{
  if (number == ManualDesignNumber) {
    return form.mnusubUGD;
  }
  return form.mnusubSRS && number >= 1 && number <= MaxDesigns &&
         form.mnusubRS.at(static_cast<std::size_t>(number) - 1);
}

}  // namespace

SiteMapForm LoadSiteMap(const SurveyState& state)
{
  SiteMapForm form;
  form.mnusubSRS = state.DesignCount > 0;
  for (int number = 2; number <= MaxDesigns; ++number) {
    form.mnusubRS.at(static_cast<std::size_t>(number) - 1) = state.DesignCount >= number;
  }
  form.mnusubUGD = state.ManualDesignDone;
  form.MGrid.PixelWidth = SiteMapPixels;
  return form;
}

void ShowDesignMap(SiteMapForm& form, const SurveyState& state, int number)
{
  if (!IsOffered(form, number)) {
    throw Refusal("Error! Requested Sample Design # does not exist!");
  }
  form.MGrid = DrawSiteMap(state, number);
  form.lblSMT = number == ManualDesignNumber ? "User Generated Sample Design"
                                             : "VELN SRS Sample Design #" + GeneralForm(number);
}

FieldExtent FitSquare(const FieldExtent& extent)
{
  constexpr double Margin = 0.1;
  const double longer = std::max(extent.Width(), extent.Height());
  const double margin = Margin * (longer == 0 ? 2 : longer);
  FieldExtent square = extent.SquareAbout((extent.X.Minimum + extent.X.Maximum) / 2,
                                          (extent.Y.Minimum + extent.Y.Maximum) / 2);
  for (Limits* axis : {&square.X, &square.Y}) {
    axis->Minimum -= margin;
    axis->Maximum += margin;
  }
  return square;
}

Drawing DrawSiteMap(const SurveyState& state, int number)
{
  constexpr int FrameColour = 0;
  constexpr int SiteColour = 1;
  constexpr int DesignColour = 9;
  constexpr double DesignWidth = 4;
  constexpr double LabelStep = 0.01;
  constexpr double FontSize = 8;
  Drawing map;
  map.PixelWidth = SiteMapPixels;
  map.Box({0, 0}, {1, 1}, {QBColor(FrameColour), 2});
  const SquarePlaces places(state);
  for (std::size_t i = 0; i < state.CoordX.size(); ++i) {
    map.PSet(places.At(i), {QBColor(SiteColour), 1});
  }
  for (std::size_t i = 0; i < state.CoordX.size(); ++i) {
    if (state.SiteStatus[i] == number) {
      const DrawPoint at = places.At(i);
      map.PSet(at, {QBColor(DesignColour), DesignWidth});
      map.Marks.emplace_back(TextMark{{at.X + LabelStep, at.Y + LabelStep},
                                      PrintedNumber(state.SiteId[i]),
                                      QBColor(FrameColour),
                                      FontSize,
                                      true});
    }
  }
  return map;
}

}  // namespace veln
