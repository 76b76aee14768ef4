#include "forms/progress_view.h"

#include "design/design_fields.h"

namespace veln {
namespace {

std::vector<std::string> LinesOf(const Drawing& drawing)
{
  std::vector<std::string> lines;
  for (const DrawMark& mark : drawing.Marks) {
    std::ostringstream line;
    line << mark;
    lines.push_back(line.str());
  }
  return lines;
}

/// A field of 20 m by 10 m: its sites fill the width and the middle half of the height, north at the top.
SurveyState WideField()
{
  SurveyState state = HandField({{0, 0, 0}, {20, 10, 0}, {10, 5, 0}, {5, 0, 0}});
  state.SiteStatus[2] = 1;
  return state;
}

TEST(ProgressView, DrawsADesignStepByStep)
{
  const SurveyState state = WideField();
  int repaints = 0;
  ProgressView view(state, [&repaints] { ++repaints; });
  const auto site = [&state](std::size_t i) {
    return CandidateSite{state.CoordX[i], state.CoordY[i], state.SiteId[i], i};
  };
  view.MapReady();
  const PointCandidates point = {site(0), site(1), site(3)};
  view.CandidatesFound(1, point);
  view.Started(std::span(&point, 1));
  view.Exchanged(site(0), site(1));
  view.SupportFound(site(3));
  const std::vector<std::string> lines = LinesOf(view.Picture());
  EXPECT_THAT(lines,
              ElementsAre("filled box -1.1,-1.1 to 1.1,1.1 width 1 colour 255,255,255",
                          "dot -1,0.5 width 1 colour 0,0,0",  //
                          "dot 1,-0.5 width 1 colour 0,0,0",  //
                          "dot 0,0 width 1 colour 0,0,255",   // of an earlier design
                          "dot -0.5,0.5 width 1 colour 0,0,0",
                          "dot -1,0.5 width 2 colour 0,128,128",  // candidates
                          "dot 1,-0.5 width 2 colour 0,128,128", "dot -0.5,0.5 width 2 colour 0,128,128",
                          "dot -1,0.5 width 3 colour 255,0,0",      // the start
                          "dot -1,0.5 width 3 colour 255,255,255",  // the exchange
                          "dot -1,0.5 width 2 colour 0,128,128",    //
                          "dot 1,-0.5 width 3 colour 255,0,0", "dot -0.5,0.5 width 3 colour 128,0,0"));
  EXPECT_EQ(repaints, 10) << "once for the clear paper and the map, and after every point";
  view.Clear();
  EXPECT_EQ(LinesOf(view.Picture()), std::vector(1, lines.front()));
}

TEST(ProgressView, TallFieldFillsTheHeight)
{
  SurveyState state = HandField({{100, 0, 0}, {110, 40, 0}});
  ProgressView view(state, [] {});
  view.MapReady();
  EXPECT_EQ(view.Place(100, 0), (DrawPoint{-0.25, 1}));
  EXPECT_EQ(view.Place(110, 40), (DrawPoint{0.25, -1}));
}

}  // namespace
}  // namespace veln
