#pragma once

#include "desktop/parts/menus.h"
#include "desktop/program/program.h"
#include "forms/banner.h"

#include <QMainWindow>

#include <array>
#include <vector>

class QBoxLayout;
class QLabel;
class QScrollArea;
class QTimer;

namespace veln {

class ElidedLabel;
class StatusCards;

/// The main window: the menus of the workflow and the status of the survey, as cards in the order of the
/// work.
class frmMain : public QMainWindow {
 public:
  static constexpr const char* Name = "frmMain";

  explicit frmMain(Program& program);
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;
  ~frmMain() override;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  [[nodiscard]] std::vector<MenuLine> MenuLines();
  void SetProject();
  void ImportSurvey(bool transect);
  void Exit();
  void MakeContent();
  QWidget* MakeBanner();
  QWidget* MakeStart();
  void Place();
  void TickBanner();
  void Mirror();
  void MirrorStart();
  void AskSurveyType(const QString& file, QPoint where);

  Program& program_;
  Menus menus_;
  Banner banner_;
  QTimer* timer1_;
  std::array<QLabel*, 3> bannerLabels_;
  QBoxLayout* bannerLayout_;
  QWidget* start_;
  QLabel* startLine_;
  QLabel* dropLine_;
  StatusCards* cards_;
  ElidedLabel* nextStep_;
  QString keptFile_;  ///< dropped before a project was set
};

}  // namespace veln
