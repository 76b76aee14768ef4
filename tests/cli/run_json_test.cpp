#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

namespace veln {
namespace {

using Json = nlohmann::ordered_json;

/// 52 sites whose standardised signal is told outright: the squares of z sum to 3 * (2 * 2.5^2 + 2 * 1.5^2) =
/// 51, which is n - 1, so that 40 + 8 z has mean 40 and deviation 8 without rounding. Site numbers run from
/// 1001.
std::string WorkedSurvey()
{
  struct Sites {
    int Count;
    const char* Position;
    double Z;
  };
  const std::vector<Sites> groups = {{3, "0,0", 2.5},      {3, "100,0", -2.5}, {3, "0,100", 1.5},
                                     {3, "100,100", -1.5}, {1, "10,10", 0},    {1, "50,50", 0},
                                     {1, "10,90", 0},      {1, "20,30", 0},    {1, "50,0", 0},
                                     {1, "100,50", 0},     {34, "5,5", 0}};
  std::string text;
  int siteId = 1000;
  for (const Sites& group : groups) {
    for (int i = 0; i < group.Count; ++i) {
      text += std::to_string(++siteId) + "," + group.Position + "," + std::to_string(40 + 8 * group.Z) + "\n";
    }
  }
  return text;
}

/// What a run over the survey above is to tell, without its files.
///
/// A limited design has the levels 0, 2.5, -2.5, 1.5 and -1.5. Points 2 to 5 find their three sites in one
/// corner each, point 1 the first three sites at 0: 1013 at (10,10), 1014 at (50,50), 1015 at (10,90). The
/// first sweep puts 1014 in, since every nearest distance is then 50 sqrt(2); the second changes nothing. The
/// field is a square of 100, so Opt-Criteria is 100 / (sqrt(5) - 0.5) / (50 sqrt(2)) = 0.81461. Of the sites
/// with |z| below 1, 1017 at (50,0) and 1018 at (100,50) are both 50 away from the design: the first is
/// taken. At D-factors 0.9 and 1.1 the nearest three sites of each level are the same.
const char* const WorkedDocument = R"({
  "program": "VELN-QTRD", "version": "2.35R",
  "import": {"file": "survey.txt", "type": "Grid", "sites": 52, "signals": 1, "log": false, "units": "mS/m"},
  "signals": [{"label": "EMv", "n": 52, "mean": 40.0, "std": 8.0, "min": 20.0, "max": 60.0}],
  "corr": null,
  "decorrelation": [{"sites": 52, "masking_level": 3.25, "outlier_level": 4.5, "masked": 0, "outliers": 0}],
  "deleted": 0, "validations": 0,
  "edge_buffer": null, "transition": null, "reduction": null,
  "ads": {
    "strata": 1, "limited": true,
    "scores": [{"stratum": 1, "d_factor": 0.9, "opt_criteria": 0.8146},
               {"stratum": 1, "d_factor": 1.0, "opt_criteria": 0.8146},
               {"stratum": 1, "d_factor": 1.1, "opt_criteria": 0.8146}],
    "best": {"stratum": 1, "d_factor": 0.9, "opt_criteria": 0.8146}, "limit": 1.3, "acceptable": 3},
  "designs": [{
    "number": 1, "size": 6, "d_factor": 1.0, "strata": 1, "stratum": 1, "ignore_ta": false, "support": true,
    "opt_criteria": 0.815, "loop_count": 2,
    "points": [
      {"point": 1, "site_id": 1014, "x": 50.0, "y": 50.0, "support_site": false, "alternates": [1013, 1015]},
      {"point": 2, "site_id": 1001, "x": 0.0, "y": 0.0, "support_site": false, "alternates": [1002, 1003]},
      {"point": 3, "site_id": 1004, "x": 100.0, "y": 0.0, "support_site": false, "alternates": [1005, 1006]},
      {"point": 4, "site_id": 1007, "x": 0.0, "y": 100.0, "support_site": false, "alternates": [1008, 1009]},
      {"point": 5, "site_id": 1010, "x": 100.0, "y": 100.0, "support_site": false, "alternates": [1011, 1012]},
      {"point": 6, "site_id": 1017, "x": 50.0, "y": 0.0, "support_site": true}]}],
  "manual": {"sites": [1019, 1052]},
  "files": [],
  "notes": ["Data file information & statistics saved to FLD1info.txt",
            "User generated sampling design information has been saved to FLD1ugsd.txt",
            "SRSD sampling design information has been saved to FLD1rsd1.txt"]
})";

