#pragma once

#include "toolkit/drawing.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace veln {

/// A place in whole units of a surface; y grows downward.
struct UnitPoint {
  std::int32_t X = 0;
  std::int32_t Y = 0;
  bool operator==(const UnitPoint&) const = default;
};

/// Sorts dots and lines into layers of one colour that, drawn one after the other, give the picture of the
/// order in which the marks came: a mark goes to the first layer of its colour above everything of another
/// colour that lies under it. What lies under it is kept on a grid of cells, so that the work for a mark does
/// not depend on how many lie there; two marks that share a cell count as overlapping.
class MarkLayers {
 public:
  /// A surface of `width` by `height` units; a cell is `cell` units wide. What lies outside is not seen.
  MarkLayers(std::int32_t width, std::int32_t height, std::int32_t cell);

  /// The layer for a mark from `from` to `to` (a dot: both the same), `penWidth` units wide. Layers count
  /// from 0; a new one comes last. Whether the mark touches the surface at all is told by `Touches`.
  std::size_t Place(UnitPoint from, UnitPoint to, Colour ink, double penWidth);

  [[nodiscard]] bool Touches(UnitPoint from, UnitPoint to, double penWidth) const;

  /// A layer for something else, above all marks so far and under all to come.
  std::size_t PlaceAlone();

 private:
  /// The highest layer that covers a cell, its colour, and the highest layer of another colour.
  struct Cell {
    std::int32_t Top = -1;
    std::int32_t Other = -1;
    Colour Ink;
  };

  /// Cells of a row, from `First` to before `End`.
  struct CellRun {
    std::int32_t Row, First, End;
  };

  [[nodiscard]] std::size_t CellIndex(std::int32_t row, std::int32_t column) const;
  void CoverCells(UnitPoint from, UnitPoint to, double reach);
  void AddRun(std::int32_t row, double left, double right);
  [[nodiscard]] std::int32_t HighestUnder(Colour ink) const;
  void Cover(std::int32_t layer, Colour ink);
  std::size_t LayerAbove(std::int32_t under, Colour ink);

  std::int32_t width_, height_, cell_;
  std::int32_t columns_, rows_;
  std::vector<Cell> cells_;
  std::vector<CellRun> runs_;                                    // of the mark at hand
  std::map<std::uint32_t, std::vector<std::int32_t>> layersOf_;  // by colour
  std::int32_t count_ = 0;
  std::int32_t floor_ = -1;  // the last layer of `PlaceAlone`
};

}  // namespace veln
