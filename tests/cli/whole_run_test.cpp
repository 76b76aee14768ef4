#include "cli/veln_session.h"
#include "survey/statistics.h"
#include "toolkit/number_text.h"

#include <nlohmann/json.hpp>

#include <numbers>

namespace veln {
namespace {

using Json = nlohmann::ordered_json;

std::vector<std::string> EveryStep()
{
  std::istringstream words(
      "--site-id --s2 --log --transition --transition-file --type transect --convert-units dS/m "
      "--translate rotate=30 --translate swap --delete-outliers 2 --edge-buffer rows --manual 130,77,400 "
      "--ads limited --design 12 --design 20,d=0.85 --design 12,stratum=2,no-support --design 5,d=1.15 "
      "--design 6,stratum=3,d=1.05,ignore-ta --description S\u00FCd,\"oben\"");
  return {std::istream_iterator<std::string>(words), {}};
}

std::string SpoiltText()
{
  return RawFileText(SpoiltTransect(), LayoutOf(SpoiltTransect(), true));
}

/// A line of data.svy of a transect with two signals.
struct ExportedSite {
  int SiteId = 0, Row = 0, Status = 0;
  double X = 0, Y = 0, S1 = 0, S2 = 0, Z1 = 0, Z2 = 0;
};

std::vector<ExportedSite> ReadExport(const VelnSession& session)
{
  std::vector<ExportedSite> sites;
  const auto lines = SplitLines(ReadText(session.Output("data.svy")));
  for (std::size_t i = 2; i < lines.size(); ++i) {
    ExportedSite site;
    std::istringstream(lines[i]) >> site.SiteId >> site.Row >> site.Status >> site.X >> site.Y >> site.S1 >>
        site.S2 >> site.Z1 >> site.Z2;
    sites.push_back(site);
  }
  return sites;
}

/// One run with every step, made once for all tests of this file.
class WholeRun : public testing::Test {
 protected:
  struct Made {
    VelnSession Session;
    Json Document;
    std::vector<ExportedSite> Sites;
  };

  static void SetUpTestSuite()
  {
    made_ = new Made;
    std::vector<std::string> options = EveryStep();
    options.emplace_back("--json");
    const ProcessResult result = made_->Session.Run(SpoiltText(), options);
    ASSERT_EQ(result.Status, 0) << result.Err;
    made_->Document = Json::parse(result.Out);
    made_->Sites = ReadExport(made_->Session);
  }
  static void TearDownTestSuite() { delete made_; }

  static const Json& Part(const char* name) { return made_->Document.at(name); }
  static const std::vector<ExportedSite>& Sites() { return made_->Sites; }
  static std::vector<int> WithStatus(int status)
  {
    std::vector<int> siteIds;
    for (const ExportedSite& site : Sites()) {
      if (site.Status == status) {
        siteIds.push_back(site.SiteId);
      }
    }
    return siteIds;
  }

