#pragma once

#include "graphics/plot.h"
#include "survey/statistics.h"

#include <optional>
#include <span>
#include <string>
#include <variant>

namespace veln {

/// A block of the "Statistics" panel: mean and standard deviation under a title. What is not defined, or not
/// finite, leaves its line empty.
struct MomentBlock {
  std::string Title;
  std::optional<double> Mean, Std;
};

/// The second block of the panel: nothing, a second signal, or "min and max" with the limits as an axis has
/// them, to two decimals.
using SecondBlock = std::variant<std::monostate, MomentBlock, Limits>;

/// The correlation block: a correlation under its title.
struct CorrelationBlock {
  std::string Title;
  std::optional<double> R;
};

/// Mean and deviation of a series. A single value has no deviation.
MomentBlock MomentsOf(const std::string& title, std::span<const double> series);

/// Pearson's correlation of two series of one length; empty where it is not defined.
std::optional<double> CorrelationOf(std::span<const double> x, std::span<const double> y);

/// The correlation as the whole panel takes it when it was computed for the plot: one that rounds to exactly
/// 0 or 1 at four places is left out.
std::optional<double> UnlessWhole(std::optional<double> correlation);

/// `SetStats`: writes and shows the whole panel.
void SetStats(Plot& plot, const MomentBlock& first, const SecondBlock& second = {},
              const CorrelationBlock& correlation = {});

/// `SetSubStats`: writes the second block and the second correlation, and shows the panel. The first block
/// and the first correlation stay.
void SetSubStats(Plot& plot, const MomentBlock& second, const CorrelationBlock& correlation);

}  // namespace veln
