#include "forms/record_preview.h"
#include "forms/structure_form.h"
#include "support/surveys.h"
#include "support/table.h"
#include "support/testing.h"

namespace veln {
namespace {

TEST(StructureForm, TransformOverwritesLabelsAndUnitsAreAPair)
{
  StructureForm form;
  EXPECT_EQ(form.Request().Units, ConductivityUnits::MilliSiemens);
  form.Text1 = "mine";
  form.Text3 = "raw.txt";
  ChooseLogTransform(form, true);
  ChooseUnits(form, true);
  form.Transect = form.Check2 = true;
  const ImportRequest request = form.Request();
  EXPECT_EQ(request.FileName + request.Labels[0] + request.Labels[1], "raw.txtlog(EMv)log(EMh)");
  EXPECT_EQ(request.Units, ConductivityUnits::DeciSiemens);
  EXPECT_TRUE(request.Log && request.Layout.Transect && request.Layout.SecondSignal &&
              !request.Layout.SiteIdColumn);
  ChooseLogTransform(form, false);
  EXPECT_EQ(form.Text1 + form.Text2, "EMvEMh");
  EXPECT_EQ(form.Label9(),
            "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*,  row-num    (* if present)");
  form.Transect = false;
  EXPECT_EQ(form.Label9(), "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*    (* if present)");
}

TEST(StructureForm, ImportsAndBeepsFirstWithoutAFile)
{
  const TemporaryDirectory folder;
  SurveyState state = NamedState();
  ScriptedDialogs dialogs;
  StructureForm form;
  form.Text3 = folder / "raw.txt";
  EXPECT_THAT(RefusalOf([&] { ImportStructure(form, state, dialogs, {}); }), HasSubstr("File not found"));
  EXPECT_THAT(dialogs.Said, ElementsAre("beep"));
  WriteText(folder / "raw.txt", Repeated("1 2 3\n", 50));
  ImportStructure(form, state, dialogs, {});
  EXPECT_EQ(state.SurveySize, 50);
  EXPECT_EQ(dialogs.Said.size(), 1U);
}

TEST(RecordPreview, ShowsRecordsAndTheFirstFaultAsTheTableSays)
{
  for (const TableCase& file : ReadTable(std::filesystem::path(VELN_TEST_DATA) / "previews.txt")) {
    const std::vector<std::string> words = WordsOf(file.Head);
    const auto told = [&words](const char* column) { return words.at(0).find(column) != std::string::npos; };
    const RecordPreview preview =
        PreviewRecords(words.at(1), {told("row"), told("id"), told("s2")}, told("log"));
    std::vector<std::string> shown;
    for (const auto& record : preview.Records) {
      std::string line;
      for (const std::string& item : record) {
        line += (line.empty() ? "" : "|") + item;
      }
      shown.push_back(line);
    }
    if (preview.FirstFault) {
      shown.push_back("record " + std::to_string(preview.FirstFault->Record) + ", " +
                      preview.Headings.at(preview.FirstFault->Item) + ": " + preview.FirstFault->Reason);
    }
    EXPECT_EQ(shown, file.Lines) << file.Place;
  }
}

TEST(RecordPreview, HasTenRecordsOfTheBeginningOfAFile)
{
  EXPECT_THAT(PreviewRecords("", {true, true, true}, false).Headings,
              ElementsAre("site-ID", "x-cord", "y-cord", "s1", "s2", "row-num"));
  EXPECT_THAT(PreviewRecords("", {}, false).Headings, ElementsAre("x-cord", "y-cord", "s1"));
  const TemporaryDirectory folder;
  WriteText(folder / "raw.txt", Repeated("1 2 3\n", 11));
  EXPECT_EQ(PreviewFile(folder / "raw.txt", {}, false).Records.size(), 10U);
  EXPECT_EQ(PreviewFile(folder / "raw.txt", {}, false).Records[9].size(), 3U);
  WriteText(folder / "raw.txt", "1 2 3 4 5 " + std::string(16384, '6'));
  EXPECT_THAT(PreviewFile(folder / "raw.txt", {}, false).Records,
              ElementsAre(ElementsAre("1", "2", "3"), ElementsAre("4", "5")))
      << "no item is shown cut";
  EXPECT_THAT(RefusalOf([&] { PreviewFile(folder / "none.txt", {}, false); }), HasSubstr("No such file"));
}

}  // namespace
}  // namespace veln
