#include "graphics/drawing_svg.h"

#include "graphics/mark_layers.h"
#include "graphics/twip_surface.h"
#include "toolkit/number_text.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <span>
#include <utility>
#include <variant>
#include <vector>

namespace veln {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr TwipPoint Nowhere{std::numeric_limits<std::int32_t>::min(), 0};

std::string Number(double value)
{
  return FormatNumber(value, "0.###");
}

std::string HexColour(Colour ink)
{
  constexpr const char* Digits = "0123456789abcdef";
  constexpr unsigned Sixteen = 16;
  std::string text = "#";
  for (const unsigned part : {ink.Red, ink.Green, ink.Blue}) {
    text += Digits[part / Sixteen];
    text += Digits[part % Sixteen];
  }
  return text;
}

/// The style class of a pen: short, since it stands at each path, and told by the pen alone, so that pictures
/// can share a page.
std::string ClassOf(const Pen& pen)
{
  constexpr int Base = 36;
  constexpr int Thousandths = 1000;
  const unsigned ink = unsigned{pen.Ink.Red} << 16U | unsigned{pen.Ink.Green} << 8U | pen.Ink.Blue;
  std::array<char, 8> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), ink, Base).ptr;
  const auto whole = static_cast<int>(pen.Width);
  std::string name(1, static_cast<char>('a' + std::clamp(whole - 1, 0, 25)));
  name.append(digits.data(), end);
  if (pen.Width != whole || whole < 1 || whole > 26) {
    name += "-" + std::to_string(std::lround(pen.Width * Thousandths));
  }
  return name;
}

/// The style of every pen that a path of the drawing may have.
std::string StyleSheet(const Drawing& drawing)
{
  std::map<std::string, Pen> pens;
  Pen last{{}, -1};  // most marks have the pen of the one before
  for (const DrawMark& mark : drawing.Marks) {
    const auto* dot = std::get_if<DotMark>(&mark);
    const auto* line = std::get_if<LineMark>(&mark);
    if (dot != nullptr || line != nullptr) {
      const Pen& pen = dot != nullptr ? dot->Stroke : line->Stroke;
      if (pen != last) {
        pens.emplace(ClassOf(pen), pen);
        last = pen;
      }
    }
  }
  std::string text;
  for (const auto& [name, pen] : pens) {
    text += "." + name + "{stroke:" + HexColour(pen.Ink) +
            ";stroke-width:" + Number(pen.Width * TwipsPerPixel) + "}";
  }
  return text.empty() ? "" : "<style type=\"text/css\">" + text + "</style>\n";
}

