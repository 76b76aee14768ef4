#include "signal/validation.h"

#include "signal/info_file.h"
#include "signal/transition_analysis.h"
#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

std::string Noon()
{
  return "2026-11-22 12:00:00";
}

/// Marks sites as outliers, as a decorrelation would have done.
void MarkOutliers(SurveyState& state, const std::vector<std::size_t>& sites)
{
  for (const std::size_t site : sites) {
    state.SiteStatus.at(site) = site_status::Outlier;
  }
  state.Decorrelation.Counts.OutlierCount = static_cast<int>(sites.size());
}

TEST(OutlierDeletion, ClosesUpAllColumnsAndAddsUpOverIterations)
{
  for (const RawSurvey& survey : {TransectSurvey(6, 11), GridSurvey(11, 6, 1)}) {
    const SurveyState before = DecorrelatedSurvey(survey);
    SurveyState state = before;
    MarkOutliers(state, {0, 10, 11, 40, 65});  // first, neighbours, last
    state.SiteStatus[20] = site_status::Masked;
    EXPECT_EQ(DeleteOutliers(state), 5);
    EXPECT_EQ(state.SurveySize, 61);
    ASSERT_EQ(state.SiteId.size(), 61U);
    EXPECT_THAT((std::vector{state.SiteId[0], state.SiteId[9], state.SiteId[36], state.SiteId[60]}),
                ElementsAre(2, 13, 40, 65));
    const auto follows = [&](auto column) {
      for (std::size_t i = 0; i < (state.*column).size(); ++i) {
        EXPECT_EQ((state.*column)[i], (before.*column)[static_cast<std::size_t>(state.SiteId[i]) - 1]);
      }
      EXPECT_EQ((state.*column).size(), (before.*column).empty() ? 0U : 61U);
    };
    follows(&SurveyState::CoordX);
    follows(&SurveyState::CoordY);
    follows(&SurveyState::Signal1);
    follows(&SurveyState::Signal2);
    follows(&SurveyState::Decorr1);
    follows(&SurveyState::Decorr2);
    follows(&SurveyState::RowNumber);
    EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Free), 60);
    EXPECT_EQ(state.Signals.Rows[0].Statistics.Count, 61);
    EXPECT_EQ(state.Decorrelation.Counts.OutlierCount, 5) << "as it was found";

    DecorrelateSignals(state, {});
    MarkOutliers(state, {3, 4});
    DeleteOutliers(state);
    EXPECT_EQ(std::pair(state.DeletedSiteCount, state.ValidationCount), std::pair(7, 2));
  }
}

TEST(OutlierDeletion, IsRefusedWithoutOutliersAndOutOfItsTime)
{
  for (SurveyState state : {DecorrelatedSurvey(GridSurvey(10, 5)), ImportedSurvey(GridSurvey(10, 5))}) {
    EXPECT_NE(WholeRefusalOf(state, [&] { DeleteOutliers(state); }), "not refused");
  }
}

class Acceptances : public testing::Test {
 protected:
  /// Six rows of ten sites, too short to be scored; site 33 is an outlier.
  SurveyState ShortRows()
  {
    SurveyState state = DecorrelatedSurvey(TransectSurvey(6, 10), {}, directory_.Path());
    MarkOutliers(state, {33});
    std::filesystem::create_directories(Project());
    return state;
  }
  std::filesystem::path Project() { return directory_ / "data/farm"; }

  TemporaryDirectory directory_;
};

