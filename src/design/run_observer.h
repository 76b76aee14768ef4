#pragma once

#include "design/target_sites.h"

#include <optional>
#include <span>
#include <string>

namespace veln {

/// Watches a design run as it goes. Watching has no effect on the result; the calls come in the order of the
/// run. What an observer does not take itself it passes on to the next one, if it has one.
class RunObserver {
 public:
  explicit RunObserver(RunObserver* next = nullptr) : next_(next) {}
  RunObserver(const RunObserver&) = delete;
  RunObserver& operator=(const RunObserver&) = delete;
  virtual ~RunObserver() = default;

  /// A new text of the status line.
  virtual void Status(const std::string& text) { PassOn(&RunObserver::Status, text); }
  /// The run begins: the map of the survey is to be drawn (`InitGridMap`).
  virtual void MapReady() { PassOn(&RunObserver::MapReady); }
  /// The three candidates of a design point (from 1) were found (`TargetPlot`).
  virtual void CandidatesFound(int point, const PointCandidates& candidates)
  {
    PassOn(&RunObserver::CandidatesFound, point, candidates);
  }
  /// All candidates are found; the design starts from the first of each point (`StarterPlot`).
  virtual void Started(std::span<const PointCandidates> points) { PassOn(&RunObserver::Started, points); }
  /// A point's site is about to be exchanged for one of its alternates (`SwitchPlot`).
  virtual void Exchanged(const CandidateSite& leaving, const CandidateSite& entering)
  {
    PassOn(&RunObserver::Exchanged, leaving, entering);
  }
  /// A support site was placed (`SupportPlot`).
  virtual void SupportFound(const CandidateSite& site) { PassOn(&RunObserver::SupportFound, site); }
  /// Automatic selection is about to make design k of n. False stops it there.
  virtual bool NextDesign(int k, int n)
  {
    const auto ask = &RunObserver::NextDesign;
    return next_ == nullptr || (next_->*ask)(k, n);
  }
  /// The design that automatic selection has just made has this score; none if it could not be made.
  virtual void DesignScored(std::optional<double> score) { PassOn(&RunObserver::DesignScored, score); }

 private:
  template <class Call, class... Told>
  void PassOn(Call call, const Told&... told)
  {
    if (next_ != nullptr) {
      (next_->*call)(told...);
    }
  }

  RunObserver* next_;
};

}  // namespace veln
