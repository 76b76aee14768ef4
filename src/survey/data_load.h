#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

inline constexpr int FewestSites = 50;
inline constexpr int MostSites = 30'000;
inline constexpr int MostRows = 250;

/// The columns of a raw survey file, in the order site-ID, x, y, s1, s2, row; x, y and s1 are always there.
struct RecordLayout {
  bool Transect = false;  ///< the last column is the row number
  bool SiteIdColumn = false;
  bool SecondSignal = false;

  /// Items of one record, 3 to 6.
  [[nodiscard]] int ItemCount() const
  {
    return 3 + (Transect ? 1 : 0) + (SiteIdColumn ? 1 : 0) + (SecondSignal ? 1 : 0);
  }
};

/// A raw survey as read; one entry a site.
struct RawSurvey {
  std::vector<std::int16_t> SiteId;
  std::vector<double> CoordX, CoordY;
  std::vector<double> Signal1,
      Signal2;  ///< natural logarithms when asked for; Signal2 only with a second signal
  std::vector<std::int16_t> RowNumber;  ///< only for a transect survey
};

enum class ImportPass { Scanning, Importing };

/// Told the count of lines or records: 0 as a pass begins, every hundredth, and the last at its end.
using ImportProgress = std::function<void(ImportPass pass, int count)>;

/// Reads a raw survey in two passes: counts its lines (50 to 30,000), then takes as many records from its
/// items. With `log` the signals must be positive and become natural logarithms. Throws Refusal with the
/// import's message for every fault of the file.
RawSurvey DataLoad(std::string_view content, const RecordLayout& layout, bool log,
                   const ImportProgress& progress);

}  // namespace veln
