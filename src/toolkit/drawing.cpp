#include "toolkit/drawing.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>

namespace veln {

namespace {

/// Writes a mark in words.
class MarkWriter {
 public:
  explicit MarkWriter(std::ostream& out) : out_(out) {}

  void operator()(const DotMark& dot) const
  {
    out_ << "dot ";
    Put(dot.At);
    Put(dot.Stroke);
  }
  void operator()(const LineMark& line) const
  {
    out_ << "line ";
    Put(line.From);
    out_ << " to ";
    Put(line.To);
    Put(line.Stroke);
  }
  void operator()(const BoxMark& box) const
  {
    out_ << (box.Filled ? "filled box " : "box ");
    Put(box.First);
    out_ << " to ";
    Put(box.Second);
    Put(box.Stroke);
  }
  void operator()(const TextMark& text) const
  {
    out_ << "text ";
    Put(text.At);
    out_ << " \"" << text.Text << "\" size " << text.FontSize << (text.Bold ? " bold" : "")
         << (text.Anchor == TextAnchor::Middle ? " middle" : "")
         << (text.Anchor == TextAnchor::End ? " end" : "");
    Put(text.Ink);
  }

 private:
  void Put(const DrawPoint& point) const { out_ << point.X << "," << point.Y; }
  void Put(const Colour& ink) const
  {
    out_ << " colour " << int{ink.Red} << "," << int{ink.Green} << "," << int{ink.Blue};
  }
  void Put(const Pen& pen) const
  {
    out_ << " width " << pen.Width;
    Put(pen.Ink);
  }

  std::ostream& out_;
};

}  // namespace

Colour QBColor(int number)
{
  constexpr std::array<Colour, 16> Table = {{{0, 0, 0},
                                             {0, 0, 128},
                                             {0, 128, 0},
                                             {0, 128, 128},
                                             {128, 0, 0},
                                             {128, 0, 128},
                                             {128, 128, 0},
                                             {192, 192, 192},
                                             {128, 128, 128},
                                             {0, 0, 255},
                                             {0, 255, 0},
                                             {0, 255, 255},
                                             {255, 0, 0},
                                             {255, 0, 255},
                                             {255, 255, 0},
                                             {255, 255, 255}}};
  return Table.at(static_cast<std::size_t>(number));
}

DrawingParts PartsOf(const Drawing& drawing, std::size_t first)
{
  const std::span<const DrawMark> marks(drawing.Marks);
  const std::size_t count = marks.size();
  const std::size_t begin = drawing.Clip ? std::min(drawing.Clip->Begin, count) : count;
  const std::size_t end = drawing.Clip ? std::clamp(drawing.Clip->End, begin, count) : count;
  const auto part = [&](std::size_t from, std::size_t to) {
    from = std::clamp(first, from, to);
    return marks.subspan(from, to - from);
  };
  return {part(0, begin), part(begin, end), part(end, count)};
}

std::ostream& operator<<(std::ostream& out, const DrawMark& mark)
{
  std::visit(MarkWriter(out), mark);
  return out;
}

}  // namespace veln
