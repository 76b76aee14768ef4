#include "signal/edge_buffer.h"

#include "support/testing.h"
#include "workspace/survey_state.h"

namespace veln {
namespace {

/// Sites at these places along the x axis, one row after the other.
SurveyState RowsAlongX(const std::vector<std::vector<double>>& rows)
{
  SurveyState state;
  std::int16_t number = 0;
  for (const auto& row : rows) {
    ++number;
    state.CoordX.insert(state.CoordX.end(), row.begin(), row.end());
    state.RowNumber.insert(state.RowNumber.end(), row.size(), number);
  }
  state.CoordY.assign(state.CoordX.size(), -3);
  state.SiteStatus.assign(state.CoordX.size(), site_status::Free);
  return state;
}

std::vector<double> EvenRow(int sites)
{
  std::vector<double> row;
  for (int i = 0; i < sites; ++i) {
    row.push_back(i);
  }
  return row;
}

std::vector<std::size_t> MaskedSites(const SurveyState& state)
{
  std::vector<std::size_t> masked;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (state.SiteStatus[i] == site_status::Masked) {
      masked.push_back(i);
    }
  }
  return masked;
}

int Buffer(SurveyState& state, BufferExtent extent = BufferExtent::RowEnds)
{
  return EdgeBuffer(state, InitRows(state.RowNumber), extent);
}

TEST(RowTable, RowIsARunOfOneNumber)
{
  EXPECT_THAT(InitRows(std::vector<std::int16_t>{3, 3, 5, 7, 7, 7}),
              ElementsAre(SurveyRow{0, 1}, SurveyRow{2, 2}, SurveyRow{3, 5}));
  EXPECT_THAT(InitRows(std::vector<std::int16_t>{250}), ElementsAre(SurveyRow{0, 0}));
  EXPECT_THAT(InitRows({}), IsEmpty());
}

TEST(EdgeBuffer, TakesFourPercentOfEachEndAndLeavesTheBorderFree)
{
  SurveyState state = RowsAlongX({EvenRow(51)});  // t = 0, .02, .04, ..., .96, .98, 1
  EXPECT_EQ(Buffer(state), 4);
  EXPECT_THAT(MaskedSites(state), ElementsAre(0, 1, 49, 50));
}

TEST(EdgeBuffer, RowsAreCountedOnTopOfTheirEnds)
{
  SurveyState state = RowsAlongX({EvenRow(51), EvenRow(51), EvenRow(51)});
  state.SiteStatus[60] = site_status::Masked;  // stays, inside its row
  state.SiteStatus[51] = site_status::Masked;  // counts again, at its row's end
  EXPECT_EQ(Buffer(state, BufferExtent::OuterRowsToo), 3 * 4 + 2 * 51);
  EXPECT_EQ(MaskedSites(state).size(), 2 * 51 + 4 + 1U);
  SurveyState single = RowsAlongX({EvenRow(51)});
  EXPECT_EQ(Buffer(single, BufferExtent::OuterRowsToo), 4 + 2 * 51);
}

TEST(EdgeBuffer, SiteBeyondTheLineEndIsMasked)
{
  SurveyState state = RowsAlongX({{0, 25, 60, -30, 50}, {7, 9}});
  EXPECT_EQ(Buffer(state), 5);  // -30 lies at t = .6, straight-line distances having no sign
  EXPECT_THAT(MaskedSites(state), ElementsAre(0, 2, 4, 5, 6));
}

TEST(EdgeBuffer, RowWhoseEndsCoincideIsMaskedWhole)
{
  SurveyState state = RowsAlongX({{0, 10, 20, 10, 0}, {5}, EvenRow(51)});
  EXPECT_EQ(Buffer(state), 5 + 1 + 4);
  EXPECT_THAT(MaskedSites(state), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 55, 56));
}

}  // namespace
}  // namespace veln
