#pragma once

#include "toolkit/text_table.h"
#include "workspace/survey_state.h"

class QTableWidget;
class QWidget;

namespace veln {

/// A table of sites of the survey, named "sites", empty at first: its columns are as wide as the largest
/// numbers of the survey will need them.
QTableWidget* MakeSiteTable(QWidget* parent, const SurveyState& state, const TextTable& sites);

/// Shows other sites in it.
void FillSiteTable(QTableWidget& widget, const TextTable& sites);

}  // namespace veln
