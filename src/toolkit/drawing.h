#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace veln {

inline constexpr double TwipsPerPixel = 15;  ///< a twip is the 1440th part of an inch, a pixel the 96th

/// A colour as red, green and blue, 0 to 255.
struct Colour {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;
  bool operator==(const Colour&) const = default;
};

/// One of the 16 colours by its number: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 brown, 7 white,
/// 8 grey, then the light ones 9 to 14, and 15 bright white.
Colour QBColor(int number);

/// A place on a drawing, in its logical coordinates.
struct DrawPoint {
  double X = 0;
  double Y = 0;
  bool operator==(const DrawPoint&) const = default;
};

/// How a mark is drawn: its colour, and its width in pixels at the drawing's own size.
struct Pen {
  Colour Ink;
  double Width = 1;
  bool operator==(const Pen&) const = default;
};

/// A round dot of diameter `Width`.
struct DotMark {
  DrawPoint At;
  Pen Stroke;
  bool operator==(const DotMark&) const = default;
};

struct LineMark {
  DrawPoint From, To;
  Pen Stroke;
  bool operator==(const LineMark&) const = default;
};

/// A box with two opposite corners: its outline, or filled, and then at least as thick as its pen.
struct BoxMark {
  DrawPoint First, Second;
  Pen Stroke;
  bool Filled = false;
  bool operator==(const BoxMark&) const = default;
};

/// Which point of a text's top edge stands at its place.
enum class TextAnchor { Start, Middle, End };

/// Text whose top edge is at a place: it begins there, or as its anchor tells.
struct TextMark {
  DrawPoint At;
  std::string Text;
  Colour Ink;
  double FontSize = 8;  ///< points at the drawing's own size
  bool Bold = false;
  TextAnchor Anchor = TextAnchor::Start;
  bool operator==(const TextMark&) const = default;
};

using DrawMark = std::variant<DotMark, LineMark, BoxMark, TextMark>;

/// The marks from `Begin` to before `End`, which show only inside a box.
struct ClippedMarks {
  DrawPoint First, Second;  ///< two opposite corners of the box
  std::size_t Begin = 0;
  std::size_t End = std::numeric_limits<std::size_t>::max();
  bool operator==(const ClippedMarks&) const = default;
};

/// A picture as data: a display list in logical coordinates, drawn in its order. What is drawn later covers
/// what was drawn before.
struct Drawing {
  // Logical coordinates of the surface; y grows downward.
  double ScaleLeft = 0;
  double ScaleTop = 0;
  double ScaleWidth = 1;
  double ScaleHeight = 1;
  double PixelWidth = 100;  ///< width of the surface in pixels at which pens and fonts have their own size
  std::vector<DrawMark> Marks;
  std::optional<ClippedMarks> Clip;

  void PSet(DrawPoint at, const Pen& pen) { Marks.emplace_back(DotMark{at, pen}); }
  void Line(DrawPoint from, DrawPoint to, const Pen& pen) { Marks.emplace_back(LineMark{from, to, pen}); }
  void Box(DrawPoint first, DrawPoint second, const Pen& pen)
  {
    Marks.emplace_back(BoxMark{first, second, pen, false});
  }
  void FillBox(DrawPoint first, DrawPoint second, Colour ink)
  {
    Marks.emplace_back(BoxMark{first, second, {ink, 1}, true});
  }

  bool operator==(const Drawing&) const = default;
};

/// The marks before, inside and behind the clipped ones.
struct DrawingParts {
  std::span<const DrawMark> Before, Clipped, Behind;
};

/// The parts of a drawing, each from mark `first` on.
DrawingParts PartsOf(const Drawing& drawing, std::size_t first = 0);

/// The marks of one kind, in their order.
template <class Mark>
std::vector<Mark> Only(const Drawing& drawing)
{
  std::vector<Mark> marks;
  for (const DrawMark& mark : drawing.Marks) {
    if (const auto* found = std::get_if<Mark>(&mark)) {
      marks.push_back(*found);
    }
  }
  return marks;
}

/// One mark as a line of text, as in "line -1.05,-1.05 to 1.05,-1.05 width 2 colour 0,0,0".
std::ostream& operator<<(std::ostream& out, const DrawMark& mark);

}  // namespace veln
