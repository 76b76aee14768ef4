#include "forms/igc_form.h"
#include "forms/pct_form.h"
#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

using enum GraphEntry;

TEST(GraphicsInitialisation, AppliesAllChoicesOnceTheRowsHaveADirection)
{
  SurveyState state = ImportedSurvey(TransectSurvey(3, 20));
  SurveyGraph graph = LoadSurveyGraph(state);
  ScriptedDialogs dialogs;
  IgcForm form = LoadIgcForm(graph, state);
  TickLinePlots(form, true);
  ChoosePalette(form, 3);
  ChoosePlaces(form, 5);
  MoveSymbolSize(form, 11);
  form.Check4 = false;
  InitializeGraphics(form, graph, state, dialogs);
  EXPECT_THAT(dialogs.Said, ElementsAre("inform: Please select the Transect Direction before attempting to "
                                        "initialize Line Plots!"));
  EXPECT_EQ(graph.Options, PlotOptions{});
  EXPECT_FALSE(form.Closed || graph.IsEnabled(mnuLine));
  ChooseDirection(form, FieldAxis::Y);
  InitializeGraphics(form, graph, state, dialogs);
  EXPECT_EQ(graph.Options, (PlotOptions{true, false, 10, 3, 3, 5}));
  EXPECT_EQ(graph.TransectAxis, FieldAxis::Y);
  EXPECT_EQ(graph.RowCount(), 3);
  EXPECT_TRUE(form.Closed && graph.IsEnabled(mnuLine) && graph.IsEnabled(mnuLs1s2));
}

TEST(GraphicsInitialisation, HasNoLinePlotsOnAGrid)
{
  SurveyState state = ImportedSurvey(GridSurvey(5, 10));
  SurveyGraph graph = LoadSurveyGraph(state);
  ScriptedDialogs dialogs;
  IgcForm form = LoadIgcForm(graph, state);
  TickLinePlots(form, true);
  ChooseDirection(form, FieldAxis::X);
  InitializeGraphics(form, graph, state, dialogs);
  EXPECT_FALSE(form.Option2 || graph.IsEnabled(mnuLine));
  EXPECT_THAT(dialogs.Said, IsEmpty());
}

TEST(Translation, TellsWhenItIsDoneAndIsRefusedWhileADesignWaits)
{
  SurveyState state = ImportedSurvey(GridSurvey(5, 10));
  SurveyGraph graph = LoadSurveyGraph(state);
  PctForm form;
  form.Selected = TranslationKind::Swap;
  EXPECT_EQ(WholeRefusalOf(state, [&] { ApplyTranslation(form, graph, state, true); }),
            "Please save or discard the current sample design first.");
  EXPECT_FALSE(form.Closed);
  ApplyTranslation(form, graph, state, false);
  EXPECT_TRUE(form.Closed);
  EXPECT_EQ(graph.Shown.Title, "Translation Completed...");
  EXPECT_EQ(graph.YRange, (Limits{0, 40}));
  MoveRotation(form, 200);
  EXPECT_EQ(form.Text1(), "180");
}

}  // namespace
}  // namespace veln
