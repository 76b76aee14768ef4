#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace veln {

/// A file's content, byte for byte. Throws if it can't be read.
inline std::string ReadText(const std::filesystem::path& path)
{
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("no such file: " + path.string());
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Writes a file, byte for byte, and makes the directories above it. Throws if it can't.
inline void WriteText(const std::filesystem::path& path, const std::string& content)
{
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  if (!(file << content).flush()) {
    throw std::runtime_error("not written: " + path.string());
  }
}

/// A text `count` times over.
inline std::string Repeated(const std::string& text, int count)
{
  std::string all;
  for (int i = 0; i < count; ++i) {
    all += text;
  }
  return all;
}

/// All that lies under a directory at any depth, hidden names too: paths from there, sorted, "/" behind a
/// directory.
inline std::vector<std::string> ListFiles(const std::filesystem::path& directory)
{
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
    names.push_back(entry.path().lexically_relative(directory).generic_string() +
                    (entry.is_directory() ? "/" : ""));
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace veln
