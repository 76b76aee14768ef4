#include "forms/igc_form.h"

#include "graphics/colour_maps.h"
#include "graphics/histograms.h"
#include "graphics/line_plots.h"
#include "toolkit/number_text.h"

#include <algorithm>

namespace veln {

std::string IgcForm::Text1() const
{
  return GeneralForm(SizeChoice);
}

IgcForm LoadIgcForm(const SurveyGraph& graph, const SurveyState& state)
{
  const PlotChoices choices = RetrieveCCDDP(graph);
  IgcForm form;
  form.DirectionEnabled = IsTransect(state);
  form.ColorChoice = choices.PaletteChoice;
  form.PlacesChoice = choices.DecimalPlaces;
  form.SizeChoice = choices.SymbolSize;
  return form;
}

void ChooseDirection(IgcForm& form, FieldAxis rows)
{
  if (form.DirectionEnabled) {
    form.Option1 = rows == FieldAxis::Y;
    form.Option2 = rows == FieldAxis::X;
  }
}

void TickLinePlots(IgcForm& form, bool on)
{
  form.Check1 = on && form.DirectionEnabled;
}

void MoveSymbolSize(IgcForm& form, int size)
{
  form.SizeChoice = std::clamp(size, SmallestSymbol, LargestSymbol);
}

void ChoosePalette(IgcForm& form, int palette)
{
  form.ColorChoice = std::clamp(palette, 1, PaletteCount);
}

void ChoosePlaces(IgcForm& form, int places)
{
  form.PlacesChoice = std::clamp(places, FewestPlaces, MostPlaces);
}

void InitializeGraphics(IgcForm& form, SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  if (form.Check1 && !form.Option1 && !form.Option2) {
    dialogs.Inform("Please select the Transect Direction before attempting to initialize Line Plots!");
    return;
  }
  if (form.Check1) {
    graph.Enable({GraphEntry::mnuLine});
    graph.TransectAxis = form.Option1 ? FieldAxis::Y : FieldAxis::X;
    if (state.SignalCount == 2) {
      graph.Enable({GraphEntry::mnuLs2, GraphEntry::mnuLs1s2});
    }
    InitRows(graph, state);
  }
  if (form.Check2) {
    graph.Enable({GraphEntry::mnuHist});
    InitHist(graph, state);
  }
  SetCCDDP(graph, {form.ColorChoice, form.PlacesChoice, form.SizeChoice});
  if (form.Check3) {
    graph.Enable({GraphEntry::mnuCSG});
    InitCSG(graph, state);
  }
  SetHLOps(graph, form.Check4, form.Check5);
  form.Closed = true;
}

}  // namespace veln
