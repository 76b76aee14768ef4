#include "desktop/desktop_fixture.h"
#include "forms/next_step.h"
#include "support/surveys.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace veln {
namespace {

struct GivenEntry {
  const char* Name;
  const char* Menu;
  const char* Caption;
  const char* Shortcut;
};

/// The menus as users, documents and scripts know them.
constexpr GivenEntry GivenEntries[] = {
    {"mnuFile", "", "File", ""},
    {"mnuProject", "mnuFile", "Set / Create Project and Field ID", ""},
    {"mnuImport", "mnuFile", "Import Survey Data File", ""},
    {"mnuIGSF", "mnuImport", "Import a Grid Survey File", "Ctrl+G"},
    {"mnuITSF", "mnuImport", "Import a Transect Survey File", "Ctrl+T"},
    {"mnuVPOF", "mnuFile", "View / Print Output Files", ""},
    {"mnuExit", "mnuFile", "Exit", "Ctrl+Q"},
    {"mnuG", "", "Graph", ""},
    {"mnuSG", "mnuG", "Open Graphics Window", ""},
    {"mnuA", "", "Analysis", ""},
    {"mnuStats", "mnuA", "Basic Statistics", ""},
    {"mnuSigD", "mnuA", "Signal Decorrelation", ""},
    {"mnuSigV", "mnuA", "Signal Validation", ""},
    {"mnuD", "", "Design", ""},
    {"mnuSRS", "mnuD", "Calculate SRS Sample Design", ""},
    {"mnuMask", "mnuD", "Manual Sample Site Selection", ""},
    {"mnuSHowMap", "mnuD", "Display Sample Site Map", ""},
    {"mnuHelp", "", "Help", ""},
    {"mnuAbout", "mnuHelp", "About VELN-QTRD ", ""},
    {"mnuEIC", "mnuHelp", "VELN Interface Controls", ""},
    {"mnuMHelp", "mnuHelp", "OnLine Help", ""},
    {"mnuMH1", "mnuMHelp", "What is VELN-QTRD", ""},
    {"mnuMH2", "mnuMHelp", "Navigating the Main Menu", "F1"},
    {"mnuMH3", "mnuMHelp", "Frequently Asked Questions", ""},
};

using FrmMain = MainWindowTest;

TEST_F(FrmMain, HasTheGivenMenusInTheirOrderEachEntryWithAKeyOfItsOwn)
{
  EXPECT_EQ(Main->windowTitle(), "VELN-QTRD Software:   Version  2.35R");
  std::map<std::string, QStringList> order;
  std::map<std::string, QString> keys;
  for (const GivenEntry& given : GivenEntries) {
    const QAction& entry = Entry(given.Name);
    EXPECT_EQ(entry.text().remove('&'), given.Caption);
    EXPECT_EQ(entry.shortcut().toString().toStdString(), given.Shortcut) << given.Name;
    order[given.Menu] << given.Name;
    const QChar key = entry.text().at(entry.text().indexOf('&') + 1).toLower();
    EXPECT_TRUE(entry.text().contains('&') && !keys[given.Menu].contains(key)) << given.Name;
    keys[given.Menu] += key;
  }
  for (const auto& [menu, names] : order) {
    QStringList shown;
    const QWidget* parent =
        menu.empty() ? static_cast<QWidget*>(Main->menuBar()) : Entry(menu.c_str()).menu();
    for (const QAction* action : parent->actions()) {
      shown << action->objectName();
    }
    EXPECT_EQ(shown, names) << menu;
  }
}

TEST_F(FrmMain, EnablesWhatTheWorkflowOpens)
{
  const auto expectMirrored = [this](const char* when) {
    for (const GivenEntry& given : GivenEntries) {
      const auto gate = Gates.find(given.Name);
      const bool open = gate == Gates.end() || Shared.State.Menu.IsEnabled(gate->second);
      EXPECT_EQ(Entry(given.Name).isEnabled(), open) << given.Name << " after " << when;
    }
  };
  expectMirrored("the start");
  EXPECT_TRUE(Entry("mnuProject").isEnabled());
  EXPECT_FALSE(Entry("mnuITSF").isEnabled());
  using enum WorkflowEvent;
  for (const WorkflowEvent event :
       {ProjectAccepted, SurveyImported, SignalsDecorrelated, ConfigurationAccepted, DesignSaved,
        DesignsExhausted, ManualDesignSaved}) {
    Shared.State.Menu.Apply(event);
    Shared.Changed();
    expectMirrored(("event " + std::to_string(static_cast<int>(event))).c_str());
  }
  EXPECT_TRUE(Entry("mnuVPOF").isEnabled());
}

TEST_F(FrmMain, ChoosingProjectCutsTheBannerShort)
{
  auto& timer = *Main->findChild<QTimer*>("Timer1");
  EXPECT_EQ(timer.interval(), 10);
  ASSERT_TRUE(Choose("mnuProject"));
  EXPECT_NE(Window("frmProject"), nullptr);
  ASSERT_TRUE(QTest::qWaitFor([&timer] { return !timer.isActive(); }));
  EXPECT_EQ(Text("frmMain", "Label20"), "Norvane Department");
  EXPECT_TRUE(Shown("frmMain", "Label23"));
}

TEST_F(FrmMain, ShowsEachCardWhenItsStepHasRun)
{
  const auto cards = [this] {
    std::string shown;
    for (const QGroupBox* card : Main->findChildren<QGroupBox*>()) {
      shown += card->isVisible() ? card->title().toStdString() + "|" : "";
    }
    return shown;
  };
  EXPECT_EQ(cards(), "");
  Set(NamedState());
  EXPECT_EQ(cards(), "Project Status Window|");
  EXPECT_FALSE(Shown("frmMain", "LblIF"));
  Set(ImportedSurvey(GridSurvey(10, 8, 1)));
  EXPECT_EQ(cards(), "Project Status Window|Signal Statistics|");
  EXPECT_TRUE(Shown("frmMain", "LblMu1"));
  EXPECT_FALSE(Shown("frmMain", "LblMu2") || Shown("frmMain", "Label13")) << "there is one signal";
  Set(AcceptedSurvey(TransectSurvey(8, 10)));
  EXPECT_EQ(cards(), "Project Status Window|Signal Statistics|Decorrelation Statistics|EB / TA  Algorithms|");
}

TEST_F(FrmMain, ShowsTheTextsOfTheRecord)
{
  SurveyState state = AcceptedSurvey(TransectSurvey(8, 10));
  state.Algorithms = {AlgorithmState::Invoked, AlgorithmState::NotAsked};
  state.Signals.Rows[0].Statistics.Maximum = 79.5;
  state.Signals.Correlation = 0.83125;
  state.DesignCount = 2;
  state.Designs[1] = {12, 0.984};
  Set(state);
  const std::pair<const char*, std::string> texts[] = {
      {"LblFD", "North field"}, {"LblPS", "farm"},    {"LblID", "ab12"},     {"LblIF", "raw.txt"},
      {"LblFT", "Transect"},    {"LblSS", "80"},      {"LblSC", " 2"},       {"LblST", "none"},
      {"LblNm2", "EMh"},        {"LblMx1", "79.500"}, {"LblCorr", "0.8313"}, {"Lblostd", "4.50"},
      {"LblEB", "invoked"},     {"Label21", "none"},  {"Lblssoc2", " .98"}};
  for (const auto& [label, text] : texts) {
    EXPECT_EQ(Text("frmMain", label), text) << label;
  }
  EXPECT_EQ(Control("frmMain", "Lblssoc2").accessibleName(), "Design 2 OptCri .98");
  EXPECT_TRUE(Shown("frmMain", "Label28"));
  EXPECT_FALSE(Shown("frmMain", "Label27") || Shown("frmMain", "Lblssmdn"));
}

TEST_F(FrmMain, StatusBarTellsTheNextStep)
{
  Set(ImportedSurvey(GridSurvey(10, 8)));
  EXPECT_EQ(Text("frmMain", "LblNextStep"), "Next: decorrelate 80 sites");
  EXPECT_FALSE(Shown("frmMain", "DropPlace"));
}

TEST_F(FrmMain, RefusesToCloseAndAsksInPlaceOfIt)
{
  Asked.Answer(false);
  EXPECT_FALSE(Main->close());
  EXPECT_TRUE(Main->isVisible());
  EXPECT_EQ(Ended, 0);
  Asked.Answer(true);
  EXPECT_TRUE(Choose("mnuExit"));
  EXPECT_EQ(Ended, 1);
  EXPECT_THAT(Asked.Said,
              ElementsAre("ask: Do You Really Wish to Exit?", "ask: Do You Really Wish to Exit?"));
}

TEST_F(FrmMain, WarnsBeforeItEndsWithoutADesign)
{
  Set(AcceptedSurvey(GridSurvey(10, 8)));
  Asked.Answer(false);
  Choose("mnuExit");
  EXPECT_EQ(Ended, 0);
  EXPECT_THAT(Asked.Said,
              ElementsAre("beep",
                          "ask: Warning!  No sample designs have been created!  Do you still wish "
                          "to exit?"));
}

TEST_F(FrmMain, WithADesignClosingOpensTheExportOnce)
{
  Set(AcceptedSurvey(GridSurvey(10, 8)));
  Shared.State.DesignCount = 1;
  Shared.Changed();
  Main->close();
  QWidget* first = Window("frmOutFD");
  ASSERT_NE(first, nullptr);
  Main->close();
  EXPECT_EQ(Window("frmOutFD"), first);
  EXPECT_THAT(Asked.Said, ElementsAre());
  EXPECT_EQ(Ended, 0);
}

TEST_F(FrmMain, EndingClosesEveryWindow)
{
  Choose("mnuProject");
  Choose("mnuAbout");
  Asked.Answer(true);
  Main->close();
  Settle();
  EXPECT_EQ(Window("frmProject"), nullptr);
  EXPECT_EQ(Window("frmAbout"), nullptr);
  EXPECT_EQ(Ended, 1);
}

TEST_F(FrmMain, StartsTheEditorOnAChosenOutputFile)
{
  Set(AcceptedSurvey(GridSurvey(10, 8)));
  Asked.ChooseFile(std::filesystem::path("/data/my file.txt"));
  Asked.FailShell("No such file or directory");
  Choose("mnuVPOF");
  EXPECT_THAT(Asked.Said, ElementsAre("open: File View", "shell: [write] [/data/my file.txt]",
                                      "warn: No such file or directory"));
}

TEST_F(FrmMain, RemembersItsPlace)
{
  Main->resize(700, 500);
  Main.reset();
  Main = std::make_unique<frmMain>(Shared);
  EXPECT_EQ(Main->size(), QSize(700, 500));
}

/// A file dragged over the main window and let go.
class FrmMainDrop : public MainWindowTest {
 protected:
  void SetUp() override
  {
    MainWindowTest::SetUp();
    WriteText(Directory / "raw.txt", "1,2,3\n");
    data_.setUrls({QUrl::fromLocalFile(RawFile())});
  }

