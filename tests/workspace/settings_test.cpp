#include "workspace/settings.h"

#include "support/table.h"
#include "support/testing.h"
#include "toolkit/number_text.h"

namespace veln {

namespace fs = std::filesystem;

namespace {

constexpr const char* ReadWarning = "warn: Warning! TE_FIO read error! Standard default settings employed...";
constexpr const char* SavedNote = "inform: Your new VELN start-up information has been updated and saved.";

/// The six lines, each ended by `end`.
std::string Settings(const std::string& editor, const std::string& inputPath, const std::string& factor,
                     const std::string& end = "\r\n")
{
  return "VELN default Text Editor information:" + end + editor + end +
         "VELN default raw survey Input File path information:" + end + inputPath + end +
         "Default printer DPI: (1=300, 2=600, 4=1200 dpi)" + end + factor + end;
}

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() { State.ProgramDir = folder_.Path(); }

  [[nodiscard]] fs::path File() const { return folder_ / "VELN_te_fio_info.dat"; }
  [[nodiscard]] std::vector<std::string> FilesThere() const { return ListFiles(folder_.Path()); }

  /// The three settings as read from a file of this content: "editor|input path|factor".
  std::string Read(const std::string& content)
  {
    WriteText(File(), content);
    Dialogs.Said.clear();
    return ReadAgain();
  }

  std::string ReadAgain()
  {
    State.TextEditorPath = State.InputFilePath = "left over";
    State.PrinterDpiFactor = -1;
    ReadTEandFIOinfo(State, Dialogs);
    return Shown();
  }

  [[nodiscard]] std::string Shown() const
  {
    return State.TextEditorPath + "|" + State.InputFilePath + "|" + GeneralForm(State.PrinterDpiFactor);
  }

  [[nodiscard]] std::string Defaults() const { return "xdg-open |" + folder_.Path().string() + "|2"; }

  SurveyState State;
  ScriptedDialogs Dialogs;

 private:
  TemporaryDirectory folder_;
};

TEST_F(SettingsTest, SavedAndReadAgainTheyStayByteForByte)
{
  State.TextEditorPath = " /usr/bin/my editor";
  State.InputFilePath = "/surveys/\u00C4cker \u6C34";
  State.PrinterDpiFactor = 4;
  for (int round = 0; round < 2; ++round) {
    SaveTEandFIOinfo(State, Dialogs);
    ASSERT_EQ(ReadText(File()), Settings(" /usr/bin/my editor", "/surveys/\u00C4cker \u6C34", "4"));
    ASSERT_EQ(ReadAgain(), " /usr/bin/my editor|/surveys/\u00C4cker \u6C34|4");
  }
  EXPECT_THAT(Dialogs.Said, ElementsAre(SavedNote, SavedNote));
}

TEST_F(SettingsTest, FilesAreReadAsTheTableSays)
{
  EXPECT_EQ(ReadAgain(), Defaults()) << "there is no file";
  EXPECT_THAT(Dialogs.Said, ElementsAre(ReadWarning));
  EXPECT_THAT(FilesThere(), IsEmpty());
  for (const auto& row : ReadRows(fs::path(VELN_TEST_DATA) / "settings_files.txt")) {
    const bool damaged = row.size() == 4;
    EXPECT_EQ(Read(Settings(row[0], row[1], row[2], row[3])), damaged ? Defaults() : row[4]);
    EXPECT_EQ(Dialogs.Said, std::vector<std::string>(damaged ? 1 : 0, ReadWarning))
        << testing::PrintToString(row);
  }
}

TEST_F(SettingsTest, AHalfWrittenFileGivesAllThreeDefaultsOverWhatWasRead)
{
  const std::string whole = Settings(" gedit", "/raw", "4");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const bool hasFactor = length + 2 >= whole.size();
    ASSERT_EQ(Read(whole.substr(0, length)), hasFactor ? " gedit|/raw|4" : Defaults()) << length;
    ASSERT_EQ(Dialogs.Said.size(), hasFactor ? 0U : 1U) << length;
  }
}

TEST_F(SettingsTest, AFailedWriteBeepsAndKeepsTheValuesOfThisRun)
{
  fs::create_directory(File());
  State.TextEditorPath = " gedit";
  const SurveyState before = State;
  SaveTEandFIOinfo(State, Dialogs);
  EXPECT_THAT(Dialogs.Said, ElementsAre("beep", HasSubstr("Is a directory")));
  EXPECT_TRUE(State == before);
  EXPECT_THAT(FilesThere(), ElementsAre("VELN_te_fio_info.dat/"));
}

TEST_F(SettingsTest, CancelBringsBackWhatTheWindowFound)
{
  Read(Settings(" gedit", "/raw", "4"));
  const SurveyState before = State;
  FileIoForm form = LoadFileIoForm(State);
  BrowseTextEditor(form, State, "/usr/bin/my editor");
  ChoosePrinterDpi(form, State, 1);
  State.InputFilePath = "/elsewhere";
  EXPECT_EQ(Shown() + form.TxtEditor, " /usr/bin/my editor|/elsewhere|1 /usr/bin/my editor");
  BrowseTextEditor(form, State, std::nullopt);
  EXPECT_EQ(form.TxtEditor, " gedit");

  RestoreSettings(form, State, Dialogs);
  EXPECT_TRUE(State == before);
  EXPECT_THAT(Dialogs.Said,
              ElementsAre("inform: The previous default Text Editor and Input file path information "
                          "has been restored."));
  EXPECT_EQ(ReadText(File()), Settings(" gedit", "/raw", "4"));
}

TEST_F(SettingsTest, OnlyTheThreeResolutionsSelectAnOption)
{
  const std::vector<std::pair<double, int>> cases = {{1, 1},   {2, 2}, {4, 4},  {2.5, 2},   {3.5, 4},
                                                     {0.5, 0}, {3, 0}, {-1, 0}, {40000, 0}, {65537, 0}};
  for (const auto& [factor, selected] : cases) {
    State.PrinterDpiFactor = factor;
    EXPECT_EQ(LoadFileIoForm(State).SelectedFactor, selected) << factor;
  }
}

}  // namespace
}  // namespace veln
