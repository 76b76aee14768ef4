#include "toolkit/clock.h"

#include <array>
#include <cstddef>
#include <ctime>

namespace veln {

std::string SystemDateTime()
{
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local);
  return {text.data(), length};
}

}  // namespace veln
