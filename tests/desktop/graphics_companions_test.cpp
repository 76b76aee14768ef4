// The windows beside the graphics window: options, coordinate translation, and the sample site map.
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics_fixture.h"
#include "graphics/site_map.h"

#include <QPrinter>

namespace veln {
namespace {

using Companions = GraphicsTest;

class FrmSiteMap : public Companions {
 protected:
  static bool Choose(const char* name) { return Companions::Choose(name, "frmSiteMap"); }
};

TEST_F(FrmSiteMap, BitmapsAreOfferedInTheDirectoryOfTheLastOne)
{
  Set(SurveyWithDesigns());
  Shared.Show<frmSiteMap>();
  ASSERT_TRUE(Choose("mnusubRS1"));
  std::filesystem::path offered;
  std::filesystem::path chosen;
  Shared.ChooseFile = [&](const QString&, const std::filesystem::path& file, const QString&) {
    offered = file;
    return chosen.empty() ? std::nullopt : std::optional(chosen);
  };
  ASSERT_TRUE(Choose("mnusubSaveAsBit"));
  EXPECT_EQ(Asked.Said.back(), "warn: No file name was given.");
  EXPECT_EQ(offered, Directory / "data" / "farm" / "ab12map.bmp");
  std::filesystem::create_directory(Directory / "bitmap");
  chosen = Directory / "bitmap" / "one.bmp";
  ASSERT_TRUE(Choose("mnusubSaveAsBit"));
  EXPECT_EQ(offered, Directory / "bitmap" / "ab12map.bmp");
  const QImage bmp(QString::fromStdString((Directory / "bitmap" / "one.bmp").string()));
  EXPECT_EQ(bmp.size(), QSize(433, 433));
  // Site 11 lies in the 1st row: its heavy dot is light blue.
  const DrawPoint site = Only<DotMark>(DrawSiteMap(Shared.State, 1)).at(100).At;
  EXPECT_EQ(bmp.pixelColor(static_cast<int>(site.X * 433), static_cast<int>(site.Y * 433)),
            QColor(0, 0, 255));
}

TEST_F(FrmSiteMap, TellsWhenThePageIsSpooled)
{
  Set(SurveyWithDesigns());
  Shared.Show<frmSiteMap>();
  Shared.ChoosePrinter = [](QPrinter&, QWidget*) { return false; };
  ASSERT_TRUE(Choose("mnusubPrintD"));
  EXPECT_TRUE(Asked.Said.empty());
  Shared.ChoosePrinter = [this](QPrinter& printer, QWidget*) {
    printer.setOutputFileName(QString::fromStdString((Directory / "map.pdf").string()));
    return true;
  };
  ASSERT_TRUE(Choose("mnusubRS1"));
  ASSERT_TRUE(Choose("mnusubPrintD"));
  EXPECT_THAT(Asked.Said, ElementsAre("inform: An image of the current sampling design has been spooled to "
                                      "your printer..."));
  EXPECT_TRUE(ReadText(Directory / "map.pdf").starts_with("%PDF"));
}

}  // namespace
}  // namespace veln