  static Made* made_;
};

WholeRun::Made* WholeRun::made_ = nullptr;

TEST_F(WholeRun, DeletesSpoiltReadingsRoundByRound)
{
  std::string rounds;
  for (const Json& round : Part("decorrelation")) {
    rounds +=
        round.at("sites").dump() + ":" + round.at("masked").dump() + ":" + round.at("outliers").dump() + " ";
  }
  EXPECT_EQ(rounds, "620:0:2 618:0:1 617:0:0 ");
  EXPECT_EQ(Part("deleted"), 3);
  EXPECT_EQ(Part("validations"), 2);
  EXPECT_EQ(Part("import").at("sites"), 620);
  EXPECT_EQ(Part("signals").at(1).at("n"), 617);
  EXPECT_EQ(Sites().size(), 617U);
  EXPECT_TRUE(std::ranges::none_of(Sites(), [](const ExportedSite& site) {
    return site.SiteId == 101 || site.SiteId == 202 || site.SiteId == 303;
  }));
}

TEST_F(WholeRun, DescribesTheSignalsAsTheyEnded)
{
  std::vector<double> s1;
  std::vector<double> s2;
  for (const ExportedSite& site : Sites()) {
    s1.push_back(site.S1);
    s2.push_back(site.S2);
  }
  EXPECT_NEAR(Part("corr").get<double>(), Correlation(s1, s2).value(), 1E-4);
  for (const auto& [signal, values] : {std::pair(0, s1), std::pair(1, s2)}) {
    const Json& described = Part("signals").at(static_cast<std::size_t>(signal));
    EXPECT_NEAR(described.at("mean").get<double>(), MeanStd(values).Mean, 1E-5);
    EXPECT_NEAR(described.at("std").get<double>(), MeanStd(values).Std, 1E-5);
    EXPECT_NEAR(described.at("min").get<double>(), std::ranges::min(values), 1E-5);
    EXPECT_NEAR(described.at("max").get<double>(), std::ranges::max(values), 1E-5);
  }
}

TEST_F(WholeRun, KeepsWhatWasReadBehindLogUnitsAndTranslations)
{
  const RawSurvey raw = SpoiltTransect();
  const double meanX = MeanStd(raw.CoordX).Mean;
  const double meanY = MeanStd(raw.CoordY).Mean;
  const double angle = 30 * std::numbers::pi / 180;
  for (const ExportedSite& site : Sites()) {
    const auto i = static_cast<std::size_t>(site.SiteId) - 1;
    EXPECT_NEAR(100 * std::exp(site.S1), raw.Signal1[i], 1E-3 * raw.Signal1[i]);
    EXPECT_NEAR(100 * std::exp(site.S2), raw.Signal2[i], 1E-3 * raw.Signal2[i]);
    EXPECT_EQ(site.Row, raw.RowNumber[i]);
    const double dx = raw.CoordX[i] - meanX;
    const double dy = raw.CoordY[i] - meanY;
    EXPECT_NEAR(site.Y, meanX + dx * std::cos(angle) - dy * std::sin(angle), 1E-6);
    EXPECT_NEAR(site.X, meanY + dx * std::sin(angle) + dy * std::cos(angle), 1E-6);
  }
}

TEST_F(WholeRun, GivesEverySiteOneCodeThatItsStepExplains)
{
  EXPECT_THAT(WithStatus(6), ElementsAre(77, 130, 400));
  EXPECT_EQ(Part("manual").dump(), R"({"sites":[77,130,400]})");
  EXPECT_TRUE(WithStatus(8).empty() && WithStatus(9).empty());
  for (const ExportedSite& site : Sites()) {
    EXPECT_TRUE(site.Status == 7 || (site.Row != 1 && site.Row != 10)) << "edge row, site " << site.SiteId;
  }
  // Rows are about 305 m long: 4 percent take in the three sites at either end, 5 m apart.
  const int ends = 6;
  EXPECT_EQ(Part("edge_buffer").at("masked"), 10 * ends + 2 * 62);
  const auto masked = static_cast<int>(WithStatus(7).size());
  EXPECT_GE(masked, 8 * ends + 2 * 62);
  EXPECT_LE(masked, 8 * ends + 2 * 62 + Part("decorrelation").back().at("masked").get<int>());
  const auto scores = SplitLines(ReadText(made_->Session.Output("tstd.std")));
  ASSERT_EQ(scores.size(), 618U);
  EXPECT_EQ(Part("transition").at("high"),
            std::count_if(scores.begin() + 1, scores.end(), [](const std::string& line) {
              return std::stod(line.substr(line.rfind(' '))) > 1;
            }));
}

TEST_F(WholeRun, MakesEachDesignAsAskedForOfSitesOfItsOwn)
{
  const double centralLimit = 0.25;  // of support sites; 125 / 617 is below it
  std::string settings;
  for (const Json& design : Part("designs")) {
    for (const char* key : {"number", "size", "d_factor", "stratum", "strata", "support", "ignore_ta"}) {
      settings += design.at(key).dump() + " ";
    }
    settings += "\n";
    std::vector<int> siteIds;
    for (const Json& point : design.at("points")) {
      siteIds.push_back(point.at("site_id"));
      const ExportedSite& site = *std::ranges::find(Sites(), siteIds.back(), &ExportedSite::SiteId);
      EXPECT_NEAR(site.X, point.at("x").get<double>(), 1E-6);
      EXPECT_NEAR(site.Y, point.at("y").get<double>(), 1E-6);
      if (point.at("support_site")) {
        EXPECT_LE(std::max(std::abs(site.Z1), std::abs(site.Z2)), centralLimit);
      } else {
        EXPECT_NE(point.at("alternates").at(0), point.at("alternates").at(1));
      }
    }
    std::ranges::sort(siteIds);
    EXPECT_EQ(siteIds, WithStatus(design.at("number")));
  }
  EXPECT_EQ(settings,
            "1 12 1.0 1 1 true false \n2 20 0.85 1 1 true false \n3 10 1.0 2 3 false false \n"
            "4 5 1.15 1 1 false false \n5 6 1.05 3 3 true true \n");
}

TEST_F(WholeRun, ListsItsFilesAndNotesInTheOrderTheyCame)
{
  Json files = {"tstd.std", "info.txt", "ugsd.txt"};
  Json notes = {"Note:   184 sites were masked by the edge buffering algorithm.",
                "Note:  " + NumberToString(Part("transition").at("high").get<int>()) +
                    " sites exceed the global signal variability level.",
                "Data file information & statistics saved to FLD1info.txt",
                "User generated sampling design information has been saved to FLD1ugsd.txt"};
  for (const std::string digit : {"1", "2", "3", "4", "5"}) {
    for (const std::string& suffix :
         {"rsd" + digit + ".txt", "gps" + digit + ".txt", "xrs" + digit + ".asc"}) {
      files.push_back(suffix);
    }
    notes.push_back("SRSD sampling design information has been saved to FLD1rsd" + digit + ".txt");
  }
  notes.push_back("Note: This was your 5th sampling design.  No further designs can be generated...");
  files.push_back("data.svy");
  for (Json& file : files) {
    file = made_->Session.Output(file).string();
    EXPECT_TRUE(std::filesystem::exists(file.get<std::string>())) << file;
  }
  EXPECT_EQ(Part("files").dump(1), files.dump(1));
  EXPECT_EQ(Part("notes").dump(1), notes.dump(1));
}

TEST_F(WholeRun, PrintsItsProgressAndGivesTheSameBytesAgain)
{
  VelnSession again;
  const ProcessResult result = again.Run(SpoiltText(), EveryStep());
  EXPECT_EQ(SteadyText(result.Out, again.Root()),
            ReadText(std::filesystem::path(VELN_TEST_DATA) / "whole_run_progress.txt"));
  for (const std::string& file : ListFiles(again.Root())) {
    if (!file.ends_with('/')) {
      EXPECT_EQ(SteadyText(ReadText(again.Root() / file), again.Root()),
                SteadyText(ReadText(made_->Session.Root() / file), made_->Session.Root()))
          << file;
    }
  }
}

}  // namespace
}  // namespace veln
