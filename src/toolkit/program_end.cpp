#include "toolkit/program_end.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace veln {

namespace {

// All that a signal's handler touches. Programs that are started from here see none of it: what is handled
// falls back to its default there, what is ignored would not.
std::atomic<int> Holds = 0;
std::atomic<int> Waiting = 0;  // the signal that came during a hold
std::atomic<pid_t> ProgramId = 0;
std::array<std::atomic<const char*>, 4> GoesAtEnd;

[[noreturn]] void End(int signal)
{
  constexpr int Signalled = 128;
  if (getpid() == ProgramId) {  // not between a fork and the start of another program
    for (const std::atomic<const char*>& file : GoesAtEnd) {
      if (const char* name = file; name != nullptr) {
        unlink(name);
      }
    }
  }
  _exit(Signalled + signal);
}

void EndOrWait(int signal)
{
  if (Holds == 0) {
    End(signal);
  }
  Waiting = signal;
}

void LetTheCallFail(int /*signal*/) {}

void Handle(int signal, void (*handler)(int))
{
  struct sigaction action = {};
  sigaction(signal, nullptr, &action);
  if (action.sa_handler == SIG_IGN) {
    return;
  }
  action = {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

}  // namespace

void EndInOrderOnSignals()
{
  ProgramId = getpid();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    Handle(signal, EndOrWait);
  }
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    Handle(signal, LetTheCallFail);
  }
}

void OccupyStandardStreams()
{
  int taken = 0;
  while (taken >= 0 && taken <= STDERR_FILENO) {
    taken = open("/", O_RDONLY);  // the lowest number that is free
  }
  if (taken >= 0) {
    close(taken);
  }
}

bool EndIsWanted()
{
  return Waiting != 0;
}

EndHold::EndHold()
{
  ++Holds;
}

EndHold::~EndHold()
{
  if (--Holds == 0 && Waiting != 0) {
    End(Waiting);
  }
}

RemovedAtEnd::RemovedAtEnd(const std::filesystem::path& file) : file_(file.string())
{
  for (std::atomic<const char*>& place : GoesAtEnd) {
    const char* none = nullptr;
    if (place.compare_exchange_strong(none, file_.c_str())) {
      place_ = &place;
      return;
    }
  }
}

RemovedAtEnd::~RemovedAtEnd()
{
  if (place_ != nullptr) {
    *place_ = nullptr;
  }
}

}  // namespace veln
