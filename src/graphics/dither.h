#pragma once

#include <cstdint>

namespace veln {

/// The random numbers of the dither plot: a 64-bit linear congruential generator, the same sequence on every
/// machine. One generator lasts for a run of the program, so that each run starts it anew and each plot of a
/// run gets fresh values.
class DitherGenerator {
 public:
  /// The next number, uniform in [0, 1).
  double Next();

 private:
  std::uint64_t state_ = 1;
};

}  // namespace veln
