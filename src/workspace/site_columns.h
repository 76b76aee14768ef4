#pragma once

#include <cstdint>
#include <tuple>
#include <vector>

namespace veln {

/// The states of a site, as `SiteStatus` holds them; 1 to 5 are the numbers of saved designs.
namespace site_status {
inline constexpr std::int16_t Free = 0;       ///< available to the design search
inline constexpr std::int16_t Selected = 6;   ///< picked by hand for the manual design
inline constexpr std::int16_t Masked = 7;     ///< kept in the data, not selectable
inline constexpr std::int16_t Outlier = 8;    ///< above the outlier level, or dropped by survey reduction
inline constexpr std::int16_t Candidate = 9;  ///< target site of the design in work
}  // namespace site_status

/// What is known of each site: one entry a site, in file order; a column that the survey lacks is empty.
struct SiteColumns {
  std::vector<std::int16_t> SiteId;
  std::vector<std::int16_t> SiteStatus;
  std::vector<double> CoordX, CoordY;    ///< in the file's units
  std::vector<double> Signal1, Signal2;  ///< s1 and s2; s2 only with two signals
  std::vector<double> Decorr1, Decorr2;  ///< z1 and z2 in standard deviations, once decorrelated
  std::vector<double> TransitionScore;   ///< once transition analysis has run
  std::vector<std::int16_t> RowNumber;   ///< transect row, 1 to 250; empty for a grid

  /// Closes up every column over the sites that stay.
  void KeepOnly(const std::vector<bool>& stays);

  bool operator==(const SiteColumns&) const = default;
};

/// Every column, for what is done to all of them alike.
inline constexpr std::tuple AllSiteColumns{
    &SiteColumns::SiteId,          &SiteColumns::SiteStatus, &SiteColumns::CoordX,  &SiteColumns::CoordY,
    &SiteColumns::Signal1,         &SiteColumns::Signal2,    &SiteColumns::Decorr1, &SiteColumns::Decorr2,
    &SiteColumns::TransitionScore, &SiteColumns::RowNumber};
static_assert(sizeof(SiteColumns) ==
                  std::tuple_size_v<decltype(AllSiteColumns)> * sizeof(std::vector<double>),
              "a column is missing in AllSiteColumns");

}  // namespace veln
