#include "graphics/mark_layers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veln {

MarkLayers::MarkLayers(std::int32_t width, std::int32_t height, std::int32_t cell)
    : width_(width),
      height_(height),
      cell_(cell),
      columns_(width / cell + 1),
      rows_(height / cell + 1),
      cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_))
{
}

bool MarkLayers::Touches(UnitPoint from, UnitPoint to, double penWidth) const
{
  const double reach = penWidth / 2;
  return std::max(from.X, to.X) + reach >= 0 && std::max(from.Y, to.Y) + reach >= 0 &&
         std::min(from.X, to.X) - reach <= width_ && std::min(from.Y, to.Y) - reach <= height_;
}

std::size_t MarkLayers::Place(UnitPoint from, UnitPoint to, Colour ink, double penWidth)
{
  CoverCells(from, to, penWidth / 2);
  const std::size_t layer = LayerAbove(std::max(HighestUnder(ink), floor_), ink);
  Cover(static_cast<std::int32_t>(layer), ink);
  return layer;
}

std::size_t MarkLayers::PlaceAlone()
{
  floor_ = count_++;
  return static_cast<std::size_t>(floor_);
}

void MarkLayers::CoverCells(UnitPoint from, UnitPoint to, double reach)
{
  runs_.clear();
  if (from.Y > to.Y) {
    std::swap(from, to);
  }
  const auto rowAt = [this](double y) {
    return static_cast<std::int32_t>(std::clamp(std::floor(y / cell_), 0.0, rows_ - 1.0));
  };
  const double slope = from.Y == to.Y ? 0 : static_cast<double>(to.X - from.X) / (to.Y - from.Y);
  const std::int32_t last = rowAt(to.Y + reach);
  for (std::int32_t row = rowAt(from.Y - reach); row <= last; ++row) {
    // The part of the line within reach of this row of cells.
    const double top = std::clamp<double>(row * cell_ - reach, from.Y, to.Y);
    const double bottom = std::clamp<double>((row + 1) * cell_ + reach, from.Y, to.Y);
    const double x1 = from.Y == to.Y ? from.X : from.X + (top - from.Y) * slope;
    const double x2 = from.Y == to.Y ? to.X : from.X + (bottom - from.Y) * slope;
    AddRun(row, std::min(x1, x2) - reach, std::max(x1, x2) + reach);
  }
}

void MarkLayers::AddRun(std::int32_t row, double left, double right)
{
  const auto columnAt = [this](double x) {
    return static_cast<std::int32_t>(std::clamp(std::floor(x / cell_), 0.0, columns_ - 1.0));
  };
  runs_.push_back({row, columnAt(left), columnAt(right) + 1});
}

std::size_t MarkLayers::CellIndex(std::int32_t row, std::int32_t column) const
{
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
         static_cast<std::size_t>(column);
}

std::int32_t MarkLayers::HighestUnder(Colour ink) const
{
  std::int32_t highest = -1;
  for (const CellRun& run : runs_) {
    for (std::int32_t column = run.First; column < run.End; ++column) {
      const Cell& cell = cells_[CellIndex(run.Row, column)];
      highest = std::max(highest, cell.Ink == ink ? cell.Other : cell.Top);
    }
  }
  return highest;
}

void MarkLayers::Cover(std::int32_t layer, Colour ink)
{
  for (const CellRun& run : runs_) {
    for (std::int32_t column = run.First; column < run.End; ++column) {
      Cell& cell = cells_[CellIndex(run.Row, column)];
      if (cell.Ink == ink) {
        cell.Top = std::max(cell.Top, layer);
      } else if (layer > cell.Top) {
        cell = {layer, cell.Top, ink};
      } else {
        cell.Other = std::max(cell.Other, layer);
      }
    }
  }
}

std::size_t MarkLayers::LayerAbove(std::int32_t under, Colour ink)
{
  std::vector<std::int32_t>& layers =
      layersOf_[ink.Red | unsigned{ink.Green} << 8U | unsigned{ink.Blue} << 16U];
  const auto found = std::ranges::upper_bound(layers, under);
  if (found != layers.end()) {
    return static_cast<std::size_t>(*found);
  }
  layers.push_back(count_++);
  return static_cast<std::size_t>(layers.back());
}

}  // namespace veln
