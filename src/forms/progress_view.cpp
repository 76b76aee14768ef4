#include "forms/progress_view.h"

#include <cstddef>
#include <utility>

namespace veln {

namespace {

constexpr double Edge = 1.1;     // the picture's scale runs from -1.1 to 1.1 on both axes
constexpr double OwnSize = 300;  // pixels

// Colour numbers.
constexpr int FreeSite = 0;
constexpr int OtherSite = 9;
constexpr int CandidateColour = 3;
constexpr int CurrentSite = 12;
constexpr int Wiped = 15;
constexpr int SupportColour = 4;

constexpr int SiteWidth = 1;
constexpr int CandidateWidth = 2;
constexpr int CurrentWidth = 3;

}  // namespace

ProgressView::ProgressView(const SurveyState& state, std::function<void()> repaint)
    : state_(state), repaint_(std::move(repaint))
{
  picture_.ScaleLeft = -Edge;
  picture_.ScaleTop = -Edge;
  picture_.ScaleWidth = 2 * Edge;
  picture_.ScaleHeight = 2 * Edge;
  picture_.PixelWidth = OwnSize;
  Clear();
}

void ProgressView::Clear()
{
  picture_.Marks.clear();  // all of it would be covered
  picture_.FillBox({-Edge, -Edge}, {Edge, Edge}, QBColor(Wiped));
  repaint_();
}

DrawPoint ProgressView::Place(double x, double y) const
{
  return {(x - rangeX_.Middle()) / rangeX_.Half(), (rangeY_.Middle() - y) / rangeY_.Half()};
}

void ProgressView::MapReady()
{
  const FieldExtent field = MeasureField(state_);
  const FieldExtent square = field.SquareAbout(field.X.Middle(), field.Y.Middle());
  rangeX_ = square.X;
  rangeY_ = square.Y;
  const Pen freePen{QBColor(FreeSite), SiteWidth};
  const Pen otherPen{QBColor(OtherSite), SiteWidth};
  picture_.Marks.reserve(picture_.Marks.size() + state_.SiteStatus.size());
  for (std::size_t i = 0; i < state_.SiteStatus.size(); ++i) {
    const bool free = state_.SiteStatus[i] == site_status::Free;
    picture_.PSet(Place(state_.CoordX[i], state_.CoordY[i]), free ? freePen : otherPen);
  }
  repaint_();
}

void ProgressView::CandidatesFound(int /*point*/, const PointCandidates& candidates)
{
  for (const CandidateSite& candidate : candidates) {
    Plot(candidate, CandidateWidth, CandidateColour);
  }
}

void ProgressView::Started(std::span<const PointCandidates> points)
{
  for (const PointCandidates& point : points) {
    Plot(point[0], CurrentWidth, CurrentSite);
  }
}

void ProgressView::Exchanged(const CandidateSite& leaving, const CandidateSite& entering)
{
  Plot(leaving, CurrentWidth, Wiped);
  Plot(leaving, CandidateWidth, CandidateColour);
  Plot(entering, CurrentWidth, CurrentSite);
}

void ProgressView::SupportFound(const CandidateSite& site)
{
  Plot(site, CurrentWidth, SupportColour);
}

void ProgressView::Plot(const CandidateSite& site, int width, int colour)
{
  picture_.PSet(Place(site.X, site.Y), {QBColor(colour), static_cast<double>(width)});
  repaint_();
}

}  // namespace veln
