#include "signal/edge_buffer.h"

#include "survey/field_extent.h"

namespace veln {

namespace {

/// Whether a site lies in the first or last 4 percent of its row, measured in a straight line from the row's
/// first site.
bool IsAtRowEnd(const SurveyState& state, const SurveyRow& row, std::size_t i)
{
  constexpr double FirstPart = 0.04;
  constexpr double LastPart = 0.96;
  const double length = SiteDistance(state, row.Start, row.End);
  if (length == 0) {
    return true;
  }
  const double t = SiteDistance(state, i, row.Start) / length;
  return t < FirstPart || t > LastPart;
}

int MaskRow(SurveyState& state, const SurveyRow& row)
{
  int steps = 0;
  for (std::size_t i = row.Start; i <= row.End; ++i) {
    state.SiteStatus[i] = site_status::Masked;
    ++steps;
  }
  return steps;
}

}  // namespace

int EdgeBuffer(SurveyState& state, const std::vector<SurveyRow>& rows, BufferExtent extent)
{
  int steps = 0;
  for (const SurveyRow& row : rows) {
    for (std::size_t i = row.Start; i <= row.End; ++i) {
      if (IsAtRowEnd(state, row, i)) {
        state.SiteStatus[i] = site_status::Masked;
        ++steps;
      }
    }
  }
  if (extent == BufferExtent::OuterRowsToo && !rows.empty()) {
    steps += MaskRow(state, rows.front());
    steps += MaskRow(state, rows.back());
  }
  return steps;
}

}  // namespace veln
