#pragma once

#include "desktop/desktop_fixture.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/graphics/plot_pane.h"
#include "signal/transition_analysis.h"
#include "support/surveys.h"
#include "survey/row_table.h"

#include <QAbstractButton>
#include <QImage>

namespace veln {

/// An accepted transect survey of 100 sites with one site far out, transition scores, two saved designs of
/// two sites each and a manual one.
inline SurveyState SurveyWithDesigns(RawSurvey survey = TransectSurvey(5, 20))
{
  survey.Signal1[7] = 2000;
  SurveyState state = AcceptedSurvey(std::move(survey));
  if (IsTransect(state)) {
    state.TransitionScore = TrnsAlys(state, veln::InitRows(state.RowNumber));
    state.TransitionDone = true;
  }
  state.SiteStatus[10] = state.SiteStatus[30] = 1;
  state.SiteStatus[50] = state.SiteStatus[70] = 2;
  state.SiteStatus[90] = site_status::Selected;
  state.DesignCount = 2;
  state.ManualDesignDone = true;
  state.Menu.Apply(WorkflowEvent::DesignSaved);
  return state;
}

/// The graphics window over a survey.
class GraphicsTest : public DesktopTest {
 protected:
  void Open(SurveyState state)
  {
    Set(std::move(state));
    Shared.Show<frmSvyGraph>();
    Settle();
  }

  frmSvyGraph& Graphics() { return *Shared.Find<frmSvyGraph>(); }
  PlotPane& Pane() { return Control<PlotPane>("frmSvyGraph", "PlotBox"); }

  static bool Choose(const char* name, const char* window = "frmSvyGraph")
  {
    return ChooseFrom(Entry(name, window));
  }
  static QAction& Entry(const char* name, const char* window = "frmSvyGraph")
  {
    auto* action = Window(window)->findChild<QAction*>(name);
    if (action == nullptr) {
      throw std::runtime_error(std::string("no entry ") + name);
    }
    return *action;
  }

  static std::string Label(const char* name) { return Text("frmSvyGraph", name); }

  /// How many pixels of the plot have that colour.
  int Count(const QColor& colour)
  {
    const QImage image = Pane().grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        count += image.pixelColor(x, y) == colour ? 1 : 0;
      }
    }
    return count;
  }
  /// How many pixels are not white paper.
  int Ink() { return Pane().width() * Pane().height() - Count(Qt::white); }
};

}  // namespace veln