/// Text as XML holds it. Control characters and bytes that are not UTF-8 have no place there.
std::string Escaped(const std::string& text)
{
  constexpr unsigned char FirstPlain = 0x20;
  constexpr unsigned char FirstMultibyte = 0x80;
  const bool readable = IsUtf8(text);
  std::string escaped;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < FirstPlain || (!readable && byte >= FirstMultibyte)) {
      escaped += "?";
    } else if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else if (c == '>') {
      escaped += "&gt;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// A command of a path with a place.
struct PathWord {
  PathWord(char command, TwipPoint at)
  {
    Text[0] = command;
    char* end = std::to_chars(Text.data() + 1, Text.data() + Text.size(), at.X).ptr;
    if (at.Y >= 0) {
      *end++ = ',';
    }
    end = std::to_chars(end, Text.data() + Text.size(), at.Y).ptr;
    Size = static_cast<std::size_t>(end - Text.data());
  }

  std::array<char, 32> Text;
  std::size_t Size;
};

/// Writes layers of marks as elements of the document.
class ElementWriter {
 public:
  explicit ElementWriter(const TwipSurface& surface) : surface_(surface) {}

  void Write(const MarkLayer& layer)
  {
    path_.clear();
    current_ = lastFrom_ = Nowhere;
    for (const DrawMark* mark : layer.Marks) {
      std::visit(*this, *mark);
    }
    if (!path_.empty()) {
      text_ += "<path class=\"" + ClassOf(layer.Stroke) + "\" d=\"" + path_ + "\"/>\n";
    }
  }

  void operator()(const DotMark& dot)
  {
    Move(surface_.At(dot.At));
    path_ += "h0";
  }
  void operator()(const LineMark& line) { Join(surface_.At(line.From), surface_.At(line.To)); }
  void operator()(const BoxMark& box)
  {
    const TwipPoint a = surface_.At(box.First);
    const TwipPoint b = surface_.At(box.Second);
    const auto pen = static_cast<std::int32_t>(box.Stroke.Width * TwipsPerPixel);
    TwipPoint corner{std::min(a.X, b.X), std::min(a.Y, b.Y)};
    TwipPoint size{std::abs(a.X - b.X), std::abs(a.Y - b.Y)};
    if (box.Filled) {  // at least as thick as its pen
      corner = {corner.X - std::max(0, pen - size.X) / 2, corner.Y - std::max(0, pen - size.Y) / 2};
      size = {std::max(size.X, pen), std::max(size.Y, pen)};
    }
    text_ += "<rect";
    for (const auto& [name, value] : {std::pair{" x=\"", corner.X}, std::pair{" y=\"", corner.Y},
                                      std::pair{" width=\"", size.X}, std::pair{" height=\"", size.Y}}) {
      text_ += name + std::to_string(value) + '"';
    }
    text_ += box.Filled
                 ? " fill=\"" + HexColour(box.Stroke.Ink) + "\"/>\n"
                 : " stroke=\"" + HexColour(box.Stroke.Ink) + "\" stroke-width=\"" + Number(pen) + "\"/>\n";
  }
  void operator()(const TextMark& text)
  {
    constexpr double Ascent = 0.92;  // of the font size, from a text's top to its baseline
    const double size = text.FontSize * TwipsPerPoint;
    TwipPoint at = surface_.At(text.At);
    TextAnchor anchor = text.Anchor;
    if (anchor == TextAnchor::Start && at.X < surface_.Width && at.X + WidthOf(text) > surface_.Width) {
      anchor = TextAnchor::End;  // whole at the right edge
      at.X = surface_.Width;
    }
    text_ += "<text x=\"" + Number(at.X) + "\" y=\"" + Number(at.Y + std::round(Ascent * size)) +
             "\" font-size=\"" + Number(size) + "\" fill=\"" + HexColour(text.Ink) + "\"";
    if (text.Bold) {
      text_ += " font-weight=\"bold\"";
    }
    if (anchor != TextAnchor::Start) {
      text_ += anchor == TextAnchor::Middle ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
    }
    if (text.Text.starts_with(' ') || text.Text.ends_with(' ') || text.Text.find("  ") != std::string::npos) {
      text_ += " xml:space=\"preserve\"";
    }
    text_ += ">" + Escaped(text.Text) + "</text>\n";
  }

  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  /// How wide a text may be in twips: fonts are the viewer's, this is that of a wide one.
  static double WidthOf(const TextMark& text)
  {
    constexpr double Letter = 0.7;  // of the font size
    constexpr double Blank = 0.35;
    double width = 0;
    for (const char c : text.Text) {
      width += c == ' ' ? Blank : Letter;
    }
    return width * text.FontSize * TwipsPerPoint;
  }

  /// Goes to a place by its coordinates or by the way from where the path stands, whichever is shorter.
  void Go(char absolute, char relative, TwipPoint to)
  {
    PathWord word(absolute, to);
    if (!path_.empty()) {
      const PathWord way(relative, {to.X - current_.X, to.Y - current_.Y});
      word = way.Size < word.Size ? way : word;
    }
    path_.append(word.Text.data(), word.Size);
    current_ = to;
  }

  void Move(TwipPoint to) { Go('M', 'm', to); }

  /// Goes on from where the path stands when it can: along a row, or to and fro for rays from one point.
  void Join(TwipPoint from, TwipPoint to)
  {
    const TwipPoint start = from;
    if (current_ == to) {
      std::swap(from, to);
    } else if (current_ != from) {
      if (lastFrom_ == from) {
        std::swap(from, to);
      }
      Move(from);
    }
    Go('L', 'l', to);
    lastFrom_ = start;
  }

  const TwipSurface& surface_;
  std::string text_;
  std::string path_;  // of the layer at hand
  TwipPoint current_, lastFrom_;
};

/// The marks of a drawing: before, inside and behind its clipping.
std::string Body(const Drawing& drawing, const TwipSurface& surface)
{
  const auto elementsOf = [&](std::span<const DrawMark> marks) {
    ElementWriter writer(surface);
    for (const MarkLayer& layer : LayersOf(drawing, marks)) {
      writer.Write(layer);
    }
    return writer.Text();
  };
  const DrawingParts parts = PartsOf(drawing);
  if (!drawing.Clip) {
    return elementsOf(parts.Before);
  }
  const TwipPoint a = surface.At(drawing.Clip->First);
  const TwipPoint b = surface.At(drawing.Clip->Second);
  const std::string clip = R"(<clipPath id="box"><rect x=")" + Number(std::min(a.X, b.X)) + "\" y=\"" +
                           Number(std::min(a.Y, b.Y)) + "\" width=\"" + Number(std::abs(a.X - b.X)) +
                           "\" height=\"" + Number(std::abs(a.Y - b.Y)) + "\"/></clipPath>\n";
  return clip + elementsOf(parts.Before) + "<g clip-path=\"url(#box)\">\n" + elementsOf(parts.Clipped) +
         "</g>\n" + elementsOf(parts.Behind);
}

}  // namespace

std::string SvgText(const Drawing& drawing, const std::string& title)
{
  const TwipSurface surface(drawing);
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
      "version=\"1.1\" width=\"" +
      Number(drawing.PixelWidth) + "\" height=\"" + Number(surface.PixelHeight) + "\" viewBox=\"0 0 " +
      Number(surface.Width) + " " + Number(surface.Height) +
      "\" font-family=\"sans-serif\" fill=\"none\" stroke-linecap=\"round\">\n";
  if (!title.empty()) {
    text += "<title>" + Escaped(title) + "</title>\n";
  }
  return text + StyleSheet(drawing) + Body(drawing, surface) + "</svg>\n";
}

}  // namespace veln
