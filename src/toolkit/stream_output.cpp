#include "toolkit/stream_output.h"

#include "toolkit/descriptor.h"
#include "toolkit/output_target.h"
#include "toolkit/program_end.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <poll.h>
#include <system_error>

namespace veln {

namespace {

constexpr int Moment = 20;  // milliseconds between two looks whether the other side has come

void WaitAMoment(const std::filesystem::path& path, pollfd* ready)
{
  if (EndIsWanted()) {
    RefuseFile(path, "written", EINTR);
  }
  poll(ready, ready == nullptr ? 0 : 1, Moment);
}

/// A FIFO can be opened once somebody reads from it.
Descriptor OpenStream(const std::filesystem::path& path)
{
  for (;;) {
    Descriptor stream(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (stream) {
      return stream;
    }
    const int error = errno;
    std::error_code failure;
    const bool noReader = error == ENXIO && std::filesystem::is_fifo(path, failure);
    if (!noReader && error != EINTR) {
      RefuseFile(path, "written", error);
    }
    WaitAMoment(path, nullptr);
  }
}

}  // namespace

void WriteStream(const std::filesystem::path& path, const std::string& content)
{
  const Descriptor stream = OpenStream(path);
  std::size_t done = 0;
  while (done < content.size()) {
    const ssize_t written = write(stream.Number(), content.data() + done, content.size() - done);
    if (written >= 0) {
      done += static_cast<std::size_t>(written);
    } else if (errno == EAGAIN || errno == EINTR) {
      pollfd ready{stream.Number(), POLLOUT, 0};
      WaitAMoment(path, &ready);
    } else {
      RefuseFile(path, "written", errno);
    }
  }
}

}  // namespace veln
