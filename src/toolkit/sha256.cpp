#include "toolkit/sha256.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace veln {

namespace {

/// The first 32 bits of the fractional parts of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> RoundConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using Schedule = std::array<std::uint32_t, 64>;

std::uint32_t BigEndianWord(std::string_view bytes)
{
  std::uint32_t word = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    word = word << 8U | static_cast<unsigned char>(bytes[i]);
  }
  return word;
}

/// The 16 words of a block, then 48 more, each made of four before it.
Schedule ScheduleOf(std::string_view block)
{
  Schedule w{};
  for (std::size_t t = 0; t < 16; ++t) {
    w[t] = BigEndianWord(block.substr(4 * t));
  }
  for (std::size_t t = 16; t < w.size(); ++t) {
    const std::uint32_t early = w[t - 15];
    const std::uint32_t late = w[t - 2];
    w[t] = w[t - 16] + w[t - 7] + (std::rotr(early, 7) ^ std::rotr(early, 18) ^ early >> 3U) +
           (std::rotr(late, 17) ^ std::rotr(late, 19) ^ late >> 10U);
  }
  return w;
}

}  // namespace

void Sha256::AddBlock(std::string_view block)
{
  const Schedule w = ScheduleOf(block);
  auto [a, b, c, d, e, f, g, h] = state_;
  for (std::size_t t = 0; t < w.size(); ++t) {
    const std::uint32_t sum1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
    const std::uint32_t choice = (e & f) ^ (~e & g);
    const std::uint32_t t1 = h + sum1 + choice + RoundConstants[t] + w[t];
    const std::uint32_t sum0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
    const std::uint32_t majority = (a & b) ^ (a & c) ^ (b & c);
    h = g;
    g = f;
    f = e;
    e = d + t1;
    d = c;
    c = b;
    b = a;
    a = t1 + sum0 + majority;
  }
  const std::array<std::uint32_t, 8> worked = {a, b, c, d, e, f, g, h};
  std::ranges::transform(state_, worked, state_.begin(), std::plus<>());
}

void Sha256::Add(std::string_view bytes)
{
  allBytes_ += bytes.size();
  while (!bytes.empty()) {
    if (restBytes_ == 0 && bytes.size() >= BlockBytes) {
      AddBlock(bytes.substr(0, BlockBytes));
      bytes.remove_prefix(BlockBytes);
      continue;
    }
    const std::size_t taken = std::min(BlockBytes - restBytes_, bytes.size());
    std::copy_n(bytes.begin(), taken, rest_.begin() + static_cast<std::ptrdiff_t>(restBytes_));
    bytes.remove_prefix(taken);
    restBytes_ += taken;
    if (restBytes_ == BlockBytes) {
      AddBlock({rest_.data(), rest_.size()});
      restBytes_ = 0;
    }
  }
}

std::string Sha256::Hex()
{
  constexpr std::size_t LengthBytes = 8;
  const std::uint64_t bits = allBytes_ * 8;
  std::string padding(1, '\x80');
  while ((allBytes_ + padding.size() + LengthBytes) % BlockBytes != 0) {
    padding += '\0';
  }
  for (int shift = 56; shift >= 0; shift -= 8) {
    padding += static_cast<char>(bits >> static_cast<unsigned>(shift) & 0xffU);
  }
  Add(padding);

  constexpr std::string_view Digits = "0123456789abcdef";
  std::string text;
  for (const std::uint32_t word : state_) {
    for (int shift = 28; shift >= 0; shift -= 4) {
      text += Digits[word >> static_cast<unsigned>(shift) & 0xfU];
    }
  }
  return text;
}

std::string Sha256Hex(std::string_view bytes)
{
  Sha256 digest;
  digest.Add(bytes);
  return digest.Hex();
}

}  // namespace veln
