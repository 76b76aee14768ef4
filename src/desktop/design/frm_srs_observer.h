#pragma once

#include "design/run_observer.h"
#include "desktop/parts/input_guard.h"

#include <QElapsedTimer>

#include <memory>
#include <optional>

namespace veln {

class ProgressView;
class RunStatus;

/// Shows a run in frmSRS as it goes: the picture, which takes what is to be drawn, the status line, and, for
/// an automatic selection, its progress. Lets the Stop button, and nothing else, be clicked between the
/// designs of a selection.
class frmSRSObserver : public RunObserver {
 public:
  frmSRSObserver(RunStatus& status, ProgressView& picture);
  ~frmSRSObserver() override;

  /// The run is over: takes its progress away and drops the clicks and keys that came while it went on.
  void End();
  /// Whether a run has begun.
  [[nodiscard]] bool Began() const { return began_; }

  void Status(const std::string& text) override;
  void MapReady() override;
  bool NextDesign(int k, int n) override;
  void DesignScored(std::optional<double> score) override;

 private:
  void Begin();
  void ShowSelection(int k, int n);

  RunStatus& status_;
  ProgressView& picture_;
  std::unique_ptr<InputGuard> guard_;
  std::optional<double> best_;
  QElapsedTimer sinceStart_;
  QElapsedTimer sincePaint_;
  bool began_ = false;
  bool busy_ = false;
  bool last_ = false;  // the design in work is the last of a selection
  bool stopped_ = false;
};

}  // namespace veln
