#include "desktop/graphics/site_index.h"

#include "graphics/plot_axes.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

constexpr int Cells = 64;  // along each side of the box

int CellOf(double place)
{
  constexpr double CellWidth = 2 * BoxEdge / Cells;
  return static_cast<int>(std::clamp((place + BoxEdge) / CellWidth, 0.0, Cells - 1.0));
}

std::size_t CellIndex(int column, int row)
{
  return static_cast<std::size_t>(row) * Cells + static_cast<std::size_t>(column);
}

std::size_t CellIndex(DrawPoint at)
{
  return CellIndex(CellOf(at.X), CellOf(at.Y));
}

double SquaredDistance(DrawPoint a, DrawPoint b)
{
  return (a.X - b.X) * (a.X - b.X) + (a.Y - b.Y) * (a.Y - b.Y);
}

}  // namespace

SiteIndex::SiteIndex(const std::vector<PlotSite>& sites)
    : sites_(sites.size()), cellStarts_(static_cast<std::size_t>(Cells) * Cells + 1)
{
  for (const PlotSite& site : sites) {
    ++cellStarts_[CellIndex(site.At) + 1];
  }
  for (std::size_t cell = 1; cell < cellStarts_.size(); ++cell) {
    cellStarts_[cell] += cellStarts_[cell - 1];
  }
  std::vector<std::size_t> next = cellStarts_;
  for (const PlotSite& site : sites) {
    sites_[next[CellIndex(site.At)]++] = site;
  }
}

std::optional<PlotSite> SiteIndex::Nearest(DrawPoint at, double reach) const
{
  std::optional<PlotSite> nearest;
  double best = reach * reach;
  if (sites_.empty()) {
    return nearest;
  }
  for (int row = CellOf(at.Y - reach); row <= CellOf(at.Y + reach); ++row) {
    const std::size_t first = cellStarts_[CellIndex(CellOf(at.X - reach), row)];
    const std::size_t last = cellStarts_[CellIndex(CellOf(at.X + reach), row) + 1];
    for (std::size_t i = first; i < last; ++i) {
      const double distance = SquaredDistance(sites_[i].At, at);
      if (distance < best || (distance == best && nearest)) {
        best = distance;
        nearest = sites_[i];
      }
    }
  }
  return nearest;
}

}  // namespace veln
