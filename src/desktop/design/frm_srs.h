#pragma once

#include "desktop/program/form_window.h"
#include "forms/auto_selection.h"
#include "forms/progress_view.h"
#include "forms/srs_form.h"

#include <array>
#include <functional>
#include <optional>
#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace veln {

class RunStatus;
class SiteTable;
class DrawingView;

/// "SRS Sample Site Selection": makes sample designs, one at a time, and shows the algorithm at work. Mirrors
/// `SrsForm`.
class frmSRS : public FormWindow<SrsForm> {
 public:
  static constexpr const char* Name = "frmSRS";

  frmSRS(Program& program, QWidget* parent);

  /// Does something with the state of the window, as a click in one of its companions does, and shows what
  /// came of it.
  void Act(const std::function<void(SrsForm&)>& action);
  /// Sets D-factor and stratum to a combination of the automatic selection, as a person's clicks would.
  void UseSettings(const Combination& combination, int strata);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void WayOut() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void MakeMenus();
  QGroupBox* MakeSizes();
  QGroupBox* MakeControls();
  QLayout* MakeFacts();
  QLayout* MakeButtons();
  QWidget* MakeView();
  QWidget* MakeSiteTable();
  void Run();
  void Save();
  void Discard();
  void Select(SelectionScope scope);
  void CloseCompanions();
  /// Closes the window when the rules on available sites have closed its state.
  bool CloseIfAsked();
  /// The sites that the table lists.
  [[nodiscard]] std::vector<CandidateSite> ListedSites() const;
  void ShowSites();
  void RingSite(int row);
  void PointAt(const std::optional<DrawPoint>& place, double pixel);
  void Mirror() final;
  void MirrorSettings();
  void MirrorState();

  /// For an entry: does something with the state of the window that may close it.
  std::function<void()> Picks(const std::function<void(SrsForm&)>& action);

  DrawingView* view_ = nullptr;  // before the picture, which asks for it
  ProgressView progress_;
  QLayout* settings_ = nullptr;
  std::array<QRadioButton*, 3> sizes_{};
  QGroupBox* sizeFrame_;
  QGroupBox* controlFrame_;
  QCheckBox* adjust_;
  QLabel* factorCaption_;
  QLineEdit* factorText_;
  QScrollBar* factorBar_;
  QCheckBox* ignoreTA_;
  QCheckBox* parsing_;
  QPushButton* levels_;
  QPushButton* run_;
  QPushButton* leave_;
  QPushButton* save_;
  QPushButton* discard_;
  QLabel* designNumber_;
  QLabel* sampleSize_;
  QLabel* signalColumns_;
  RunStatus* status_;
  SiteTable* sites_;
};

}  // namespace veln
