#pragma once

#include "desktop/parts/text_table.h"
#include "workspace/survey_state.h"

namespace veln {

/// A table of sites of the survey, named "sites": its columns are as wide as the largest numbers of the
/// survey will need them, and never narrow.
class SiteTable : public TextTableView {
 public:
  SiteTable(QWidget* parent, const QString& accessibleName, const SurveyState& state, const TextTable& sites);

  /// Shows other sites.
  void ShowSites(const TextTable& sites);
};

}  // namespace veln
