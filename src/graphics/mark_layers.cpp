#include "graphics/mark_layers.h"

#include "graphics/twip_surface.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <utility>
#include <variant>

namespace veln {

namespace {

constexpr double Cell = TwipsPerPixel;

/// A dot or line in twips; a dot ends where it begins.
struct Stretch {
  TwipPoint From, To;
  double Reach;  ///< half the pen's width
};

/// Tells at which level a mark is drawn: the lowest of its colour above everything of another colour that
/// lies under it. Levels count from 1; 0 is the bare surface. What lies where is kept on a grid of cells, so
/// that the work for a mark does not depend on how many lie there; two marks that share a cell count as
/// overlapping.
class LevelGrid {
 public:
  explicit LevelGrid(const TwipSurface& surface)
      : lastColumn_(std::floor(surface.Width / Cell)),
        lastRow_(std::floor(surface.Height / Cell)),
        columns_(static_cast<std::size_t>(lastColumn_) + 1),
        cells_(columns_ * (static_cast<std::size_t>(lastRow_) + 1))
  {
  }

  std::uint32_t Place(const Stretch& stretch, Colour ink)
  {
    FindRuns(stretch);
    const std::uint32_t level = LevelAbove(std::max(HighestUnder(ink), floor_), ink);
    Cover(level, ink);
    return level;
  }

  /// A level for something else, above all marks so far and under all to come.
  std::uint32_t PlaceAlone()
  {
    floor_ = ++count_;
    return floor_;
  }

 private:
  /// The highest level that covers a cell, its colour, and the highest level of another colour.
  struct Covered {
    std::uint32_t Top = 0;
    std::uint32_t Other = 0;
    Colour Ink;
  };

  /// Finds the cells that a stretch covers, as runs along the rows of the grid.
  void FindRuns(Stretch stretch)
  {
    runs_.clear();
    auto& [from, to, reach] = stretch;
    if (from.Y > to.Y) {
      std::swap(from, to);
    }
    const bool level = from.Y == to.Y;
    const double slope = level ? 0 : static_cast<double>(to.X - from.X) / (to.Y - from.Y);
    const std::size_t lastRow = RowAt(to.Y + reach);
    for (std::size_t row = RowAt(from.Y - reach); row <= lastRow; ++row) {
      // The part of the line within reach of this row of cells.
      const double top = std::clamp<double>(static_cast<double>(row) * Cell - reach, from.Y, to.Y);
      const double bottom = std::clamp<double>(static_cast<double>(row + 1) * Cell + reach, from.Y, to.Y);
      const double x1 = level ? from.X : from.X + (top - from.Y) * slope;
      const double x2 = level ? to.X : from.X + (bottom - from.Y) * slope;
      const auto run = cells_.begin() + static_cast<std::ptrdiff_t>(row * columns_);
      runs_.emplace_back(run + ColumnAt(std::min(x1, x2) - reach),
                         run + ColumnAt(std::max(x1, x2) + reach) + 1);
    }
  }

  [[nodiscard]] std::size_t RowAt(double y) const
  {
    return static_cast<std::size_t>(std::clamp(std::floor(y / Cell), 0.0, lastRow_));
  }

  [[nodiscard]] std::ptrdiff_t ColumnAt(double x) const
  {
    return static_cast<std::ptrdiff_t>(std::clamp(std::floor(x / Cell), 0.0, lastColumn_));
  }

  [[nodiscard]] std::uint32_t HighestUnder(Colour ink) const
  {
    std::uint32_t highest = 0;
    for (const std::span<Covered> run : runs_) {
      for (const Covered& cell : run) {
        highest = std::max(highest, cell.Ink == ink ? cell.Other : cell.Top);
      }
    }
    return highest;
  }

  void Cover(std::uint32_t level, Colour ink)
  {
    for (const std::span<Covered> run : runs_) {
      for (Covered& cell : run) {
        if (cell.Ink == ink) {
          cell.Top = std::max(cell.Top, level);
        } else if (level > cell.Top) {
          cell = {level, cell.Top, ink};
        } else {
          cell.Other = std::max(cell.Other, level);
        }
      }
    }
  }

