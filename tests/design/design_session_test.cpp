#include "design/manual_design.h"
#include "design/srs_form.h"
#include "design/survey_reduction.h"
#include "design_fields.h"
#include "support/files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace veln {
namespace {

/// A survey with masked sites, two picked by hand, and five designs of all sizes, D-factors and strata.
SurveyState FiveDesigns(const std::filesystem::path& directory)
{
  SurveyState state = AcceptedSurvey(TransectSurvey(25, 48, 2, 7), {}, directory);  // 1200 sites: 4 strata
  for (std::size_t i = 0; i < state.SiteStatus.size(); i += 11) {
    state.SiteStatus[i] = site_status::Masked;
  }
  ScriptedDialogs dialogs;
  RunObserver silent;
  MaskForm mask = OpenMaskForm(state);
  for (const char* number : {"3", "5"}) {
    mask.Text1 = number;
    SelectSite(mask, state);
  }
  SrsForm form = OpenSrs(state, dialogs);
  const DesignSize sizes[] = {DesignSize::Full, DesignSize::Standard, DesignSize::Limited, DesignSize::Full,
                              DesignSize::Standard};
  for (int design = 0; design < 5; ++design) {
    ChooseSize(form, state, sizes[design]);
    MoveDFactor(form, 80 + 10 * design);
    if (design > 0) {
      SwitchParsing(form, true);
      ParseForm parse = LoadParseForm(state);
      ChooseStratum(parse, design);
      InvokeParsing(parse, form, dialogs);
    }
    RunDesign(form, state, dialogs, silent);
    SaveDesign(form, state, dialogs, FixedClock);
  }
  EXPECT_TRUE(form.Closed);
  return state;
}

/// Codes of the sites that a report shows as support sites.
std::vector<std::size_t> SupportSitesIn(const std::string& report)
{
  std::vector<std::size_t> codes;
  std::istringstream lines(report);
  for (std::string line; std::getline(lines, line);) {
    if (line.find("support site") != std::string::npos) {
      codes.push_back(std::stoul(line));
    }
  }
  return codes;
}

TEST(DesignSession, FiveDesignsShareNoSiteAndComeOutTheSameAgain)
{
  const TemporaryDirectory directory;
  std::filesystem::create_directories(directory / "data/farm");
  const auto filesOf = [&directory] {
    std::map<std::string, std::string> files;
    for (const std::string& name : ListFiles(directory / "data/farm")) {
      files[name] = ReadText(directory / "data/farm" / name);
    }
    return files;
  };
  const SurveyState state = FiveDesigns(directory.Path());
  const auto files = filesOf();
  std::map<int, int> count;
  for (const int status : state.SiteStatus) {
    ++count[status];
  }
  EXPECT_EQ(count,
            (std::map<int, int>{
                {0, 1200 - 70 - 2 - 110}, {1, 20}, {2, 12}, {3, 6}, {4, 20}, {5, 12}, {6, 2}, {7, 110}}));
  EXPECT_EQ(files.size(), 15U);
  std::size_t supportSites = 0;
  for (int design = 1; design <= 5; ++design) {
    for (const std::size_t code : SupportSitesIn(files.at("ab12rsd" + std::to_string(design) + ".txt"))) {
      EXPECT_EQ(state.SiteStatus.at(code - 1), design);
      EXPECT_LT(std::abs(state.Decorr1.at(code - 1)), 0.25);
      EXPECT_LT(std::abs(state.Decorr2.at(code - 1)), 0.25);
      ++supportSites;
    }
  }
  EXPECT_EQ(supportSites, 9U);
  EXPECT_EQ(FiveDesigns(directory.Path()), state);
  EXPECT_EQ(filesOf(), files);
}

}  // namespace
}  // namespace veln