TEST_F(Acceptances, OfAGridMasksOutliersWritesTheInfoFileAndOpensTheDesign)
{
  std::filesystem::create_directories(Project());
  SurveyState state = DecorrelatedSurvey(GridSurvey(10, 5, 1), {}, directory_.Path());
  MarkOutliers(state, {7});
  state.SiteStatus[8] = site_status::Masked;
  SurveyState expected = state;
  expected.SiteStatus[7] = site_status::Masked;
  expected.Algorithms = {AlgorithmState::NotApplicable, AlgorithmState::NotApplicable};
  expected.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  ScriptedDialogs dialogs;
  const Acceptance done = AcceptConfiguration(state, {}, dialogs, Noon);
  EXPECT_TRUE(state == expected);
  EXPECT_THAT(dialogs.Said, ElementsAre("inform: Data file information & statistics saved to ab12info.txt"));
  EXPECT_THAT(done.Files, ElementsAre(Project() / "ab12info.txt"));
  EXPECT_EQ(ReadText(Project() / "ab12info.txt"), ComposeInfoFile(state, Noon));
  EXPECT_NE(WholeRefusalOf(state, [&] { AcceptConfiguration(state, {}, dialogs, Noon); }), "not refused");
}

TEST_F(Acceptances, OfATransectRunBufferThenTransitionThenTheInfoFile)
{
  SurveyState state = ShortRows();
  ScriptedDialogs dialogs({true});
  const Acceptance done = AcceptConfiguration(state, {BufferExtent::OuterRowsToo, true}, dialogs, Noon);
  // Six rows lose two ends each, first and last row their ten sites once more.
  EXPECT_THAT(dialogs.Said,
              ElementsAre("inform: Note:   32 sites were masked by the edge buffering algorithm.",
                          "inform: Note:   60 sites exceed the global signal variability level.",
                          "ask: Would you like an output file of the TA data values created and saved?",
                          "inform: Data file information & statistics saved to ab12info.txt"));
  EXPECT_THAT(dialogs.Named, ElementsAre(Question::WriteTransitionFile));
  EXPECT_EQ(done.EdgeMasked, 32);
  EXPECT_EQ(done.HighScores, 60);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Masked), 2 * 10 + 4 * 2 + 1);
  EXPECT_TRUE(state.TransitionDone);
  EXPECT_EQ(state.TransitionScore, std::vector<double>(60, 1.5));
  EXPECT_EQ(ReadText(Project() / "ab12tstd.std"), ComposeTransitionFile(state));
  EXPECT_THAT(ReadText(Project() / "ab12info.txt"), HasSubstr("Edge Buffering:          invoked\r\n"));
}

TEST_F(Acceptances, WithoutOptionsShowNoneAndANoWritesNoTransitionFile)
{
  SurveyState state = ShortRows();
  SurveyState again = state;
  ScriptedDialogs dialogs({false});
  AcceptConfiguration(state, {}, dialogs, Noon);
  EXPECT_TRUE(state.Algorithms == (AlgorithmFacts{AlgorithmState::NotAsked, AlgorithmState::NotAsked}));
  AcceptConfiguration(again, {BufferExtent::RowEnds, true}, dialogs, Noon);
  EXPECT_THAT(dialogs.Said.at(1), HasSubstr("Note:   12 sites were masked"));
  EXPECT_THAT(ListFiles(Project()), ElementsAre("ab12info.txt"));
}

TEST_F(Acceptances, OfferTransectOptionsToNoGrid)
{
  SurveyState grid = DecorrelatedSurvey(GridSurvey(10, 5));
  ScriptedDialogs dialogs;
  for (const AcceptanceOptions& options :
       {AcceptanceOptions{BufferExtent::RowEnds, false}, AcceptanceOptions{BufferExtent::None, true}}) {
    EXPECT_NE(WholeRefusalOf(grid, [&] { AcceptConfiguration(grid, options, dialogs, Noon); }),
              "not refused");
  }
  SurveyState wide = ShortRows();
  wide.CoordX[5] = 1E+200;  // its square leaves the doubles
  EXPECT_NE(WholeRefusalOf(
                wide, [&] { AcceptConfiguration(wide, {BufferExtent::OuterRowsToo, false}, dialogs, Noon); }),
            "not refused");
  EXPECT_THAT(dialogs.Said, IsEmpty());
}

}  // namespace
}  // namespace veln
