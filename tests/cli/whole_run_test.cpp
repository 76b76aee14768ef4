#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

#include <numbers>

namespace veln {
namespace {

using nlohmann::json;

/// A line of data.svy of a transect with two signals.
struct ExportedSite {
  int SiteId = 0, Row = 0, Status = 0;
  double X = 0, Y = 0, S1 = 0, S2 = 0, Z1 = 0, Z2 = 0;
};

/// One run with every step, made once for all tests of this file.
class WholeRun : public testing::Test {
 protected:
  static void SetUpTestSuite()
  {
    session_ = new VelnSession;
    std::vector<std::string> options = EveryStep();
    options.emplace_back("--json");
    const ProcessResult result = session_->Run(Text(), options);
    ASSERT_EQ(result.Status, 0) << result.Err;
    document_ = new json(json::parse(result.Out));
    sites_ = new std::vector<ExportedSite>;
    const auto lines = SplitLines(ReadText(session_->Output("data.svy")));
    for (std::size_t i = 2; i < lines.size(); ++i) {
      ExportedSite site;
      std::istringstream(lines[i]) >> site.SiteId >> site.Row >> site.Status >> site.X >> site.Y >> site.S1 >>
          site.S2 >> site.Z1 >> site.Z2;
      sites_->push_back(site);
    }
  }

  static void TearDownTestSuite()
  {
    delete sites_;
    delete document_;
    delete session_;
  }

  static std::string Text() { return RawFileText(SpoiltTransect(), LayoutOf(SpoiltTransect(), true)); }
  static std::string File(const std::string& suffix) { return ReadText(session_->Output(suffix)); }
  static const json& Document() { return *document_; }
  static const std::vector<ExportedSite>& Sites() { return *sites_; }
  static const ExportedSite& SiteOf(int siteId)
  {
    return *std::ranges::find(*sites_, siteId, &ExportedSite::SiteId);
  }
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

