#include "survey/survey_import.h"

#include "forms/structure_form.h"
#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

class SurveyImport : public testing::Test {
 protected:
  ImportRequest RequestFor(const RawSurvey& survey, const RecordLayout& layout)
  {
    WriteText(directory_ / "raw.txt", RawFileText(survey, layout));
    return {
        (directory_ / "raw.txt").string(), layout, {"EMv", "EMh"}, ConductivityUnits::MilliSiemens, false};
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
        const ImportRequest request = RequestFor(survey, LayoutOf(survey, siteIds));
        SurveyState state = NamedState();
        ImportSurvey(state, request);
        SurveyState expected = ImportedSurvey(survey);
        expected.ImportFileName = request.FileName;
        EXPECT_TRUE(state == expected)
            << "transect " << transect << ", signals " << signals << ", IDs " << siteIds;
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

TEST(StructureForm, TransformOverwritesLabelsAndUnitsAreAPair)
{
  StructureForm form;
  EXPECT_EQ(form.Request().Units, ConductivityUnits::MilliSiemens);
  form.Text1 = "mine";
  ChooseLogTransform(form, true);
  ChooseUnits(form, true);
  form.Transect = form.Check2 = true;
  const ImportRequest request = form.Request();
  EXPECT_EQ(request.Labels[0], "log(EMv)");
  EXPECT_EQ(request.Labels[1], "log(EMh)");
  EXPECT_EQ(request.Units, ConductivityUnits::DeciSiemens);
  EXPECT_TRUE(request.Log && request.Layout.Transect && request.Layout.SecondSignal &&
              !request.Layout.SiteIdColumn);
  EXPECT_EQ(form.Label9(),
            "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*,  row-num    (* if present)");
  form.Transect = false;
  EXPECT_EQ(form.Label9(), "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*    (* if present)");
}

}  // namespace
}  // namespace veln