TEST(RunDocument, HoldsWhatIsWorkedOutByHandInItsOrderAndTypes)
{
  VelnSession session;
  const ProcessResult result =
      session.Run(WorkedSurvey(), {"--json", "--site-id", "--masking-level", "3.25", "--manual",
                                   "1052,1019,1052", "--ads", "limited", "--design", "6"});
  EXPECT_EQ(result.Status, 0) << result.Err;
  Json expected = Json::parse(WorkedDocument);
  for (const char* suffix : {"info.txt", "ugsd.txt", "rsd1.txt", "gps1.txt", "xrs1.asc", "data.svy"}) {
    expected["files"].push_back(session.Output(suffix).string());
  }
  // Compared as text: 40 and 40.0, equal as numbers, are of two types.
  EXPECT_EQ(Json::parse(result.Out).dump(1), expected.dump(1));
}

TEST(RunDocument, TellsASecondSignalItsCorrelationAndTheUnitsOfTheFile)
{
  // Both signals are 1 or -1, half and half. They are equal at eight sites in ten: r = 0.8 - 0.2.
  const auto line = [](int i) {
    const int s1 = i % 2 == 0 ? 1 : -1;
    const int s2 = i % 10 < 8 ? s1 : -s1;
    return GridLine(i).substr(0, GridLine(i).rfind(',')) + "," + std::to_string(s1) + "," +
           std::to_string(s2);
  };
  VelnSession session;
  const ProcessResult result = session.Run(
      Lines(100, line),
      {"--s2", "--label2", "deep", "--json", "--manual", "9", "--no-export", "--convert-units", "dS/m"});
  const Json document = Json::parse(result.Out);
  EXPECT_EQ(document.at("import").at("units"), "mS/m");
  EXPECT_EQ(document.at("signals").at(1).at("label"), "deep");
  EXPECT_DOUBLE_EQ(document.at("signals").at(1).at("max").get<double>(), 0.01);
  EXPECT_NEAR(document.at("corr").get<double>(), 0.6, 1E-12);
  EXPECT_TRUE(document.at("ads").is_null());
  EXPECT_EQ(document.at("designs"), Json::array());
  EXPECT_NE(ReadText(session.Output("info.txt")).find("Signal Units:    dS/m\r\n"), std::string::npos);
}

TEST(Reduction, OfFiveThousandSitesLeavesEverySecondToTheDesigns)
{
  VelnSession session;
  const ProcessResult result = session.Run(
      GridText(5000), {"--json", "--reduce", "50", "--design", "20", "--design", "12,stratum=9,d=0.9"});
  EXPECT_EQ(result.Status, 0) << result.Err;
  const Json document = Json::parse(result.Out);
  EXPECT_EQ(document.at("reduction").dump(), R"({"percent":50,"available":2500})");
  EXPECT_EQ(document.at("notes").at(1), "The active # of survey sites have been reduced by 50%");
  EXPECT_EQ(document.at("designs").at(1).at("strata"), 9);
  const auto lines = SplitLines(ReadText(session.Output("data.svy")));
  ASSERT_EQ(lines.size(), 5002U);
  int chosen = 0;
  for (std::size_t i = 2; i < lines.size(); ++i) {
    int siteId = 0;
    int status = 0;
    std::istringstream(lines[i]) >> siteId >> status;
    EXPECT_TRUE(siteId % 2 == 1 ? status == 8 : status >= 0 && status <= 2) << lines[i];
    chosen += status == 1 || status == 2 ? 1 : 0;
  }
  EXPECT_EQ(chosen, 32);
}

}  // namespace
}  // namespace veln
