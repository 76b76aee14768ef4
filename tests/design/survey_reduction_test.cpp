#include "design/survey_reduction.h"

#include "design_fields.h"

namespace veln {
namespace {

TEST(SurveyReduction, KeepsMultiplesOfTheFactorAndRecoversOnlyWhatItDropped)
{
  SurveyState state = HandField(std::vector<HandSite>(10));
  state.SiteStatus = {1, 0, 7, 0, 6, 0, 0, 0, 0, 0};
  const std::vector<std::int16_t> before = state.SiteStatus;
  const std::vector<std::vector<std::int16_t>> left = {{1, 0, 7, 0, 6, 0, 8, 0, 8, 0},
                                                       {1, 8, 7, 8, 6, 0, 8, 8, 0, 8},
                                                       {1, 8, 7, 0, 6, 8, 8, 0, 8, 8},
                                                       {1, 8, 7, 8, 6, 8, 8, 8, 8, 0}};
  for (std::size_t k = 0; k < left.size(); ++k) {
    ReduceGridSize(state, ReductionSteps.at(k));
    EXPECT_EQ(state.SiteStatus, left[k]);
    RecoverGridSites(state);
    EXPECT_EQ(state.SiteStatus, before);
  }
  ReduceGridSize(state, ReductionSteps[0]);
  ReduceGridSize(state, ReductionSteps[1]);  // goes by place again: multiples of 6
  EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{1, 8, 7, 8, 6, 0, 8, 8, 8, 8}));
}

TEST(SurveyReduction, StrataFollowTheSurveySizeToTheEvenNeighbour)
{
  for (const auto& [size, strata] : {std::pair{400, 2},
                                     {599, 2},
                                     {600, 3},
                                     {1000, 3},
                                     {1001, 4},
                                     {1400, 5},
                                     {2999, 8},
                                     {3000, 9},
                                     {4000, 9},
                                     {30000, 9}}) {
    EXPECT_EQ(CountStrata(size), strata) << size;
  }
}

}  // namespace
}  // namespace veln
