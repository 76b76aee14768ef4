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
constexpr UnitPoint Nowhere{std::numeric_limits<std::int32_t>::min(), 0};

void Append(std::string& text, std::int32_t number)
{
  std::array<char, 12> digits{};
  text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

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
  Pen last{{}, -1};
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
  PathWord(char command, UnitPoint at)
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

/// The data of a path of one pen width, and where its last piece ended and began.
struct PathData {
  double PenWidth = 1;
  std::string Data;
  UnitPoint Current = Nowhere;
  UnitPoint LastFrom = Nowhere;
};

/// A layer of the document: paths of one colour, or anything else as it stands.
struct Layer {
  Colour Ink;
  std::vector<PathData> Paths;
  std::string Other;
};

/// Turns marks into layers that keep the picture of their order.
class ElementWriter {
 public:
  explicit ElementWriter(const TwipSurface& surface)
      : surface_(surface), sorter_(surface.Width, surface.Height, static_cast<std::int32_t>(TwipsPerPixel))
  {
  }

  void Write(std::span<const DrawMark> marks)
  {
    for (std::size_t i = 0; i < marks.size(); ++i) {
      const auto* dot = std::get_if<DotMark>(&marks[i]);
      if (dot == nullptr || !IsHidden(*dot, marks.subspan(i + 1))) {
        std::visit(*this, marks[i]);
      }
    }
  }

  void operator()(const DotMark& dot)
  {
    const UnitPoint at = surface_.At(dot.At);
    if (PathData* path = PathFor(at, at, dot.Stroke)) {
      Move(*path, at);
      path->Data += "h0";
    }
  }
  void operator()(const LineMark& line)
  {
    const UnitPoint from = surface_.At(line.From);
    const UnitPoint to = surface_.At(line.To);
    if (PathData* path = PathFor(from, to, line.Stroke)) {
      Join(*path, from, to);
    }
  }
  void operator()(const BoxMark& box)
  {
    const UnitPoint a = surface_.At(box.First);
    const UnitPoint b = surface_.At(box.Second);
    const auto pen = static_cast<std::int32_t>(box.Stroke.Width * TwipsPerPixel);
    UnitPoint corner{std::min(a.X, b.X), std::min(a.Y, b.Y)};
    UnitPoint size{std::abs(a.X - b.X), std::abs(a.Y - b.Y)};
    if (box.Filled) {  // at least as thick as its pen
      corner = {corner.X - std::max(0, pen - size.X) / 2, corner.Y - std::max(0, pen - size.Y) / 2};
      size = {std::max(size.X, pen), std::max(size.Y, pen)};
    }
    std::string text = "<rect";
    for (const auto& [name, value] : {std::pair{" x=\"", corner.X}, std::pair{" y=\"", corner.Y},
                                      std::pair{" width=\"", size.X}, std::pair{" height=\"", size.Y}}) {
      text += name;
      Append(text, value);
      text += '"';
    }
    text += box.Filled
                ? " fill=\"" + HexColour(box.Stroke.Ink) + "\"/>"
                : " stroke=\"" + HexColour(box.Stroke.Ink) + "\" stroke-width=\"" + Number(pen) + "\"/>";
    Alone(text);
  }
  void operator()(const TextMark& text)
  {
    constexpr double Ascent = 0.92;  // of the font size, from a text's top to its baseline
    const double size = text.FontSize * TwipsPerPoint;
    UnitPoint at = surface_.At(text.At);
    TextAnchor anchor = text.Anchor;
    if (anchor == TextAnchor::Start && at.X < surface_.Width && at.X + WidthOf(text) > surface_.Width) {
      anchor = TextAnchor::End;  // whole at the right edge
      at.X = surface_.Width;
    }
    std::string element = "<text x=\"" + Number(at.X) + "\" y=\"" + Number(at.Y + std::round(Ascent * size)) +
                          "\" font-size=\"" + Number(size) + "\" fill=\"" + HexColour(text.Ink) + "\"";
    if (text.Bold) {
      element += " font-weight=\"bold\"";
    }
    if (anchor != TextAnchor::Start) {
      element += anchor == TextAnchor::Middle ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
    }
    if (text.Text.starts_with(' ') || text.Text.ends_with(' ') || text.Text.find("  ") != std::string::npos) {
      element += " xml:space=\"preserve\"";
    }
    Alone(element + ">" + Escaped(text.Text) + "</text>");
  }

  [[nodiscard]] std::string Text() const
  {
    std::string text;
    for (const Layer& layer : layers_) {
      for (const PathData& path : layer.Paths) {
        text += "<path class=\"" + ClassOf({layer.Ink, path.PenWidth}) + "\" d=\"" + path.Data + "\"/>\n";
      }
      text += layer.Other;
    }
    return text;
  }

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

  /// Whether one of the next two marks is a dot that covers this one all over, as a highlight does.
  static bool IsHidden(const DotMark& dot, std::span<const DrawMark> next)
  {
    return std::ranges::any_of(next.first(std::min<std::size_t>(next.size(), 2)), [&dot](const auto& mark) {
      const auto* cover = std::get_if<DotMark>(&mark);
      return cover != nullptr && cover->At == dot.At && cover->Stroke.Width >= dot.Stroke.Width;
    });
  }

  PathData* PathFor(UnitPoint from, UnitPoint to, const Pen& pen)
  {
    const double width = pen.Width * TwipsPerPixel;
    if (!sorter_.Touches(from, to, width)) {
      return nullptr;
    }
    const std::size_t place = sorter_.Place(from, to, pen.Ink, width);
    if (place == layers_.size()) {
      layers_.push_back({pen.Ink, {}, ""});
    }
    std::vector<PathData>& paths = layers_.at(place).Paths;
    const auto found = std::ranges::find(paths, pen.Width, &PathData::PenWidth);
    return found != paths.end() ? &*found : &paths.emplace_back(PathData{pen.Width, "", Nowhere, Nowhere});
  }

  void Alone(const std::string& text)
  {
    sorter_.PlaceAlone();
    layers_.push_back({{}, {}, text + "\n"});
  }

  /// Goes to a place by its coordinates or by the way from where the path stands, whichever is shorter.
  static void Go(PathData& path, char absolute, char relative, UnitPoint to)
  {
    PathWord word(absolute, to);
    if (!path.Data.empty()) {
      const PathWord way(relative, {to.X - path.Current.X, to.Y - path.Current.Y});
      word = way.Size < word.Size ? way : word;
    }
    path.Data.append(word.Text.data(), word.Size);
    path.Current = to;
  }

  static void Move(PathData& path, UnitPoint to) { Go(path, 'M', 'm', to); }

  /// Goes on from where the path stands when it can: along a row, or to and fro for rays from one point.
  static void Join(PathData& path, UnitPoint from, UnitPoint to)
  {
    const UnitPoint start = from;
    if (path.Current == to) {
      std::swap(from, to);
    } else if (path.Current != from) {
      if (path.LastFrom == from) {
        std::swap(from, to);
      }
      Move(path, from);
    }
    Go(path, 'L', 'l', to);
    path.LastFrom = start;
  }

  const TwipSurface& surface_;
  MarkLayers sorter_;
  std::vector<Layer> layers_;
};

std::string ElementsOf(const TwipSurface& surface, std::span<const DrawMark> marks)
{
  if (marks.empty()) {
    return "";
  }
  ElementWriter writer(surface);
  writer.Write(marks);
  return writer.Text();
}

/// The marks of a drawing: before, inside and behind its clipping.
std::string Body(const Drawing& drawing, const TwipSurface& surface)
{
  const std::span<const DrawMark> marks(drawing.Marks);
  if (!drawing.Clip) {
    return ElementsOf(surface, marks);
  }
  const std::size_t begin = std::min(drawing.Clip->Begin, marks.size());
  const std::size_t end = std::clamp(drawing.Clip->End, begin, marks.size());
  const UnitPoint a = surface.At(drawing.Clip->First);
  const UnitPoint b = surface.At(drawing.Clip->Second);
  const std::string clip = R"(<clipPath id="box"><rect x=")" + Number(std::min(a.X, b.X)) + "\" y=\"" +
                           Number(std::min(a.Y, b.Y)) + "\" width=\"" + Number(std::abs(a.X - b.X)) +
                           "\" height=\"" + Number(std::abs(a.Y - b.Y)) + "\"/></clipPath>\n";
  return clip + ElementsOf(surface, marks.first(begin)) + "<g clip-path=\"url(#box)\">\n" +
         ElementsOf(surface, marks.subspan(begin, end - begin)) + "</g>\n" +
         ElementsOf(surface, marks.subspan(end));
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
