#include "graphics/plot_page.h"

#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <variant>
#include <vector>

namespace veln {

namespace {

constexpr double PagePixelHeight = 489;
constexpr double UnitsPerPixel = SurfaceWidth / SurfacePixels;
constexpr double PixelsPerPoint = 4.0 / 3.0;
constexpr double LabelFont = 8;
constexpr double PanelFont = 7.5;
constexpr double TitleFont = 10;
constexpr double ColumnLeft = -1.572;  // of the panels left of the box
constexpr double TickEnd = -1.095;     // right end of the labels left of the box

// Widths of a character in font sizes, as wide as common sans serif fonts have them.
constexpr double DigitWidth = 0.64;
constexpr double BoldWidth = 0.7;

/// The largest font up to `wanted` points in which a text of usual letters keeps within `room`, in logical
/// units.
double FittingFont(const std::string& text, double room, double wanted, double characterWidth)
{
  const auto count = static_cast<double>(std::max<std::size_t>(CharacterCount(text), 1));
  const double largest = room / UnitsPerPixel / PixelsPerPoint / characterWidth / count;
  return std::min(wanted, largest);
}

bool IsBlank(const std::string& text)
{
  return text.find_first_not_of(' ') == std::string::npos;
}

/// Moves marks from the fitted plot to where a zoomed box shows them.
class MarkMover {
 public:
  explicit MarkMover(const PlotView& view) : view_(view) {}

  void operator()(DotMark& dot)
  {
    fitted_ = dot.At;
    dot.At = moved_ = view_.Place(dot.At);
  }
  void operator()(LineMark& line) const
  {
    line.From = view_.Place(line.From);
    line.To = view_.Place(line.To);
  }
  void operator()(BoxMark& box) const
  {
    box.First = view_.Place(box.First);
    box.Second = view_.Place(box.Second);
  }
  void operator()(TextMark& text) const
  {
    text.At = {moved_.X + text.At.X - fitted_.X, moved_.Y + text.At.Y - fitted_.Y};
  }

 private:
  const PlotView& view_;
  DrawPoint fitted_, moved_;
};

/// Whether a dot lies so far outside the box that nothing of it shows.
bool IsOutOfSight(const DrawMark& mark)
{
  constexpr double Reach = BoxEdge + 0.05;
  const auto* dot = std::get_if<DotMark>(&mark);
  return dot != nullptr && (std::abs(dot->At.X) > Reach || std::abs(dot->At.Y) > Reach);
}

/// Puts the texts of a page around the box.
class PageWriter {
 public:
  explicit PageWriter(Drawing& page) : page_(page) {}

  void Title(const std::string& title)
  {
    constexpr double Top = -1.165;
    constexpr double Room = 2.4;
    constexpr int Colour = 1;
    const double font = FittingFont(title, Room, TitleFont, BoldWidth);
    Put({0, Top}, title, {QBColor(Colour), font, true, TextAnchor::Middle});
  }

  void Labels(const AxisLabels& labels)
  {
    constexpr double UnderBox = BoxEdge + 0.04;
    constexpr double ColumnRoom = 0.49;
    constexpr double BoxRoom = 0.66;
    for (const auto& [y, text] : {std::pair{-1.0, &labels.txtMaxY}, std::pair{0.0, &labels.txtMedY},
                                  std::pair{1.0, &labels.txtMinY}}) {
      const double font = FittingFont(*text, ColumnRoom, LabelFont, DigitWidth);
      const double rise = font * PixelsPerPoint * UnitsPerPixel * MiddleOfFigures;
      Put({TickEnd, y - rise}, *text, {QBColor(0), font, false, TextAnchor::End});
    }
    const auto under = [&](double x, const std::string& text, TextAnchor anchor) {
      Put({x, UnderBox}, text,
          {QBColor(0), FittingFont(text, BoxRoom, LabelFont, DigitWidth), false, anchor});
    };
    under(-BoxEdge, labels.txtMinX, TextAnchor::Start);
    under(0, labels.txtMedX, TextAnchor::Middle);
    under(BoxEdge, labels.txtMaxX, TextAnchor::End);
  }

  void Statistics(const PlotStatistics& panel)
  {
    constexpr double FirstLine = -0.87;
    constexpr double BlockGap = 0.03;
    double y = FirstLine;
    Put({ColumnLeft, y}, "Statistics", {QBColor(0), PanelFont, true, TextAnchor::Start});
    y += LineStep + BlockGap;
    for (const auto& block : panel.Blocks()) {
      const double top = y;
      for (const std::string& line : block) {
        y = PanelLine(y, line);
      }
      y += y > top ? BlockGap : 0;
    }
  }

  void Legend(const MapLegend& legend)
  {
    constexpr double FirstLine = 0.13;
    constexpr double EntryGap = 0.022;
    constexpr double DotWidth = 10;
    constexpr double DotLeft = ColumnLeft + 0.025;
    constexpr double LabelLeft = ColumnLeft + 0.075;
    constexpr double Font = 7;
    double y = PanelLine(FirstLine, legend.Caption) + 2 * EntryGap;
    for (std::size_t i = 0; i < legend.Labels.size(); ++i) {
      page_.PSet({DotLeft, y + LineStep / 2}, {legend.Colours.at(i), DotWidth});
      for (const std::string& line : InTwoLines(legend.Labels.at(i))) {
        Put({LabelLeft, y}, line, {QBColor(0), Font, false, TextAnchor::Start});
        y += LineStep;
      }
      y += EntryGap;
    }
  }

