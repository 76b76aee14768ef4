#pragma once

#include "toolkit/enum_array.h"
#include "workspace/site_columns.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

inline constexpr int FewestSites = 50;
inline constexpr int MostSites = 30'000;
inline constexpr int MostRows = 250;

/// What an item of a raw record is read as, in the order of the items.
enum class RecordItem { SiteId, X, Y, Signal1, Signal2, Row };

template <class Value>
using ByRecordItem = EnumArray<RecordItem, Value, 6>;

/// Which items the records of a raw survey file have besides x, y and s1.
struct RecordLayout {
  bool Transect = false;  ///< the row number
  bool SiteIdColumn = false;
  bool SecondSignal = false;

  /// The 3 to 6 items of one record, in order.
  [[nodiscard]] std::vector<RecordItem> Items() const;
};

/// A raw survey as read: site IDs, coordinates, signals (natural logarithms when asked for) and rows.
using RawSurvey = SiteColumns;

enum class ImportPass { Scanning, Importing };

/// Told the count of lines or records: 0 as a pass begins, every hundredth, and the last at its end.
using ImportProgress = std::function<void(ImportPass pass, int count)>;

/// Reads a raw survey in two passes: counts its lines (50 to 30,000), then takes as many records from its
/// items. With `log` the signals must be positive and become natural logarithms. Throws Refusal with the
/// import's message for every fault of the file.
RawSurvey DataLoad(std::string_view content, const RecordLayout& layout, bool log,
                   const ImportProgress& progress);

}  // namespace veln
