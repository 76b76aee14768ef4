#pragma once

#include "desktop/program/program.h"
#include "forms/banner.h"

#include <QMainWindow>

#include <array>
#include <optional>
#include <span>

class QBoxLayout;
class QFrame;
class QLabel;
class QScrollArea;
class QTimer;

namespace veln {

class ElidedLabel;
class StatusCards;
class frmMain;

/// One line of the menus of `frmMain`: a submenu or an entry in one that stands before it.
struct MainMenuLine {
  const char* Name;
  const char* Menu;  ///< the submenu it stands in; null for the menu bar
  const char* Caption;
  std::optional<MenuEntry> Gate = std::nullopt;  ///< what enables it; without one it always is
  void (*Action)(frmMain&) = nullptr;            ///< none for a submenu
  const char* Shortcut = "";
};

/// All menus of `frmMain`, in their order.
std::span<const MainMenuLine> MainMenu();

/// The main window: the menus of the workflow and the status of the survey, as cards in the order of the
/// work.
class frmMain : public QMainWindow {
 public:
  static constexpr const char* Name = "frmMain";

  explicit frmMain(Program& program);
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;
  ~frmMain() override;

  Program& Shared() { return program_; }

  // What the entries do beyond opening a window.
  void SetProject();
  void ImportSurvey(bool transect);
  void Exit();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void MakeMenus();
  void MakeContent();
  QWidget* MakeBanner();
  QWidget* MakeStart();
  void Place();
  void TickBanner();
  void Mirror();
  void MirrorMenus();
  void MirrorStart();
  void AskSurveyType(const QString& file, QPoint where);

  Program& program_;
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
