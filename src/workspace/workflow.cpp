#include "workspace/workflow.h"

#include "toolkit/refusal.h"

#include <array>
#include <string>

namespace veln {

namespace {

using enum MenuEntry;

struct Transition {
  WorkflowEvent Event;
  std::set<MenuEntry> Opens;
  std::set<MenuEntry> Closes;
};

const std::array<Transition, 7>& Transitions()
{
  using enum WorkflowEvent;
  static const std::array<Transition, 7> Table = {{
      {ProjectAccepted, {mnuImport}, {}},
      {SurveyImported, {mnuSG, mnuStats, mnuSigD}, {mnuProject, mnuImport}},
      {SignalsDecorrelated, {mnuSigV}, {mnuStats}},
      {ConfigurationAccepted, {mnuVPOF, mnuSRS, mnuMask}, {mnuSigD, mnuSigV}},
      {DesignSaved, {mnuSHowMap}, {mnuMask}},
      {ManualDesignSaved, {mnuSHowMap}, {mnuMask}},
      {DesignsExhausted, {}, {mnuSRS}},
  }};
  return Table;
}

}  // namespace

Workflow::Workflow() : enabled_({mnuProject}) {}

bool Workflow::IsEnabled(MenuEntry entry) const
{
  return enabled_.contains(entry);
}

void Workflow::Apply(WorkflowEvent event)
{
  for (const Transition& transition : Transitions()) {
    if (transition.Event == event) {
      enabled_.insert(transition.Opens.begin(), transition.Opens.end());
      std::erase_if(enabled_, [&](MenuEntry entry) { return transition.Closes.contains(entry); });
    }
  }
}

void Workflow::Require(MenuEntry entry, const char* step) const
{
  if (!IsEnabled(entry)) {
    throw Refusal(std::string(step) + " is not open at this stage of the work.");
  }
}

}  // namespace veln
