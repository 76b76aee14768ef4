#pragma once

#include <array>
#include <cstdint>

namespace veln::examples {

/// Numbers that look random and are the same on every machine: the xoshiro256** generator of Blackman and
/// Vigna, its state filled by SplitMix64 from one seed. Only integers, sums and products are used.
class Random {
 public:
  explicit Random(std::uint64_t seed)
  {
    for (auto& word : state_) {
      seed += 0x9E3779B97F4A7C15U;
      std::uint64_t mixed = seed;
      mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
      mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
      word = mixed ^ (mixed >> 31U);
    }
  }

  /// The next 64 bits.
  std::uint64_t Next()
  {
    const std::uint64_t result = Rotated(state_[1] * 5, 7) * 9;
    const std::uint64_t shifted = state_[1] << 17U;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = Rotated(state_[3], 45);
    return result;
  }

  /// At least 0 and below 1.
  double Uniform() { return static_cast<double>(Next() >> 11U) * 0x1.0p-53; }

  /// Nearly normal with mean 0 and deviation 1: twelve uniform numbers less 6, so within -6 and 6.
  double Normal()
  {
    double sum = -6;
    for (int i = 0; i < 12; ++i) {
      sum += Uniform();
    }
    return sum;
  }

 private:
  static std::uint64_t Rotated(std::uint64_t word, unsigned count)
  {
    return (word << count) | (word >> (64U - count));
  }

  std::array<std::uint64_t, 4> state_{};
};

}  // namespace veln::examples
