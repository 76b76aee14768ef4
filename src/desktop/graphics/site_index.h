#pragma once

#include "graphics/plot.h"

#include <optional>
#include <vector>

namespace veln {

/// Finds the site of a plot that is nearest to a place, by cells of a grid over the plot box.
class SiteIndex {
 public:
  SiteIndex() = default;
  explicit SiteIndex(const std::vector<PlotSite>& sites);

  /// The site nearest to `at` that is no further than `reach`, on the fitted plot; the one drawn last of
  /// those at the same distance.
  [[nodiscard]] std::optional<PlotSite> Nearest(DrawPoint at, double reach) const;

 private:
  std::vector<PlotSite> sites_;          // by cell, in each in the order drawn
  std::vector<std::size_t> cellStarts_;  // one more than there are cells
};

}  // namespace veln
