#include "desktop/survey/frm_structure.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>
#include <QRadioButton>
#include <QTableWidget>
#include <QUrl>

namespace veln {
namespace {

/// The texts with which a label was painted, one after the other.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& label) { label.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    const auto* label = dynamic_cast<QLabel*>(watched);
    if (event->type() == QEvent::Paint && label != nullptr) {
      const std::string text = label->text().toStdString();
      if (Texts.empty() || Texts.back() != text) {
        Texts.push_back(text);
      }
    }
    return false;
  }

  std::vector<std::string> Texts;
};

class FrmStructure : public DesktopTest {
 protected:
  void SetUp() override { Open(NamedState()); }

  void Open(const SurveyState& state)
  {
    Set(state);
    Shared.Show<frmStructure>()->SetSurveyType(true);
  }

  /// Writes a raw file and names it in `Text3`.
  void Name(const std::string& content)
  {
    WriteText(Directory / "raw.txt", content);
    Control<QLineEdit>("frmStructure", "Text3").setText(RawPath());
  }

  [[nodiscard]] QString RawPath() const { return QString::fromStdString((Directory / "raw.txt").string()); }

  static QTableWidget& Preview() { return Control<QTableWidget>("frmStructure", "preview"); }
};

TEST_F(FrmStructure, PreviewMarksTheFirstItemThatWouldBeRefused)
{
  const SurveyState before = Shared.State;
  Name("600000.5,3.25,40,1\n600001.5,3.25,41,1\n");
  EXPECT_EQ(Preview().rowCount(), 2);
  Click("frmStructure", "Check1");
  const QTableWidgetItem& marked = *Preview().item(0, 0);
  EXPECT_EQ(Preview().horizontalHeaderItem(0)->text(), "site-ID");
  EXPECT_TRUE(marked.font().bold());
  EXPECT_EQ(marked.foreground().color(), QColor(255, 0, 0));
  EXPECT_THAT(Text("frmStructure", "previewNote"),
              StartsWith("Record 1, site-ID: \"600000.5\" would be refused"));
  Click("frmStructure", "Check1");
  EXPECT_FALSE(Preview().item(0, 0)->font().bold());
  EXPECT_TRUE(Shared.State == before);
}

TEST_F(FrmStructure, ImportFillsTheRecordAndClosesTheWindow)
{
  Name(RawFileText(TransectSurvey(5, 10), {true, true, true}));
  for (const char* choice : {"Check1", "Check2", "Check4", "Option1"}) {
    Click("frmStructure", choice);
  }
  Type("frmStructure", "Text1", "R&D 1 and more");
  Click("frmStructure", "Command1");
  EXPECT_EQ(Window("frmStructure"), nullptr);
  EXPECT_TRUE(Asked.Said.empty());
  const SurveyState& state = Shared.State;
  EXPECT_EQ(state.SurveySize, 50);
  EXPECT_THAT(state.SignalLabel, ElementsAre("R&D 1 and ", "log(EMh)")) << "at most 10 characters";
  EXPECT_EQ(state.SignalUnits, ConductivityUnits::DeciSiemens);
  EXPECT_TRUE(state.LogTransform && IsTransect(state));
  EXPECT_EQ(state.ImportFileName, RawPath().toStdString());
  EXPECT_FALSE(state.Menu.IsEnabled(MenuEntry::mnuImport));
}

TEST_F(FrmStructure, CountersAreRepaintedEveryHundredLines)
{
  Name(RawFileText(TransectSurvey(10, 25, 1), {true, false, false}));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(Window("frmStructure")));
  Settle();
  const PaintWatch scanned(Control("frmStructure", "Label13"));
  const PaintWatch imported(Control("frmStructure", "Label15"));
  Click("frmStructure", "Command1");
  EXPECT_THAT(scanned.Texts, ElementsAre("0", "100", "200", "250"));
  EXPECT_THAT(imported.Texts, ElementsAre("0", "100", "200", "250"));
}

TEST_F(FrmStructure, DroppedFileFillsThePathWhereverItFalls)
{
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(RawPath())});
  QDragEnterEvent entered({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(Window("frmStructure"), &entered);
  EXPECT_TRUE(entered.isAccepted());
  QDropEvent dropped({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(Window("frmStructure"), &dropped);
  EXPECT_EQ(Text("frmStructure", "Text3"), RawPath().toStdString());
  for (const char* name : {"Text1", "Text2", "Text3"}) {
    EXPECT_FALSE(Control("frmStructure", name).acceptDrops()) << name;
  }
  EXPECT_FALSE(Preview().viewport()->acceptDrops());
  data.setUrls({QUrl("https://example.org/raw.txt")});
  QDragEnterEvent foreign({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
  foreign.ignore();
  QApplication::sendEvent(Window("frmStructure"), &foreign);
  EXPECT_FALSE(foreign.isAccepted());
}

}  // namespace
}  // namespace veln
