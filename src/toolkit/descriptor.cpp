#include "toolkit/descriptor.h"

#include <cerrno>

namespace veln {

bool WriteAll(const Descriptor& file, std::string_view text)
{
  while (!text.empty()) {
    const ssize_t written = write(file.Number(), text.data(), text.size());
    if (written < 0 && errno != EINTR) {
      return false;
    }
    text.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace veln
