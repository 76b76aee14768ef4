#include "render/picture_file.h"

#include "support/testing.h"

#include <QImage>

namespace veln {
namespace {

Picture Sample()
{
  Drawing page{0, 0, 2, 1, 200, {}, {}};
  page.FillBox({0, 0}, {2, 1}, {255, 255, 255});
  page.PSet({1, 0.5}, {{255, 0, 0}, 40});
  page.Marks.emplace_back(TextMark{{0.2, 0.2}, "EMv & EMh", {0, 0, 128}, 8, true});
  return {page, "A map"};
}

TEST(PictureFile, BitmapAndPngOfOneSizeAreTheSamePixels)
{
  const TemporaryDirectory directory;
  for (const int width : {200, 500}) {
    SavePicture(Sample(), PictureFormat::Png, width, directory / "map.png");
    SavePicture(Sample(), PictureFormat::Bmp, width, directory / "map.bmp");
    const QImage png(QString::fromStdString((directory / "map.png").string()));
    const QImage bmp(QString::fromStdString((directory / "map.bmp").string()));
    EXPECT_EQ(png.size(), QSize(width, width / 2));
    EXPECT_EQ(png.convertToFormat(QImage::Format_RGB32), bmp.convertToFormat(QImage::Format_RGB32));
    // Pens grow with the picture: the dot is a fifth of its width wide.
    EXPECT_EQ(png.pixelColor(width / 2 + width / 11, width / 4), QColor(Qt::red));
    EXPECT_EQ(png.pixelColor(width / 2 + width / 9, width / 4), QColor(Qt::white));
  }
}

TEST(PictureFile, WidthIsHeldWithinItsLimits)
{
  EXPECT_EQ(PictureImage(Sample().Page, 9000).width(), 8000);
  EXPECT_EQ(PictureImage(Sample().Page, 1).width(), 100);
}

TEST(PictureFile, ShapesAndTextStayThemselvesInSvgAndPdf)
{
  const std::string svg = PictureContent(Sample(), PictureFormat::Svg, 0);
  EXPECT_NE(svg.find("EMv &amp; EMh</text>"), std::string::npos);
  EXPECT_NE(svg.find("<title>A map</title>"), std::string::npos);
  const std::string pdf = PictureContent(Sample(), PictureFormat::Pdf, 0);
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_NE(pdf.find("/Font"), std::string::npos);
  EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos) << "no pixels";
}

TEST(PictureFile, FormatComesFromTheName)
{
  EXPECT_EQ(FormatOfName("a/b.PNG"), PictureFormat::Png);
  EXPECT_EQ(FormatOfName("map.pdf"), PictureFormat::Pdf);
  EXPECT_EQ(FormatOfName("map.v2"), std::nullopt);
  EXPECT_EQ(FormatOfName("png"), std::nullopt);
}

TEST(PictureFile, FailedSaveLeavesNothing)
{
  const TemporaryDirectory directory;
  EXPECT_THROW(SavePicture(Sample(), PictureFormat::Svg, 0, directory / "missing" / "map.svg"), Refusal);
  EXPECT_FALSE(std::filesystem::exists(directory / "missing"));
}

}  // namespace
}  // namespace veln
