#pragma once

#include <string_view>
#include <unistd.h>
#include <utility>

namespace veln {

/// An open file of the system that closes itself; none if the number is negative.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept
  {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor()
  {
    if (number_ >= 0) {
      close(number_);
    }
  }

  [[nodiscard]] int Number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_;
};

/// Writes all of a text to an open file; false, with the system's `errno`, if that fails.
bool WriteAll(const Descriptor& file, std::string_view text);

}  // namespace veln
