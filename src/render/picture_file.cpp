#include "render/picture_file.h"

#include "graphics/drawing_svg.h"
#include "render/drawing_painter.h"
#include "toolkit/file_store.h"
#include "toolkit/refusal.h"

#include <QBuffer>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace veln {

namespace {

constexpr std::array<const char*, 4> Extensions = {".png", ".bmp", ".svg", ".pdf"};  // by format

std::string ImageFile(const Picture& picture, const char* format, int width)
{
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  if (!PictureImage(picture.Page, width).save(&file, format)) {
    throw Refusal("The picture could not be made.");
  }
  return file.data().toStdString();
}

std::string PdfFile(const Picture& picture)
{
  constexpr double PointsPerPixel = 0.75;
  constexpr int Resolution = 1200;
  const Drawing& drawing = picture.Page;
  const double width = drawing.PixelWidth * PointsPerPixel;
  const QSizeF size(width, width * drawing.ScaleHeight / drawing.ScaleWidth);
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&file);
    writer.setTitle(QString::fromStdString(picture.Title));
    writer.setCreator("VELN-QTRD");
    writer.setResolution(Resolution);
    writer.setPageSize(QPageSize(size, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    if (!PaintPage(writer, drawing)) {
      throw Refusal("The picture could not be made.");
    }
  }
  return file.data().toStdString();
}

}  // namespace

std::optional<PictureFormat> FormatOfName(const std::filesystem::path& path)
{
  std::string extension = path.extension().string();
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const auto* const found = std::ranges::find(Extensions, extension);
  return found == Extensions.end() ? std::nullopt
                                   : std::optional(static_cast<PictureFormat>(found - Extensions.begin()));
}

const char* ExtensionOf(PictureFormat format)
{
  return Extensions.at(static_cast<std::size_t>(format));
}

QImage PictureImage(const Drawing& drawing, int width)
{
  const int wide = std::clamp(width, NarrowestPicture, WidestPicture);
  const auto high = static_cast<int>(std::lround(wide * drawing.ScaleHeight / drawing.ScaleWidth));
  QImage image(wide, high, QImage::Format_RGB32);
  if (image.isNull()) {
    throw Refusal("There is not enough memory for a picture of this size.");
  }
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintDrawing(painter, drawing, {QRectF(0, 0, wide, high), wide / drawing.PixelWidth});
  return image;
}

std::string PictureContent(const Picture& picture, PictureFormat format, int width)
{
  switch (format) {
    case PictureFormat::Svg:
      return SvgText(picture.Page, picture.Title);
    case PictureFormat::Pdf:
      return PdfFile(picture);
    case PictureFormat::Bmp:
      return ImageFile(picture, "BMP", width);
    case PictureFormat::Png:
      break;
  }
  return ImageFile(picture, "PNG", width);
}

void SavePicture(const Picture& picture, PictureFormat format, int width, const std::filesystem::path& path)
{
  WriteFiles({{path, PictureContent(picture, format, width)}});
}

bool PaintPage(QPagedPaintDevice& device, const Drawing& drawing)
{
  QPainter painter;
  if (!painter.begin(&device)) {
    return false;
  }
  DrawingFrame frame = FitDrawing(drawing, QRectF(0, 0, device.width(), device.height()));
  frame.Target.moveTop(0);
  PaintDrawing(painter, drawing, frame);
  return painter.end();
}

}  // namespace veln
