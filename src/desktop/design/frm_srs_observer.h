#pragma once

#include "design/run_observer.h"
#include "desktop/input_guard.h"

#include <QElapsedTimer>

#include <memory>
#include <optional>

namespace veln {

class frmSRS;
class ProgressView;

/// Shows a run in frmSRS as it goes: the picture, the status line, and, for an automatic selection, its
/// progress. Lets the Stop button, and nothing else, be clicked between the designs of a selection.
class frmSRSObserver : public RunObserver {
 public:
  frmSRSObserver(frmSRS& window, ProgressView& picture);
  ~frmSRSObserver() override;

  /// Takes the progress of a selection away.
  void End();

  void Status(const std::string& text) override;
  void MapReady() override;
  void CandidatesFound(int point, const PointCandidates& candidates) override;
  void Started(std::span<const PointCandidates> points) override;
  void Exchanged(const CandidateSite& leaving, const CandidateSite& entering) override;
  void SupportFound(const CandidateSite& site) override;
  bool NextDesign(int k, int n) override;
  void DesignScored(std::optional<double> score) override;

 private:
  void ShowSelection(int k, int n);

  frmSRS& window_;
  ProgressView& picture_;
  std::unique_ptr<InputGuard> guard_;
  std::optional<double> best_;
  QElapsedTimer sinceStart_;
  QElapsedTimer sinceStatus_;
  bool stopped_ = false;
};

}  // namespace veln
