#include "workspace/workflow.h"

#include "support/testing.h"

namespace veln {
namespace {

using enum MenuEntry;
using enum WorkflowEvent;

/// The open entries, in the order of the menu.
std::string Open(const Workflow& menu)
{
  constexpr std::array<const char*, 10> Names = {"Project", "Import", "VPOF", "SG",   "Stats",
                                                 "SigD",    "SigV",   "SRS",  "Mask", "SHowMap"};
  std::string text;
  for (std::size_t i = 0; i < Names.size(); ++i) {
    text +=
        menu.IsEnabled(static_cast<MenuEntry>(i)) ? (text.empty() ? "" : " ") + std::string(Names.at(i)) : "";
  }
  return text;
}

std::string OpenAfter(Workflow menu, WorkflowEvent event)
{
  menu.Apply(event);
  return Open(menu);
}

TEST(Workflow, EachStepOpensTheNext)
{
  Workflow menu;
  EXPECT_EQ(Open(menu), "Project");
  const auto after = [&menu](WorkflowEvent event) {
    menu.Apply(event);
    return Open(menu);
  };
  EXPECT_EQ(after(ProjectAccepted), "Project Import");
  EXPECT_EQ(after(ProjectAccepted), "Project Import");  // may be repeated until a survey is imported
  EXPECT_EQ(after(SurveyImported), "SG Stats SigD");
  EXPECT_EQ(after(SignalsDecorrelated), "SG SigD SigV");
  EXPECT_EQ(after(SignalsDecorrelated), "SG SigD SigV");  // again, behind a deletion
  EXPECT_EQ(after(ConfigurationAccepted), "VPOF SG SRS Mask");
  EXPECT_EQ(OpenAfter(menu, ManualDesignSaved), "VPOF SG SRS SHowMap");  // leaves computed ones open
  EXPECT_EQ(after(DesignSaved), "VPOF SG SRS SHowMap");
  EXPECT_EQ(after(DesignSaved), "VPOF SG SRS SHowMap");
  EXPECT_EQ(after(DesignsExhausted), "VPOF SG SHowMap");
}

TEST(Workflow, AnEventTouchesItsOwnEntriesAlone)
{
  EXPECT_EQ(OpenAfter({}, SurveyImported), "SG Stats SigD");
  EXPECT_EQ(OpenAfter({}, SignalsDecorrelated), "Project SigV");
  EXPECT_EQ(OpenAfter({}, ConfigurationAccepted), "Project VPOF SRS Mask");
  EXPECT_EQ(OpenAfter({}, DesignSaved), "Project SHowMap");
  EXPECT_EQ(OpenAfter({}, ManualDesignSaved), "Project SHowMap");
  EXPECT_EQ(OpenAfter({}, DesignsExhausted), "Project");
}

TEST(Workflow, AClosedEntryRefusesItsStep)
{
  Workflow menu;
  EXPECT_EQ(RefusalOf([&] { menu.Require(mnuImport, "Survey import"); }),
            "Survey import is not open at this stage of the work.");
  menu.Apply(ProjectAccepted);
  EXPECT_EQ(RefusalOf([&] { menu.Require(mnuImport, "Survey import"); }), "not refused");
}

}  // namespace
}  // namespace veln