  static VelnSession* session_;
  static json* document_;
  static std::vector<ExportedSite>* sites_;
};

VelnSession* WholeRun::session_ = nullptr;
json* WholeRun::document_ = nullptr;
std::vector<ExportedSite>* WholeRun::sites_ = nullptr;

std::vector<int> SortedSiteIds(const json& design)
{
  std::vector<int> siteIds;
  for (const json& point : design.at("points")) {
    siteIds.push_back(point.at("site_id"));
  }
  std::ranges::sort(siteIds);
  return siteIds;
}

TEST_F(WholeRun, DeletesOneSpoiltReadingARound)
{
  std::vector<std::pair<int, int>> rounds;
  for (const json& round : Document().at("decorrelation")) {
    rounds.emplace_back(round.at("sites"), round.at("outliers"));
  }
  EXPECT_THAT(rounds, ElementsAre(std::pair(620, 1), std::pair(619, 1), std::pair(618, 0)));
  EXPECT_EQ(Document().at("deleted"), 2);
  EXPECT_EQ(Document().at("validations"), 2);
  EXPECT_EQ(Sites().size(), 618U);
  for (const ExportedSite& site : Sites()) {
    EXPECT_TRUE(site.SiteId != 101 && site.SiteId != 202);
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
  std::map<int, int> codes;
  for (const ExportedSite& site : Sites()) {
    ++codes[site.Status];
  }
  EXPECT_EQ(codes[8] + codes[9], 0);
  EXPECT_THAT(WithStatus(6), ElementsAre(77, 130, 400));
  EXPECT_EQ(Document().at("manual").at("sites"), (std::vector{77, 130, 400}));
  for (const ExportedSite& site : Sites()) {
    EXPECT_TRUE(site.Status == 7 || (site.Row != 1 && site.Row != 10)) << "edge row, site " << site.SiteId;
  }
  // Rows are about 305 m long: 4 percent take in the three sites at either end, 5 m apart.
  const int ends = 6;
  EXPECT_EQ(Document().at("edge_buffer").at("masked"), 10 * ends + 2 * 62);
  EXPECT_GE(codes[7], 8 * ends + 2 * 62);
  EXPECT_LE(codes[7], 8 * ends + 2 * 62 + Document().at("decorrelation").back().at("masked").get<int>());
  EXPECT_EQ(codes[1] + codes[2] + codes[3] + codes[4] + codes[5], 12 + 20 + 10 + 5 + 6);
}

TEST_F(WholeRun, ScoresEverySiteOfTheTransects)
{
  const auto lines = SplitLines(File("tstd.std"));
  ASSERT_EQ(lines.size(), 619U);
  const auto high = std::count_if(lines.begin() + 1, lines.end(), [](const std::string& line) {
    return std::stod(line.substr(line.rfind(' '))) > 1;
  });
  EXPECT_EQ(Document().at("transition").at("high"), high);
}

TEST_F(WholeRun, MakesEachDesignAsAskedFor)
{
  std::string settings;
  for (const json& design : Document().at("designs")) {
    settings += design.at("number").dump() + ": " + design.at("size").dump() + " " +
                design.at("d_factor").dump() + " " + design.at("stratum").dump() + "/" +
                design.at("strata").dump() + (design.at("support") ? " support" : "") +
                (design.at("ignore_ta") ? " ignore" : "") + "\n";
  }
  EXPECT_EQ(settings,
            "1: 12 1.0 1/1 support\n"
            "2: 20 0.85 1/1 support\n"
            "3: 10 1.0 2/3\n"
            "4: 5 1.15 1/1\n"
            "5: 6 1.05 3/3 support ignore\n");
  EXPECT_EQ(Document().at("notes").back(),
            "Note: This was your 5th sampling design.  No further designs can be generated...");
}

TEST_F(WholeRun, HasNoSiteInTwoDesignsAndSupportSitesNearTheCentre)
{
  const double centralLimit = 0.25;  // 125 / 618 is below it
  for (const json& design : Document().at("designs")) {
    EXPECT_EQ(SortedSiteIds(design), WithStatus(design.at("number")));
    for (const json& point : design.at("points")) {
      const ExportedSite& site = SiteOf(point.at("site_id"));
      EXPECT_NEAR(site.X, point.at("x").get<double>(), 1E-6);
      if (point.at("support_site")) {
        EXPECT_LE(std::max(std::abs(site.Z1), std::abs(site.Z2)), centralLimit);
        EXPECT_FALSE(point.contains("alternates"));
      } else {
        const std::set<int> candidates = {point.at("site_id"), point.at("alternates").at(0),
                                          point.at("alternates").at(1)};
        EXPECT_EQ(candidates.size(), 3U);
      }
    }
  }
}

TEST_F(WholeRun, ListsItsDesignsAlikeInAllFiles)
{
  for (const json& design : Document().at("designs")) {
    const std::string digit = design.at("number").dump();
    const auto gps = SplitLines(File("gps" + digit + ".txt"));
    const auto xrs = SplitLines(File("xrs" + digit + ".asc"));
    const std::vector<int> siteIds = SortedSiteIds(design);
    ASSERT_EQ(gps.size(), siteIds.size());
    ASSERT_EQ(xrs.size(), siteIds.size());
    for (std::size_t i = 0; i < siteIds.size(); ++i) {
      const ExportedSite& site = SiteOf(siteIds[i]);
      EXPECT_TRUE(gps[i].ends_with(", " + std::to_string(site.SiteId) + ", " + std::to_string(site.Row)));
      EXPECT_TRUE(xrs[i].ends_with(", \"FLD1-" + std::to_string(site.SiteId) + "\""));
    }
    const std::string report = File("rsd" + digit + ".txt");
    EXPECT_EQ(report.find("transition scores incorporated") == std::string::npos,
              design.at("ignore_ta").get<bool>());
    EXPECT_EQ(report.find("forced data stratification") == std::string::npos, design.at("strata") == 1);
    EXPECT_NE(report.find("Field Desc:   S\xc3\xbc"
                          "d, \"oben\"\r\n"),
              std::string::npos);
  }
}

TEST_F(WholeRun, ListsItsFilesInTheOrderWritten)
{
  std::vector<std::string> expected = {session_->Output("tstd.std"), session_->Output("info.txt"),
                                       session_->Output("ugsd.txt")};
  for (const std::string digit : {"1", "2", "3", "4", "5"}) {
    for (const std::string& suffix :
         {"rsd" + digit + ".txt", "gps" + digit + ".txt", "xrs" + digit + ".asc"}) {
      expected.push_back(session_->Output(suffix));
    }
  }
  expected.push_back(session_->Output("data.svy"));
  EXPECT_EQ(Document().at("files"), expected);
  EXPECT_EQ(session_->Outputs().size(), expected.size());
}

TEST_F(WholeRun, GivesTheSameBytesAgain)
{
  VelnSession again;
  ASSERT_EQ(again.Run(Text(), EveryStep()).Status, 0);
  for (const std::string& suffix : session_->Outputs()) {
    EXPECT_EQ(SteadyText(ReadText(again.Output(suffix)), again.Root()),
              SteadyText(File(suffix), session_->Root()))
        << suffix;
  }
}

}  // namespace
}  // namespace veln
