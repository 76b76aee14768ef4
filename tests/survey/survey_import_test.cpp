#include "survey/survey_import.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

class SurveyImport : public testing::Test {
 protected:
  ImportRequest RequestFor(const RawSurvey& survey, const RecordLayout& layout)
  {
    WriteText(directory_ / "raw.txt", RawFileText(survey, layout));
    return {(directory_ / "raw.txt").string(), layout, {"EMv", "EMh"}, ConductivityUnits::DeciSiemens, false};
  }

  TemporaryDirectory directory_;
};

TEST_F(SurveyImport, EachOfTheEightLayoutsFillsTheRecord)
{
  for (const bool transect : {false, true}) {
    for (const int signals : {1, 2}) {
      RawSurvey survey = transect ? TransectSurvey(5, 12, signals) : GridSurvey(10, 6, signals);
      for (const bool siteIds : {false, true}) {
        if (siteIds) {
          std::ranges::reverse(survey.SiteId);
        }
        ImportRequest request = RequestFor(survey, LayoutOf(survey, siteIds));
        request.Log = siteIds;
        SurveyState state = NamedState();
        ImportSurvey(state, request);
        SCOPED_TRACE(request.FileName + " " + std::to_string(siteIds) + std::to_string(signals));
        EXPECT_EQ(state.SiteId, survey.SiteId);
        EXPECT_EQ(state.CoordX, survey.CoordX);
        EXPECT_EQ(state.CoordY, survey.CoordY);
        EXPECT_EQ(state.RowNumber, survey.RowNumber);
        EXPECT_EQ(state.Signal1.at(7), siteIds ? std::log(survey.Signal1[7]) : survey.Signal1[7]);
        EXPECT_EQ(state.Signal2.size(), survey.Signal2.size());
        EXPECT_EQ(state.SiteStatus, std::vector<std::int16_t>(60, site_status::Free));
        EXPECT_EQ(state.SurveySize, 60);
        EXPECT_EQ(state.SignalCount, signals);
        EXPECT_EQ(IsTransect(state), transect);
        EXPECT_EQ(state.LogTransform, siteIds);
        EXPECT_EQ(state.SignalUnits, ConductivityUnits::DeciSiemens);
        EXPECT_EQ(state.SignalLabel[0] + state.SignalLabel[1], "EMvEMh");
        EXPECT_EQ(state.ImportFileName, request.FileName);
        EXPECT_TRUE(state.Signals.Correlation.has_value() == (signals == 2) &&
                    state.Menu.IsEnabled(MenuEntry::mnuStats));
      }
    }
  }
}

TEST_F(SurveyImport, RefusalLeavesTheRecordWhole)
{
  SurveyState state = NamedState();
  RawSurvey survey = GridSurvey(10, 5);
  const RecordLayout layout = LayoutOf(survey);
  const auto refusal = [&](const ImportRequest& request) {
    return WholeRefusalOf(state, [&] { ImportSurvey(state, request); });
  };
  ImportRequest request = RequestFor(survey, {.SecondSignal = false});
  EXPECT_THAT(refusal({"", layout, {}, ConductivityUnits::MilliSiemens, false}),
              "Error! File not found! Please re-enter filename information...");
  request.Layout = layout;
  EXPECT_THAT(refusal(request), HasSubstr("fewer data columns"));

  std::ranges::fill(survey.Signal2, 0.1);
  EXPECT_THAT(refusal(RequestFor(survey, layout)), HasSubstr("\"EMh\" is constant"));
  survey.Signal2.back() = 1E+200;  // its square leaves the doubles
  EXPECT_THAT(refusal(RequestFor(survey, layout)), HasSubstr("\"EMh\" holds values too large"));
  survey.Signal2.back() = 1E+100;  // the spreads can be told, the product of the sums of squares can't
  survey.Signal1.back() = 1E+100;
  EXPECT_THAT(refusal(RequestFor(survey, layout)), HasSubstr("correlation"));

  const RawSurvey fine = GridSurvey(10, 5);
  request = RequestFor(fine, layout);
  ImportSurvey(state, request);
  EXPECT_THAT(refusal(request), HasSubstr("not open"));
}

TEST_F(SurveyImport, OneConstantSignalIsTaken)
{
  RawSurvey survey = GridSurvey(10, 5, 1);
  std::ranges::fill(survey.Signal1, 0.1);
  SurveyState state = NamedState();
  ImportSurvey(state, RequestFor(survey, LayoutOf(survey)));
  EXPECT_NEAR(state.Signals.Rows[0].Statistics.Std, 0, 1E-15);
}

}  // namespace
}  // namespace veln
