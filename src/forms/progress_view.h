#pragma once

#include "design/run_observer.h"
#include "survey/field_extent.h"
#include "toolkit/drawing.h"
#include "workspace/survey_state.h"

#include <functional>
#include <span>

namespace veln {

/// The small map of `PictGW` that shows a design at work: the survey's sites, candidates as they are found,
/// the start of the design, every exchange, and the support sites. A picture as data; it has no effect on the
/// result.
class ProgressView : public RunObserver {
 public:
  /// `repaint` is called whenever the picture has grown.
  ProgressView(const SurveyState& state, std::function<void()> repaint);

  [[nodiscard]] const Drawing& Picture() const { return picture_; }
  /// Clears the picture to bright white.
  void Clear();
  /// Where a site lies on the picture, -1 to 1 on both axes.
  [[nodiscard]] DrawPoint Place(double x, double y) const;

  void MapReady() override;
  void CandidatesFound(int point, const PointCandidates& candidates) override;
  void Started(std::span<const PointCandidates> points) override;
  void Exchanged(const CandidateSite& leaving, const CandidateSite& entering) override;
  void SupportFound(const CandidateSite& site) override;

 private:
  void Plot(const CandidateSite& site, int width, int colour);

  const SurveyState& state_;
  std::function<void()> repaint_;
  Drawing picture_;
  Limits rangeX_, rangeY_;
};

}  // namespace veln
