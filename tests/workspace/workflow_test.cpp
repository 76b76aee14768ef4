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

TEST(Workflow, EachStepOpensTheNextAndTouchesItsOwnEntriesAlone)
{
  struct Step {
    WorkflowEvent Event;
    const char* Behind;  ///< the step before
    const char* Alone;   ///< on a fresh record
  };
  Workflow menu;
  EXPECT_EQ(Open(menu), "Project");
  for (const Step& step :
       {Step{ProjectAccepted, "Project Import", "Project Import"},
        Step{ProjectAccepted, "Project Import", "Project Import"},  // until a survey is imported
        Step{SurveyImported, "SG Stats SigD", "SG Stats SigD"},
        Step{SignalsDecorrelated, "SG SigD SigV", "Project SigV"},
        Step{SignalsDecorrelated, "SG SigD SigV", "Project SigV"},  // behind a deletion
        Step{ConfigurationAccepted, "VPOF SG SRS Mask", "Project VPOF SRS Mask"},
        Step{ManualDesignSaved, "VPOF SG SRS SHowMap", "Project SHowMap"},
        Step{DesignSaved, "VPOF SG SRS SHowMap", "Project SHowMap"},
        Step{DesignsExhausted, "VPOF SG SHowMap", "Project"}}) {
    Workflow alone;
    menu.Apply(step.Event);
    alone.Apply(step.Event);
    EXPECT_EQ(Open(menu), step.Behind);
    EXPECT_EQ(Open(alone), step.Alone);
  }
}

TEST(Workflow, AComputedDesignClosesTheManualOne)
{
  Workflow menu;
  menu.Apply(ConfigurationAccepted);
  menu.Apply(DesignSaved);
  EXPECT_EQ(Open(menu), "Project VPOF SRS SHowMap");
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