  std::uint32_t LevelAbove(std::uint32_t under, Colour ink)
  {
    std::vector<std::uint32_t>& levels =
        levelsOf_[ink.Red | unsigned{ink.Green} << 8U | unsigned{ink.Blue} << 16U];
    const auto found = std::ranges::upper_bound(levels, under);
    return found != levels.end() ? *found : levels.emplace_back(++count_);
  }

  double lastColumn_, lastRow_;
  std::size_t columns_;
  std::vector<Covered> cells_;
  std::vector<std::span<Covered>> runs_;                          // of the mark at hand
  std::map<std::uint32_t, std::vector<std::uint32_t>> levelsOf_;  // by colour, upward
  std::uint32_t count_ = 0;
  std::uint32_t floor_ = 0;  // the last level of `PlaceAlone`
};

/// Sorts marks by their levels, and within a level by their pens.
class LayerSorter {
 public:
  explicit LayerSorter(const Drawing& drawing) : surface_(drawing), grid_(surface_) {}

  void Add(const DrawMark& mark)
  {
    if (const auto* dot = std::get_if<DotMark>(&mark)) {
      Add(mark, dot->At, dot->At, dot->Stroke);
    } else if (const auto* line = std::get_if<LineMark>(&mark)) {
      Add(mark, line->From, line->To, line->Stroke);
    } else {
      LayerAt(grid_.PlaceAlone(), {}).Marks.push_back(&mark);
    }
  }

  std::vector<MarkLayer> Layers()
  {
    std::vector<MarkLayer> layers;
    for (std::vector<MarkLayer>& level : levels_) {
      std::ranges::move(level, std::back_inserter(layers));
    }
    return layers;
  }

 private:
  void Add(const DrawMark& mark, DrawPoint from, DrawPoint to, const Pen& pen)
  {
    const Stretch stretch{surface_.At(from), surface_.At(to), pen.Width * TwipsPerPixel / 2};
    if (IsOnSurface(stretch)) {
      LayerAt(grid_.Place(stretch, pen.Ink), pen).Marks.push_back(&mark);
    }
  }

  [[nodiscard]] bool IsOnSurface(const Stretch& stretch) const
  {
    const auto& [from, to, reach] = stretch;
    return std::max(from.X, to.X) + reach >= 0 && std::max(from.Y, to.Y) + reach >= 0 &&
           std::min(from.X, to.X) - reach <= surface_.Width &&
           std::min(from.Y, to.Y) - reach <= surface_.Height;
  }

  MarkLayer& LayerAt(std::uint32_t level, const Pen& pen)
  {
    levels_.resize(std::max<std::size_t>(levels_.size(), level));
    std::vector<MarkLayer>& layers = levels_.at(level - 1);
    const auto found = std::ranges::find(layers, pen, &MarkLayer::Stroke);
    return found != layers.end() ? *found : layers.emplace_back(MarkLayer{pen, {}});
  }

  TwipSurface surface_;
  LevelGrid grid_;
  std::vector<std::vector<MarkLayer>> levels_;
};

/// Whether one of the next two marks is a dot that covers this one all over.
bool IsHidden(const DrawMark& mark, std::span<const DrawMark> next)
{
  const auto* dot = std::get_if<DotMark>(&mark);
  return dot != nullptr &&
         std::ranges::any_of(next.first(std::min<std::size_t>(next.size(), 2)), [dot](const auto& later) {
           const auto* cover = std::get_if<DotMark>(&later);
           return cover != nullptr && cover->At == dot->At && cover->Stroke.Width >= dot->Stroke.Width;
         });
}

}  // namespace

std::vector<MarkLayer> LayersOf(const Drawing& drawing, std::span<const DrawMark> marks)
{
  if (marks.empty()) {
    return {};
  }
  LayerSorter sorter(drawing);
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (!IsHidden(marks[i], marks.subspan(i + 1))) {
      sorter.Add(marks[i]);
    }
  }
  return sorter.Layers();
}

}  // namespace veln