 private:
  static constexpr double LineStep = 0.057;
  static constexpr double MiddleOfFigures = 0.56;  // from a text's top, in font sizes

  struct TextStyle {
    Colour Ink;
    double FontSize;
    bool Bold;
    TextAnchor Anchor;
  };

  void Put(DrawPoint at, const std::string& text, const TextStyle& style)
  {
    if (!text.empty()) {
      page_.Marks.emplace_back(TextMark{at, text, style.Ink, style.FontSize, style.Bold, style.Anchor});
    }
  }

  /// Writes a line, unless it is blank, and tells where the next one stands.
  double PanelLine(double y, const std::string& text)
  {
    if (IsBlank(text)) {
      return y;
    }
    constexpr double Room = 0.5;
    const double font = FittingFont(text, Room, PanelFont, DigitWidth);
    Put({ColumnLeft, y}, text, {QBColor(0), font, false, TextAnchor::Start});
    return y + LineStep;
  }

  /// A legend's label broken where it would leave the column.
  static std::vector<std::string> InTwoLines(const std::string& label)
  {
    constexpr std::size_t Longest = 16;
    const std::size_t blank = label.rfind(' ', Longest);
    if (label.size() <= Longest || blank == std::string::npos) {
      return {label};
    }
    return {label.substr(0, blank), label.substr(blank + 1)};
  }

  Drawing& page_;
};

std::string JoinedLines(const PlotStatistics& panel)
{
  std::string text;
  for (const auto& block : panel.Blocks()) {
    for (const std::string& line : block) {
      if (!IsBlank(line)) {
        text += (text.empty() ? "" : ", ") + line;
      }
    }
  }
  return text;
}

}  // namespace

Drawing ZoomedPicture(const Plot& plot, const PlotView& view, const MapFurniture& furniture)
{
  Drawing picture = plot.Picture;
  if (view != PlotView{}) {
    MarkMover move(view);
    const auto content = picture.Marks.begin() + static_cast<std::ptrdiff_t>(Plot::FrameMarks);
    std::for_each(content, picture.Marks.end(), [&move](DrawMark& mark) { std::visit(move, mark); });
    picture.Marks.erase(std::remove_if(content, picture.Marks.end(), IsOutOfSight), picture.Marks.end());
  }
  std::ranges::move(FurnitureMarks(plot, view, furniture), std::back_inserter(picture.Marks));
  return picture;
}

Drawing PlotPage(const Plot& plot, const PlotView& view, const MapFurniture& furniture)
{
  Drawing picture = ZoomedPicture(plot, view, furniture);
  Drawing page{SurfaceLeft, SurfaceTop, SurfaceWidth, PagePixelHeight * UnitsPerPixel, SurfacePixels, {}, {}};
  page.Marks.reserve(picture.Marks.size() + 1);
  page.FillBox({SurfaceLeft, SurfaceTop}, {SurfaceLeft + SurfaceWidth, SurfaceTop + page.ScaleHeight},
               QBColor(15));
  std::ranges::move(picture.Marks, std::back_inserter(page.Marks));
  if (picture.Clip) {
    page.Clip =
        ClippedMarks{picture.Clip->First, picture.Clip->Second, picture.Clip->Begin + 1, page.Marks.size()};
  }
  PageWriter writer(page);
  writer.Title(plot.Title);
  writer.Labels(VisibleLabels(plot, view));
  if (plot.StatisticsPanel) {
    writer.Statistics(plot.Statistics);
  }
  if (plot.Legend) {
    writer.Legend(*plot.Legend);
  }
  return page;
}

Drawing SiteMapPage(const SiteMapForm& form)
{
  constexpr double Margin = 13 / SiteMapPixels;
  constexpr double TitleRoom = 40 / SiteMapPixels;
  constexpr double TitleTop = -30 / SiteMapPixels;
  constexpr double MapTitleFont = 11;
  constexpr int TitleColour = 0;
  const double width = 1 + 2 * Margin;
  Drawing page{-Margin, -TitleRoom, width, 1 + TitleRoom + Margin, width * SiteMapPixels, {}, {}};
  page.FillBox({-Margin, -TitleRoom}, {1 + Margin, 1 + Margin}, QBColor(15));
  page.Marks.insert(page.Marks.end(), form.MGrid.Marks.begin(), form.MGrid.Marks.end());
  page.Marks.emplace_back(
      TextMark{{0.5, TitleTop}, form.lblSMT, QBColor(TitleColour), MapTitleFont, true, TextAnchor::Middle});
  return page;
}

std::string DescribePlot(const Plot& plot, const AxisLabels& labels)
{
  std::string text = plot.Title;
  if (!labels.txtMinX.empty() || !labels.txtMinY.empty()) {
    text += "; x axis from " + labels.txtMinX + " to " + labels.txtMaxX + "; y axis from " + labels.txtMinY +
            " to " + labels.txtMaxY;
  }
  if (plot.StatisticsPanel) {
    text += "; " + JoinedLines(plot.Statistics);
  }
  return text;
}

}  // namespace veln
