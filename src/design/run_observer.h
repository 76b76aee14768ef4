#pragma once

#include "design/target_sites.h"

#include <optional>
#include <span>
#include <string>

namespace veln {

/// Watches a design run as it goes. Watching has no effect on the result; the calls come in the order of the
/// run.
class RunObserver {
 public:
  RunObserver() = default;
  RunObserver(const RunObserver&) = delete;
  RunObserver& operator=(const RunObserver&) = delete;
  virtual ~RunObserver() = default;

  /// A new text of the status line.
  virtual void Status(const std::string& /*text*/) {}
  /// The run begins: the map of the survey is to be drawn (`InitGridMap`).
  virtual void MapReady() {}
  /// The three candidates of a design point (from 1) were found (`TargetPlot`).
  virtual void CandidatesFound(int /*point*/, const PointCandidates& /*candidates*/) {}
  /// All candidates are found; the design starts from the first of each point (`StarterPlot`).
  virtual void Started(std::span<const PointCandidates> /*points*/) {}
  /// A point's site is about to be exchanged for one of its alternates (`SwitchPlot`).
  virtual void Exchanged(const CandidateSite& /*leaving*/, const CandidateSite& /*entering*/) {}
  /// A support site was placed (`SupportPlot`).
  virtual void SupportFound(const CandidateSite& /*site*/) {}
  /// Automatic selection is about to make design k of n. False stops it there.
  virtual bool NextDesign(int /*k*/, int /*n*/) { return true; }
  /// The design that automatic selection has just made has this score; none if it could not be made.
  virtual void DesignScored(std::optional<double> /*score*/) {}
};

}  // namespace veln
