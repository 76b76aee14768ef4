#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veln {

/// The SHA-256 digest of bytes that come piece by piece (FIPS 180-4). Files are known by it: whether one is
/// still what was recorded, wherever it lies and whatever it is called.
class Sha256 {
 public:
  /// Takes further bytes.
  void Add(std::string_view bytes);
  /// The digest of all bytes taken, as 64 lower-case hexadecimal digits; nothing may be added behind it.
  [[nodiscard]] std::string Hex();

 private:
  static constexpr std::size_t BlockBytes = 64;

  void AddBlock(std::string_view block);

  std::array<std::uint32_t, 8> state_ = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                         0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::array<char, BlockBytes> rest_{};  ///< what does not fill a block yet
  std::size_t restBytes_ = 0;
  std::uint64_t allBytes_ = 0;
};

/// The SHA-256 digest of a text, as 64 lower-case hexadecimal digits.
std::string Sha256Hex(std::string_view bytes);

}  // namespace veln
