#pragma once

#include "graphics/colour_maps.h"
#include "graphics/histograms.h"
#include "graphics/line_plots.h"
#include "graphics/point_plots.h"
#include "signal/transition_analysis.h"
#include "support/surveys.h"
#include "support/testing.h"
#include "survey/row_table.h"
#include "survey/statistics.h"

namespace veln {

/// A survey of these few sites, numbered from 1, all free; without `s2` it has one signal.
inline SurveyState SitesAt(std::vector<double> x, std::vector<double> y, std::vector<double> s1,
                           std::vector<double> s2 = {})
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5, s2.empty() ? 1 : 2));
  state.SurveySize = static_cast<int>(x.size());
  state.SiteId.resize(x.size());
  state.SiteStatus.resize(x.size());
  state.CoordX = std::move(x);
  state.CoordY = std::move(y);
  state.Signal1 = std::move(s1);
  state.Signal2 = std::move(s2);
  UpdateSignalStats(state);
  return state;
}

/// Five rows of twelve sites with two signals, transition scores, two designs, a manual one, masked sites and
/// an outlier.
inline SurveyState SmallExample()
{
  SurveyState state = DecorrelatedSurvey(TransectSurvey(5, 12, 2, 3));
  state.TransitionScore = TrnsAlys(state, InitRows(state.RowNumber));
  state.TransitionDone = true;
  state.DesignCount = 2;
  state.ManualDesignDone = true;
  for (const auto& [site, status] : std::initializer_list<std::pair<std::size_t, int>>{
           {3, 1}, {17, 1}, {29, 1}, {44, 2}, {52, 2}, {8, 6}, {0, 7}, {1, 7}, {2, 7}, {40, 8}}) {
    state.SiteStatus[site] = static_cast<std::int16_t>(status);
  }
  return state;
}

/// Opens the graphics window, with the line plots of rows from east to west initialised for a transect.
inline SurveyGraph OpenGraph(SurveyState& state)
{
  SurveyGraph graph = LoadSurveyGraph(state);
  if (IsTransect(state)) {
    graph.Enable({GraphEntry::mnuLine, GraphEntry::mnuLs2, GraphEntry::mnuLs1s2});
    InitRows(graph, state);
  }
  return graph;
}

/// The plot of a menu entry in a window just opened.
inline Plot PlotOf(SurveyState state, GraphEntry entry)
{
  DitherGenerator dither;
  SurveyGraph graph = OpenGraph(state);
  SelectGraph(graph, state, entry, dither);
  return graph.Shown;
}

/// Where the sites of a plot stand on one axis.
inline std::vector<double> PlacesOn(double DrawPoint::* axis, const Plot& plot)
{
  std::vector<double> places;
  for (const PlotSite& site : plot.Sites) {
    places.push_back(site.At.*axis);
  }
  return places;
}

/// The pens of the dots of a plot, in the order drawn.
inline std::vector<Pen> DotPens(const Plot& plot)
{
  std::vector<Pen> pens;
  for (const DotMark& dot : Only<DotMark>(plot.Picture)) {
    pens.push_back(dot.Stroke);
  }
  return pens;
}

}  // namespace veln
