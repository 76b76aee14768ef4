#pragma once

#include <atomic>
#include <filesystem>
#include <string>

namespace veln {

/// From here on SIGINT, SIGTERM and SIGHUP end the program with the status 128 and the signal's number: at
/// once, or, while an `EndHold` lives, with the last of them. Files told to `RemovedAtEnd` go with it. A
/// signal that was ignored at the program's start stays so. Writing to a closed pipe, or beyond the limit for
/// the size of a file, is from here on an error of the write and no longer the program's end.
void EndInOrderOnSignals();

/// Takes the numbers of standard input, output and error that the program was started without, so that no
/// file that it opens gets one of them. What is written there fails.
void OccupyStandardStreams();

/// Whether a signal waits for the end of an `EndHold`: who waits for others may give up.
bool EndIsWanted();

/// Keeps signals from ending the program while files that belong together are put in place.
class EndHold {
 public:
  EndHold();
  EndHold(const EndHold&) = delete;
  EndHold& operator=(const EndHold&) = delete;
  ~EndHold();
};

/// A file that goes when a signal ends the program.
class RemovedAtEnd {
 public:
  explicit RemovedAtEnd(const std::filesystem::path& file);
  RemovedAtEnd(const RemovedAtEnd&) = delete;
  RemovedAtEnd& operator=(const RemovedAtEnd&) = delete;
  ~RemovedAtEnd();

 private:
  std::string file_;
  std::atomic<const char*>* place_ = nullptr;
};

}  // namespace veln
