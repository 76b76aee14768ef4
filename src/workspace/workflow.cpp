#include "workspace/workflow.h"

#include "toolkit/refusal.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>

namespace veln {

namespace {

using enum MenuEntry;

using EntrySet = std::bitset<MenuEntryCount>;

EntrySet Entries(std::initializer_list<MenuEntry> entries)
{
  EntrySet set;
  for (const MenuEntry entry : entries) {
    set.set(static_cast<std::size_t>(entry));
  }
  return set;
}

struct Transition {
  WorkflowEvent Event;
  EntrySet Opens;
  EntrySet Closes;
};

const std::array<Transition, 7>& Transitions()
{
  using enum WorkflowEvent;
  static const std::array<Transition, 7> Table = {{
      {ProjectAccepted, Entries({mnuImport}), {}},
      {SurveyImported, Entries({mnuSG, mnuStats, mnuSigD}), Entries({mnuProject, mnuImport})},
      {SignalsDecorrelated, Entries({mnuSigV}), Entries({mnuStats})},
      {ConfigurationAccepted, Entries({mnuVPOF, mnuSRS, mnuMask}), Entries({mnuSigD, mnuSigV})},
      {DesignSaved, Entries({mnuSHowMap}), Entries({mnuMask})},
      {ManualDesignSaved, Entries({mnuSHowMap}), Entries({mnuMask})},
      {DesignsExhausted, {}, Entries({mnuSRS})},
  }};
  return Table;
}

}  // namespace

Workflow::Workflow() : enabled_(Entries({mnuProject})) {}

bool Workflow::IsEnabled(MenuEntry entry) const
{
  return enabled_.test(static_cast<std::size_t>(entry));
}

void Workflow::Apply(WorkflowEvent event)
{
  for (const Transition& transition : Transitions()) {
    if (transition.Event == event) {
      enabled_ |= transition.Opens;
      enabled_ &= ~transition.Closes;
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
