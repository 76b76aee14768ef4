#pragma once

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

namespace veln {

/// The design windows over an accepted survey in project "farm", field "ab12".
class DesignWindows : public DesktopTest {
 protected:
  void SetUp() override { std::filesystem::create_directories(Project); }

  /// A survey of rows of 20 sites of which all but the first `free` are masked.
  void Accept(int rows, int free, bool transition = false)
  {
    SurveyState state = AcceptedSurvey(TransectSurvey(rows, 20));
    std::fill(state.SiteStatus.begin() + free, state.SiteStatus.end(), site_status::Masked);
    if (transition) {
      state.TransitionDone = true;
      state.TransitionScore.assign(state.SiteStatus.size(), 0.5);
    }
    Set(std::move(state));
  }

  void Open(int rows, int free, bool transition = false)
  {
    Accept(rows, free, transition);
    Shared.Show<frmSRS>();
    Settle();
  }

  /// Chooses an entry of a window's menu; in vain if it or a menu above it is closed.
  static void Pick(const char* window, const char* name)
  {
    Control<QAction>(window, name).trigger();
    Settle();
  }

  const SrsForm& Form() const { return Shared.Find<frmSRS>()->Form(); }
  int Candidates() const
  {
    return static_cast<int>(std::ranges::count(Shared.State.SiteStatus, site_status::Candidate));
  }

  const std::filesystem::path Project = Directory / "data" / "farm";
};

}  // namespace veln
