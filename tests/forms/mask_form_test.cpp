#include "forms/mask_form.h"

#include "design/design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;
using Colour = MaskForm::Colour;
using Button = void (*)(MaskForm&, SurveyState&);

/// What the window answers to a number, for the button's action.
std::string AnswerTo(SurveyState& state, const std::string& number, Button action)
{
  MaskForm form;
  form.Text1 = number;
  form.Text2Visible = true;
  action(form, state);
  EXPECT_EQ(form.Text1, "");
  EXPECT_TRUE(form.Label2Visible);
  EXPECT_FALSE(form.Text2Visible);
  EXPECT_EQ(form.Label2Colour, form.Label2.starts_with(" Warning!") ? Colour::LightRed : Colour::LightBlue);
  return form.Label2;
}

TEST(MaskForm, AnswersWhatBecameOfTheSite)
{
  SurveyState state = HandField(std::vector<HandSite>(3));
  struct Case {
    const char* Number;
    Button Action;
    const char* Answer;
    std::int16_t Status;  // of site 102 behind it
  };
  for (const Case& c : {Case{"102", UnselectSite, " Attention: This site is not currently selected!", 0},
                        Case{"102", SelectSite, " Action: Site  102 successfully selected.", 6},
                        Case{"102", SelectSite, " Attention: This site is already selected!", 6},
                        Case{"104", SelectSite, " Warning! Site  104 does not exist.", 6},
                        Case{"", UnselectSite, " Warning! Site  0 does not exist.", 6},
                        Case{"102", UnselectSite, " Action: Site  102 successfully unselected.", 0}}) {
    EXPECT_EQ(AnswerTo(state, c.Number, c.Action), c.Answer);
    EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{0, c.Status, 0})) << c.Answer;
  }
}

TEST(MaskForm, ListTellsTheSelectionInSurveyOrder)
{
  SurveyState state = HandField(std::vector<HandSite>(3));
  MaskForm form = OpenMaskForm(state);
  EXPECT_FALSE(form.Text2Visible || form.Label2Visible || form.Check1);
  ListSelectedSites(form, state);
  EXPECT_TRUE(form.Text2Visible);
  EXPECT_EQ(form.Text2, " Selected Sites:  none");
  AnswerTo(state, "103", SelectSite);
  AnswerTo(state, "101", SelectSite);
  ListSelectedSites(form, state);
  EXPECT_EQ(form.Text2, " Selected Sites:   101  103");
}

TEST(MaskForm, OnlyDigitsAndDeletionsPass)
{
  ScriptedDialogs dialogs;
  for (const char32_t key : {U'0', U'5', U'9', char32_t{0}}) {
    EXPECT_TRUE(KeyInSiteNumber(key, dialogs));
  }
  EXPECT_EQ(dialogs.Said, Lines{});
  for (const char32_t key : {U'/', U':', U'a', U'-', U' ', U'.', U'٣'}) {
    EXPECT_FALSE(KeyInSiteNumber(key, dialogs));
  }
  EXPECT_EQ(dialogs.Said, Lines(7, "beep"));
}

TEST(MaskForm, DoneSavesOnlyASelectionAndOnlyIfTheBoxIsTicked)
{
  const TemporaryDirectory directory;
  const auto file = directory / "data/farm/ab12ugsd.txt";
  std::filesystem::create_directories(file.parent_path());
  SurveyState state = HandField(std::vector<HandSite>(3), 1, directory.Path());
  state.Signal1 = {1, 2, 3};
  for (const bool box : {false, true}) {
    for (const bool selected : {false, true}) {
      MaskForm form = OpenMaskForm(state);
      form.Check1 = box;
      state.SiteStatus[0] = selected ? site_status::Selected : site_status::Free;
      const SurveyState before = state;
      ScriptedDialogs dialogs;
      const auto written = FinishManualSelection(form, state, dialogs, FixedClock);
      EXPECT_TRUE(form.Closed);
      EXPECT_EQ(written.has_value(), box && selected);
      EXPECT_EQ(std::filesystem::exists(file), box && selected);
      EXPECT_EQ(state == before, !(box && selected));
      EXPECT_EQ(
          std::ranges::count(dialogs.Said, "inform: Sample count = 0, hence no output file was created..."),
          box && !selected ? 1 : 0);
    }
  }
}

TEST(MaskForm, FailingWriteKeepsTheWindowOpen)
{
  SurveyState state = HandField(std::vector<HandSite>(1));  // its folder is nowhere
  state.Signal1 = {1};
  state.SiteStatus[0] = site_status::Selected;
  MaskForm form = OpenMaskForm(state);
  form.Check1 = true;
  ScriptedDialogs dialogs;
  EXPECT_NE(WholeRefusalOf(state, [&] { FinishManualSelection(form, state, dialogs, FixedClock); }),
            "not refused");
  EXPECT_FALSE(form.Closed);
}

}  // namespace
}  // namespace veln
