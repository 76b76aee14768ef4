#pragma once

#include "desktop/program/child_window.h"
#include "forms/auto_selection.h"
#include "forms/progress_view.h"
#include "forms/srs_form.h"

#include <QStringList>

#include <array>
#include <functional>

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTableWidget;

namespace veln {

class DrawingView;

/// "SRS Sample Site Selection": makes sample designs, one at a time, and shows the algorithm at work. Mirrors
/// `SrsForm`.
class frmSRS : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSRS";

  frmSRS(Program& program, QWidget* parent);

  [[nodiscard]] const SrsForm& Form() const { return form_; }
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
  friend class frmSRSObserver;

  void MakeMenus();
  void MakeHelpMenu(QMenuBar& bar);
  QGroupBox* MakeSizes();
  QGroupBox* MakeControls();
  QLayout* MakeFacts();
  QLayout* MakeButtons();
  QLayout* MakeStatus();
  QWidget* MakeView();
  QWidget* MakeSiteTable();
  void Run();
  void Save();
  void Discard();
  void Select(SelectionScope scope);
  void CloseParsing();
  void CloseCompanions();
  /// Closes the window when the rules on available sites have closed its state.
  bool CloseIfAsked();
  void ShowGrowth();
  void KeepStatus(const QString& text);
  void ShowStatus();
  void ShowSites();
  void RingSite(int row);
  void PointAt(const std::optional<DrawPoint>& place, double pixel);
  void Mirror();
  void MirrorSettings();
  void MirrorState();

  SrsForm form_;
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
  QLabel* status_;
  QStringList lastStatus_;
  QTableWidget* sites_;
  QWidget* selectionBar_;
  QProgressBar* selectionProgress_;
  QLabel* selectionText_;
  QPushButton* stop_;
  QAction* options_;
  QAction* reduce_;
  std::array<QAction*, 4> reductions_{};
  QAction* recover_;
};

}  // namespace veln
