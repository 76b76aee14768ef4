#include "forms/design_table.h"

#include "design/design_fields.h"

namespace veln {
namespace {

/// Headings and rows, cells between bars.
std::vector<std::string> LinesOf(const TextTable& table)
{
  std::vector<std::string> lines;
  const auto add = [&lines](const std::vector<std::string>& cells) {
    lines.emplace_back();
    for (const std::string& cell : cells) {
      lines.back() += (&cell == cells.data() ? "" : "|") + cell;
    }
  };
  add(table.Headings);
  std::ranges::for_each(table.Rows, add);
  return lines;
}

TEST(DesignTable, OfADesignTellsTargetsAndSupportSites)
{
  SurveyState state = LineField();
  EXPECT_THAT(LinesOf(ListDesignSites(state, std::nullopt)),
              ElementsAre("Point|Site ID|x|y|Target |z|Support"));
  RunObserver silent;
  Design design = MakeDesign(state, LimitedDesign(), silent);
  EXPECT_THAT(LinesOf(ListDesignSites(state, design)),
              ElementsAre("Point|Site ID|x|y|Target |z|Support", "1|115|140.5|7.25|0.00|-0.20|",
                          "2|101|100.5|7.25|2.50|2.50|", "3|104|110.5|7.25|-2.50|-2.50|",
                          "4|107|120.5|7.25|1.50|1.50|", "5|110|130.5|7.25|-1.50|-1.50|",
                          "6|117|145.5|7.25||0.50|yes"));
  state.SignalCount = design.SignalCount = 2;
  state.Decorr2.assign(17, 0.125);
  design.Sites[0] = {};
  const auto lines = LinesOf(ListDesignSites(state, design));
  EXPECT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], "Point|Site ID|x|y|Target 1|Target 2|z1|z2|Support");
  EXPECT_EQ(lines[3], "4|107|120.5|7.25|1.75|-1.75|1.50|0.13|");
  EXPECT_EQ(lines[5], "6|117|145.5|7.25|||0.50|0.13|yes");
}

TEST(DesignTable, OfAManualDesignTellsTheSignals)
{
  SurveyState state = HandField({{100.12345, 7, -1.504, 0.25}, {1, 1}, {-20.5, 0, 0.25, 2}}, 2);
  state.SignalLabel = {"EMv", "EMh"};
  state.Signal1 = {45.675, 1, -0.125};
  state.Signal2 = {3, 2, 1};
  state.SiteStatus = {6, 0, 6};
  EXPECT_THAT(LinesOf(ListManualSites(state)),
              ElementsAre("Site ID|x|y|EMv|EMh|z1|z2", "101|100.12345|7.0|45.68|3.00|-1.50|0.25",
                          "103|-20.5|0.0|-0.13|1.00|0.25|2.00"));
  state.SignalCount = 1;
  EXPECT_EQ(LinesOf(ListManualSites(state)).front(), "Site ID|x|y|EMv|z");
}

}  // namespace
}  // namespace veln
