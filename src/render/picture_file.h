#pragma once

#include "toolkit/drawing.h"

#include <QImage>

#include <filesystem>
#include <optional>
#include <string>

class QPagedPaintDevice;

namespace veln {

enum class PictureFormat { Png, Bmp, Svg, Pdf };

inline constexpr int NarrowestPicture = 100;
inline constexpr int WidestPicture = 8000;

/// A picture to be saved, copied or printed: the drawing with its paper, and its title for the file.
struct Picture {
  Drawing Page;
  std::string Title;
};

/// The format that a file's name tells (".png", ".SVG"), if it does.
std::optional<PictureFormat> FormatOfName(const std::filesystem::path& path);
/// The extension of a format, as in ".png".
const char* ExtensionOf(PictureFormat format);

/// The drawing on white paper as pixels; pens and fonts grow with `width`. Throws Refusal when there is no
/// memory for it.
QImage PictureImage(const Drawing& drawing, int width);

/// A file's whole content. `width` in pixels counts for PNG and BMP; SVG and PDF have the drawing's own size
/// and keep its shapes. Throws Refusal if the picture can't be made.
std::string PictureContent(const Picture& picture, PictureFormat format, int width);

/// Puts the file in place, whole or not at all. Throws Refusal with the reason.
void SavePicture(const Picture& picture, PictureFormat format, int width, const std::filesystem::path& path);

/// The drawing at the top of a page, as wide as the page allows. False if the device cannot be painted on.
bool PaintPage(QPagedPaintDevice& device, const Drawing& drawing);

}  // namespace veln
