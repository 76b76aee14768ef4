#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

namespace veln {
namespace {

std::string SmallTransect()
{
  const RawSurvey survey = TransectSurvey(6, 12, 2, 7);
  return RawFileText(survey, LayoutOf(survey));
}

std::vector<std::string> With(std::vector<std::string> options, const std::vector<std::string>& pictures)
{
  for (const std::string& picture : pictures) {
    options.insert(options.end(), {"--plot", picture});
  }
  return options;
}

int CountOf(const std::string& text, const std::string& part)
{
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

const std::vector<std::string> Transect = {"--type", "transect", "--s2", "--transition", "--design", "6"};

TEST(Pictures, ComeOutInEveryKindWithADotForEverySite)
{
  VelnSession session;
  const std::vector<std::string> ofSites = {"grid", "s1-x",   "s1-y",   "s2-x",   "s2-y",   "s1-s2",
                                            "rsd",  "map-s1", "map-s2", "map-z1", "map-z2", "map-ta"};
  const std::vector<std::string> others = {"line-s1:2", "line-s2:2", "line-s1s2:2", "hist-s1", "hist-s2",
                                           "hist-z1",   "hist-z2",   "hist-ta",     "sites:1"};
  std::vector<std::string> kinds = ofSites;
  kinds.insert(kinds.end(), others.begin(), others.end());
  std::vector<std::string> pictures;
  for (const std::string& kind : kinds) {
    pictures.push_back(kind + "=" + kind + ".svg");
  }
  std::vector<std::string> options = With(Transect, pictures);
  options.emplace_back("--json");
  const ProcessResult result = session.Run(SmallTransect(), options);
  ASSERT_EQ(result.Status, 0) << result.Err;
  const auto files = nlohmann::json::parse(result.Out)["files"];
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    const auto path = session.Root() / (kinds[i] + ".svg");
    EXPECT_EQ(files[files.size() - kinds.size() + i], path.string());
    const std::string svg = ReadText(path);
    EXPECT_THAT(svg, StartsWith("<?xml"));
    EXPECT_THAT(svg, EndsWith("</svg>\n"));
    if (i < ofSites.size()) {
      // A map's legend has four dots of its own.
      EXPECT_EQ(CountOf(svg, "h0"), kinds[i].starts_with("map") ? 72 + 4 : 72) << kinds[i];
    }
  }
  EXPECT_THAT(ReadText(session.Root() / "line-s1s2:2.svg"), HasSubstr(">s1 s2 Corr</text>"));
}

TEST(Pictures, FollowTheOptions)
{
  VelnSession session;
  std::vector<std::string> options =
      With(Transect, {"grid=grid.svg", "map-s1=map.svg", "line-s1:02=line.svg"});
  options.insert(options.end(), {"--palette", "4", "--symbol-size", "7", "--no-highlight-samples",
                                 "--direction", "ns", "--decimals", "4"});
  ASSERT_EQ(session.Run(SmallTransect(), options).Status, 0);
  EXPECT_THAT(ReadText(session.Root() / "map.svg"), AllOf(HasSubstr("GrayScale Map of EMv Signal Data"),
                                                          HasSubstr("stroke:#c0c0c0;stroke-width:105")));
  EXPECT_THAT(ReadText(session.Root() / "line.svg"), HasSubstr("EMv versus Y for Row #2"));
  EXPECT_THAT(ReadText(session.Root() / "grid.svg"), Not(HasSubstr("#00ffff")));
}

TEST(Pictures, OfARowOrADesignThatIsNotThereEndTheRun)
{
  VelnSession session;
  for (const auto& [picture, message] :
       {std::pair{"line-s1:7=a.svg", "Error! Requested Row # does not exist!\n"},
        std::pair{"line-s1:0=a.svg", "Error! Requested Row # does not exist!\n"},
        std::pair{"sites:2=a.svg", "Error! Requested Sample Design # does not exist!\n"}}) {
    std::vector<std::string> options = With(Transect, {"grid=b.svg", picture});
    options.insert(options.end(), {"--overwrite", "--json"});
    const ProcessResult result = session.Run(SmallTransect(), options);
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err, message);
    EXPECT_EQ(result.Out, "");
    EXPECT_FALSE(exists(session.Root() / "b.svg")) << "pictures appear together";
    EXPECT_TRUE(exists(session.Output("data.svy")) || exists(session.Output("info.txt")));
  }
}

}  // namespace
}  // namespace veln
