#include "graphics/dither.h"

namespace veln {

double DitherGenerator::Next()
{
  constexpr std::uint64_t Multiplier = 6364136223846793005;
  constexpr std::uint64_t Increment = 1442695040888963407;
  constexpr unsigned LowBits = 11;  // the lowest bits of such a generator repeat soon
  constexpr double TwoTo53 = 9007199254740992.0;
  state_ = state_ * Multiplier + Increment;
  return static_cast<double>(state_ >> LowBits) / TwoTo53;
}

}  // namespace veln
