#pragma once

#include "graphics/plot.h"

#include <string>

namespace veln {

/// A block of the "Statistics" panel: its title, with a mean and a deviation as numbers in text form. A value
/// that is not a number (an undefined one) leaves its line empty.
struct StatisticsBlock {
  std::string Title;
  std::string Mean;
  std::string Std;
};

/// The correlation block: its title ("none": empty) and one or two values as text. A text of one character or
/// none leaves its line empty.
struct CorrelationBlock {
  std::string Title;
  std::string First;
  std::string Second;
};

/// `SetStats`: writes and shows the whole panel. The title "none" leaves the second block empty; "hist" makes
/// it "min and max", with two limits in place of mean and deviation.
void SetStats(Plot& plot, const StatisticsBlock& first, const StatisticsBlock& second,
              const CorrelationBlock& correlation);

/// `SetSubStats`: writes the second block and the second correlation, and shows the panel. The first block
/// and the first correlation stay.
void SetSubStats(Plot& plot, const StatisticsBlock& second, const std::string& title,
                 const std::string& correlation);

}  // namespace veln