  QString RawFile() { return QString::fromStdString((Directory / "raw.txt").string()); }

  /// False if the pointer shows that the window does not take the file.
  bool Drop()
  {
    QDragEnterEvent enter({20, 60}, Qt::CopyAction, &data_, Qt::LeftButton, Qt::NoModifier);
    enter.setAccepted(false);
    QApplication::sendEvent(Main.get(), &enter);
    if (enter.isAccepted()) {
      QDropEvent drop({20, 60}, Qt::CopyAction, &data_, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(Main.get(), &drop);
      Settle();
    }
    return enter.isAccepted();
  }

 private:
  QMimeData data_;
};

TEST_F(FrmMainDrop, BeforeAProjectTheFileIsKeptForTheImport)
{
  EXPECT_TRUE(Drop());
  EXPECT_EQ(Window("DropMenu"), nullptr);
  EXPECT_EQ(Text("frmMain", "LblNextStep"),
            "Next: set or create a project and a field ID; raw.txt is kept for the import");
  Set(NamedState());
  ASSERT_TRUE(Choose("mnuITSF"));
  EXPECT_EQ(Text("frmStructure", "Text3"), RawFile().toStdString());
  EXPECT_EQ(Text("frmMain", "LblNextStep"), "Next: import a survey data file");
}

TEST_F(FrmMainDrop, WithAProjectItAsksForTheSurveyTypeAtThePointer)
{
  Set(NamedState());
  EXPECT_TRUE(Drop());
  auto* menu = dynamic_cast<QMenu*>(Window("DropMenu"));
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->pos(), Main->mapToGlobal(QPoint(20, 60)));
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions().at(0)->text().remove('&'), "Grid");
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(1)).center());
  Settle();
  EXPECT_EQ(Text("frmStructure", "Text3"), RawFile().toStdString());
  EXPECT_TRUE(Shown("frmStructure", "Label5")) << "a transect survey has row numbers";
}

TEST_F(FrmMainDrop, AfterTheImportItIsNotTaken)
{
  Set(ImportedSurvey(GridSurvey(10, 8)));
  EXPECT_FALSE(Drop());
}

}  // namespace
}  // namespace veln
