#pragma once

#include "toolkit/sha256.h"

#include <cstddef>
#include <filesystem>
#include <future>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// A file that is read once, from its beginning to its end, through a window of bytes: a file on disk or a
/// pipe. The digest of its bytes is computed beside the reading.
class InputFile {
 public:
  /// Opens the file. Throws Refusal with its name and the system's reason, also for a directory.
  explicit InputFile(std::filesystem::path path);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile();

  /// Bytes that were read and not yet taken; valid until `Extend`.
  [[nodiscard]] std::string_view Window() const;
  /// Takes bytes off the window's beginning.
  void Take(std::size_t bytes) { begin_ += bytes; }
  /// Reads further bytes behind those of the window. False at the end of the file.
  bool Extend();
  /// Whether all was read; the window may still hold bytes.
  [[nodiscard]] bool AtEnd() const { return atEnd_; }
  /// Whether the bytes come from a pipe or a device, which can not be read a second time.
  [[nodiscard]] bool IsStream() const { return stream_; }
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// The SHA-256 digest of the whole file; reads what is left of it.
  std::string Digest();

 private:
  void WaitForDigest();

  std::filesystem::path path_;
  int descriptor_ = -1;
  bool stream_ = false;
  bool atEnd_ = false;
  std::vector<char> buffer_;
  std::size_t begin_ = 0, end_ = 0;
  Sha256 digest_;
  std::future<void> digesting_;
};

/// The lines of a file, one by one, without their ends. Lines end at LF or CR LF, or at CR alone where the
/// file's first lines do.
class LineReader {
 public:
  LineReader(InputFile& file, bool carriageReturns) : file_(file), end_(carriageReturns ? '\r' : '\n') {}

  /// The next line, valid until the next call. False at the end of the file; a last line without an end
  /// counts. Throws Refusal for a line of more than a million bytes, which no table has.
  bool Next(std::string_view& line);
  /// The number of the line that `Next` gave, from 1.
  [[nodiscard]] std::size_t Number() const { return number_; }

 private:
  InputFile& file_;
  char end_;
  std::size_t number_ = 0;
};

}  // namespace veln
