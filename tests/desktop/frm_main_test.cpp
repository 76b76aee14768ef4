#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace veln {
namespace {

using FrmMain = MainWindowTest;

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
