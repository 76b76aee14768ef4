#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <stdlib.h>  // mkdtemp is not in <cstdlib>
#include <string>
#include <system_error>

namespace veln {

/// A fresh, empty directory that goes with all it holds.
class TemporaryDirectory {
 public:
  TemporaryDirectory()
  {
    std::string name = testing::TempDir() + "veln_XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
      throw std::filesystem::filesystem_error("mkdtemp", name,
                                              std::error_code(errno, std::generic_category()));
    }
    path_ = name;
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory()
  {
    std::error_code left;
    std::filesystem::remove_all(path_, left);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// A path under the directory.
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace veln
