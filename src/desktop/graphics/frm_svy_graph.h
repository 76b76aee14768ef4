#pragma once

#include "desktop/program/child_window.h"
#include "graphics/map_furniture.h"
#include "graphics/survey_graph.h"
#include "render/picture_file.h"

#include <array>
#include <functional>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace veln {

class PlotBoard;

/// "Interactive Survey Graphics Mode": every plot and map of the survey. Mirrors `SurveyGraph`.
class frmSvyGraph : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSvyGraph";

  frmSvyGraph(Program& program, QWidget* parent);

  /// What an action does to the plot that shows.
  enum class Effect {
    Changes,  ///< the view stays as long as the axes do
    Replaces  ///< the whole of another plot shows
  };

  /// What the windows that close with it belong to, so that they stay in front of it.
  static QWidget* OwnerOfCompanions(const Program& program, QWidget* main);
  [[nodiscard]] const SurveyGraph& Graph() const { return graph_; }
  /// Does something with the state of the window, as a click in one of its companions does, and shows what
  /// came of it.
  void Act(const std::function<void(SurveyGraph&)>& action, Effect effect = Effect::Changes);

 protected:
  void WayOut() override;

 private:
  [[nodiscard]] std::vector<MenuLine> PlotLines();
  void MakeMenus();
  QWidget* MakePanels();
  QGroupBox* MakeLinePanel();
  QGroupBox* MakeStatisticsPanel();
  QGroupBox* MakeLegendPanel();

  void Select(GraphEntry entry);
  void Translate();
  /// Switches what stands on the plot besides the sites.
  void Toggle(bool PlotOptions::* shown);
  void SavePicture();

  [[nodiscard]] MapFurniture Furniture() const;
  [[nodiscard]] Picture CurrentPicture() const;
  void Mirror();
  void MirrorPanels();
  void MirrorPlot(bool fit);
  void ForgetDeletedSites();

  SurveyGraph graph_;
  int deletedSites_ = 0;  // of the survey, when the plot was drawn
  PlotBoard* board_ = nullptr;
  QGroupBox* linePanel_;
  QLineEdit* row_;
  std::array<QPushButton*, 7> rowButtons_{};  // `Command1` to `Command7`
  QGroupBox* statisticsPanel_;
  std::array<QLabel*, 9> statistics_{};  // from the top
  QGroupBox* legendPanel_;
};

}  // namespace veln
