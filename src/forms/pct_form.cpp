#include "forms/pct_form.h"

#include "graphics/graph_menu.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>

namespace veln {

std::string PctForm::Text1() const
{
  return GeneralForm(HScroll1);
}

void MoveRotation(PctForm& form, int degrees)
{
  constexpr int HalfTurn = 180;
  form.HScroll1 = std::clamp(degrees, -HalfTurn, HalfTurn);
}

void ApplyTranslation(PctForm& form, SurveyGraph& graph, SurveyState& state, bool designIsPending)
{
  if (!form.Selected) {
    return;
  }
  if (designIsPending) {
    throw Refusal(DesignIsPending);
  }
  TranslateCoordinates(state, {*form.Selected, form.HScroll1});
  form.Closed = true;
  ClearGraph(graph);  // a plot chosen meanwhile shows the old coordinates
  graph.Shown.Title = "Translation Completed...";
  ReComputeXY(graph, state);
}

}  // namespace veln
