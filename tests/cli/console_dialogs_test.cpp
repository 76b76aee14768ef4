#include "cli/console_dialogs.h"

#include "veln_session.h"

namespace veln {
namespace {

TEST(ConsoleDialogs, AnswersByNameWhatAnOptionAskedForAndNothingElse)
{
  for (const bool option : {false, true}) {
    std::ostringstream errors;
    ConsoleDialogs dialogs({option}, nullptr, errors);
    EXPECT_EQ(dialogs.Ask(Question::WriteTransitionFile, "in other words"), option);
    EXPECT_TRUE(dialogs.Ask(Question::ScoreDesigns, "in other words"));
    EXPECT_FALSE(YesLoses(Question::WriteTransitionFile) || YesLoses(Question::ScoreDesigns));
    for (const Question lost : {Question::UseFieldAgain, Question::TranslateForGood, Question::ReplaceFile,
                                Question::Exit, Question::ExitWithoutDesigns}) {
      EXPECT_FALSE(dialogs.Ask(lost, "TA data values")) << "unasked";
      EXPECT_TRUE(YesLoses(lost));
    }
  }
}

TEST(ConsoleDialogs, TransitionValuesAreWrittenOnlyWhenAskedFor)
{
  const RawSurvey survey = TransectSurvey(10, 20);
  std::vector<std::string> options = {"--type", "transect", "--s2", "--transition"};
  for (const bool asked : {false, true}) {
    if (asked) {
      options.emplace_back("--transition-file");
    }
    VelnSession session;
    EXPECT_EQ(session.Run(RawFileText(survey, LayoutOf(survey)), options).Status, 0);
    EXPECT_EQ(std::filesystem::exists(session.Output("tstd.std")), asked);
  }
}

}  // namespace
}  // namespace veln
