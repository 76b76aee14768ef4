#pragma once

#include "logger/track.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace veln {

/// The most readings that are kept in memory.
inline constexpr std::size_t MostReadings = 2'000'000;

/// How files are to be read.
struct ReadChoices {
  FormChoices Form;
  ColumnChoices Columns;
  std::optional<DateOrder> Dates;
  std::size_t Every = 1;  ///< only every so many-th reading is taken

  bool operator==(const ReadChoices&) const = default;
};

/// Reads loggers' files, each once and in a streaming way, to readings along one track: files in the order of
/// their first date and time if all have both, else as given. Throws Refusal for what can't be read, for
/// columns that can't be told, and for more readings than fit.
Readings ReadLoggerFiles(const std::vector<std::filesystem::path>& paths, const ReadChoices& choices);

}  // namespace veln
