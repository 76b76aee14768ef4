#include "forms/next_step.h"

#include "toolkit/number_text.h"

#include <algorithm>
#include <cstdint>

namespace veln {

namespace {

std::int64_t CountOf(const SurveyState& state, std::int16_t status)
{
  return std::ranges::count(state.SiteStatus, status);
}

std::string ValidationStep(const SurveyState& state)
{
  const std::string sites = Counted(state.SurveySize, "site");
  const auto outliers = CountOf(state, site_status::Outlier);
  if (outliers > 0) {
    return "Next: validate " + sites + ": delete " + Counted(outliers, "outlier") +
           ", or accept them as masked";
  }
  return state.Decorrelation.Counts.OutlierCount == 0 ? "Next: validate and accept " + sites
                                                      : "Next: decorrelate the remaining " + sites + " again";
}

std::string DesignStep(const SurveyState& state)
{
  const auto free = Counted(CountOf(state, site_status::Free), "free site");
  const bool more = state.Menu.IsEnabled(MenuEntry::mnuSRS);
  const std::string leave = "exit, which exports " + Counted(state.SurveySize, "site");
  if (HasDesign(state)) {
    return more ? "Next: design another sample from " + free + ", or " + leave : "Next: " + leave;
  }
  return more ? "Next: design a sample from " + free
              : "The survey is accepted, with " + free + ": view its output files";
}

}  // namespace

std::string NextStep(const SurveyState& state)
{
  if (state.Menu.IsEnabled(MenuEntry::mnuVPOF)) {
    return DesignStep(state);
  }
  if (state.Menu.IsEnabled(MenuEntry::mnuSigV)) {
    return ValidationStep(state);
  }
  if (state.Menu.IsEnabled(MenuEntry::mnuSigD)) {
    return "Next: decorrelate " + Counted(state.SurveySize, "site");
  }
  return state.Menu.IsEnabled(MenuEntry::mnuImport) ? "Next: import a survey data file"
                                                    : "Next: set or create a project and a field ID";
}

}  // namespace veln
