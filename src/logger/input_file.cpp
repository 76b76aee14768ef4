#include "logger/input_file.h"

#include "toolkit/refusal.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace veln {

namespace {

constexpr std::size_t BlockBytes = std::size_t{1} << 20U;

[[noreturn]] void RefuseReading(const std::filesystem::path& path, int error)
{
  throw Refusal(path.string() + "\ncould not be read: " + std::generic_category().message(error));
}

}  // namespace

InputFile::InputFile(std::filesystem::path path)
    : path_(std::move(path)), descriptor_(open(path_.c_str(), O_RDONLY | O_CLOEXEC))
{
  if (descriptor_ < 0) {
    RefuseReading(path_, errno);
  }
  struct stat status{};
  const bool known = fstat(descriptor_, &status) == 0;
  if (known && S_ISDIR(status.st_mode)) {
    close(descriptor_);
    descriptor_ = -1;
    RefuseReading(path_, EISDIR);
  }
  stream_ = !known || !S_ISREG(status.st_mode);
}

InputFile::~InputFile()
{
  if (digesting_.valid()) {
    digesting_.wait();
  }
  if (descriptor_ >= 0) {
    close(descriptor_);
  }
}

std::string_view InputFile::Window() const
{
  return {buffer_.data() + begin_, end_ - begin_};
}

void InputFile::WaitForDigest()
{
  if (digesting_.valid()) {
    digesting_.get();
  }
}

bool InputFile::Extend()
{
  if (atEnd_) {
    return false;
  }
  WaitForDigest();  // it reads the bytes that are about to move
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  buffer_.resize(std::max(buffer_.size(), end_ + BlockBytes));
  const std::size_t fresh = end_;
  while (end_ < fresh + BlockBytes) {
    const ssize_t count = read(descriptor_, buffer_.data() + end_, fresh + BlockBytes - end_);
    if (count < 0 && errno != EINTR) {
      RefuseReading(path_, errno);
    }
    if (count == 0) {
      atEnd_ = true;
      break;
    }
    end_ += count < 0 ? 0 : static_cast<std::size_t>(count);
  }
  const std::string_view block(buffer_.data() + fresh, end_ - fresh);
  digesting_ = std::async(std::launch::async, [this, block] { digest_.Add(block); });
  return !block.empty();
}

std::string InputFile::Digest()
{
  do {
    Take(Window().size());
  } while (Extend());
  WaitForDigest();
  return digest_.Hex();
}

bool LineReader::Next(std::string_view& line)
{
  constexpr std::size_t LongestLine = 1'000'000;
  std::size_t searched = 0;
  for (;;) {
    const std::string_view window = file_.Window();
    const std::string_view fresh = window.substr(searched);
    const void* const found = fresh.empty() ? nullptr : std::memchr(fresh.data(), end_, fresh.size());
    if (found != nullptr) {
      const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - window.data());
      line = window.substr(0, length);
      file_.Take(length + 1);
      break;
    }
    searched = window.size();
    if (searched > LongestLine) {
      throw Refusal(file_.Path().string() + ", line " + std::to_string(number_ + 1) +
                    " is longer than a million bytes: this is no table of text lines.");
    }
    if (!file_.Extend()) {
      line = file_.Window();
      file_.Take(line.size());
      if (line.empty()) {
        return false;
      }
      break;
    }
  }
  if (line.ends_with('\r')) {
    line.remove_suffix(1);
  }
  ++number_;
  return true;
}

}  // namespace veln
