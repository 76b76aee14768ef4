#include "design/manual_design.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;
using Colour = MaskForm::Colour;

/// What the window answers to a number, for the button's action.
template <class Action>
std::string AnswerTo(SurveyState& state, const std::string& number, Action action)
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

TEST(ManualSelection, SelectAndUnselectOverruleEveryState)
{
  SurveyState select = HandField(std::vector<HandSite>(10));
  select.SiteStatus = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  SurveyState unselect = select;
  for (std::size_t i = 0; i < 10; ++i) {
    const std::string id = std::to_string(select.SiteId[i]);
    EXPECT_EQ(AnswerTo(select, id, SelectSite), i == 6 ? " Attention: This site is already selected!"
                                                       : " Action: Site  " + id + " successfully selected.");
    EXPECT_EQ(AnswerTo(unselect, id, UnselectSite),
              i == 0 ? " Attention: This site is not currently selected!"
                     : " Action: Site  " + id + " successfully unselected.");
  }
  EXPECT_EQ(select.SiteStatus, std::vector<std::int16_t>(10, site_status::Selected));
  EXPECT_EQ(unselect.SiteStatus, std::vector<std::int16_t>(10, site_status::Free));
}

TEST(ManualSelection, UnknownNumbersAreToldAndChangeNothing)
{
  SurveyState state = HandField(std::vector<HandSite>(3));
  const SurveyState before = state;
  EXPECT_EQ(AnswerTo(state, "", SelectSite), " Warning! Site  0 does not exist.");
  EXPECT_EQ(AnswerTo(state, "104", SelectSite), " Warning! Site  104 does not exist.");
  EXPECT_EQ(AnswerTo(state, "65637", SelectSite), " Warning! Site  65637 does not exist.");  // 101 in 16 bits
  EXPECT_EQ(AnswerTo(state, "99999", UnselectSite), " Warning! Site  99999 does not exist.");
  EXPECT_EQ(state, before);
}

TEST(ManualSelection, ListTellsTheSelectionInSurveyOrder)
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

TEST(ManualSelection, OnlyDigitsAndDeletionsPass)
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

class ManualDesign : public testing::Test {
 protected:
  ManualDesign() : state_(HandField({{100.12345, 7, -1.504}, {1, 1}, {-20.5, 0, 0.25}}, 1, directory_.Path()))
  {
    std::filesystem::create_directories(directory_ / "data/farm");
    state_.Signal1 = {45.675, 1, -0.125};
    state_.SiteStatus = {6, 0, 6};
    form_.Check1 = true;
  }

  void Finish() { FinishManualSelection(form_, state_, dialogs_, FixedClock); }

  [[nodiscard]] std::string Golden(const char* name) const
  {
    std::string text = ReadText(std::filesystem::path(VELN_TEST_DATA) / name);
    return text.replace(text.find("{dir}"), 5, directory_.Path().string());
  }

  TemporaryDirectory directory_;
  std::filesystem::path file_ = directory_ / "data/farm/ab12ugsd.txt";
  ScriptedDialogs dialogs_;
  SurveyState state_;
  MaskForm form_;
};

TEST_F(ManualDesign, FileOfOneSignal)
{
  Finish();
  EXPECT_EQ(ReadText(file_), Golden("manual_one_signal.txt"));
  EXPECT_EQ(dialogs_.Said,
            (Lines{"inform: User generated sampling design information has been saved to ab12ugsd.txt"}));
  EXPECT_TRUE(form_.Closed);
  EXPECT_TRUE(state_.ManualDesignDone);
  EXPECT_EQ(state_.ManualDesignSize, 2);
  EXPECT_FALSE(state_.Menu.IsEnabled(MenuEntry::mnuMask));
  EXPECT_TRUE(state_.Menu.IsEnabled(MenuEntry::mnuSHowMap));
  EXPECT_EQ(state_.SiteStatus, (std::vector<std::int16_t>{6, 0, 6}));
}

// A signal too long for its column pushes the rest of the row to the next line.
TEST_F(ManualDesign, FileOfTwoSignals)
{
  state_.SignalCount = 2;
  state_.Signal1 = {45.675, 1, 12345.678};
  state_.Signal2 = {30, 1, -0.125};
  state_.Decorr2 = {0.666, 0, -0.045};
  Finish();
  EXPECT_EQ(ReadText(file_), Golden("manual_two_signals.txt"));
}

TEST_F(ManualDesign, FailingWriteKeepsTheSelectionAndTheWindow)
{
  std::filesystem::create_directory(file_);
  const SurveyState before = state_;
  EXPECT_THAT(RefusalOf([&] { Finish(); }), HasSubstr("ab12ugsd.txt"));
  EXPECT_EQ(state_, before);
  EXPECT_FALSE(form_.Closed);
  EXPECT_EQ(dialogs_.Said, Lines{});
  EXPECT_EQ(ListFiles(directory_ / "data/farm"), (Lines{"ab12ugsd.txt/"}));
}

TEST_F(ManualDesign, DoneWithoutASelectionOrWithoutTheBoxWritesNothing)
{
  for (const bool box : {false, true}) {
    form_ = OpenMaskForm(state_);
    form_.Check1 = box;
    state_.SiteStatus = {box ? site_status::Free : site_status::Selected, 0, 7};
    const SurveyState before = state_;
    Finish();
    EXPECT_EQ(state_, before) << "the menu stays open";
    EXPECT_TRUE(form_.Closed);
  }
  EXPECT_EQ(dialogs_.Said, (Lines{"inform: Sample count = 0, hence no output file was created..."}));
  EXPECT_EQ(ListFiles(directory_ / "data/farm"), Lines{});
}

}  // namespace
}  // namespace veln
