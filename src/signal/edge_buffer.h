#pragma once

#include "survey/row_table.h"
#include "workspace/survey_state.h"

#include <vector>

namespace veln {

/// What edge buffering masks.
enum class BufferExtent { None, RowEnds, OuterRowsToo };

/// Masks the sites in the first and last 4 percent of each row's length and, if asked, all sites of the first
/// and the last row. Returns the number of masking steps, in which a site may count more than once. Every
/// site of a row whose ends coincide lies at a row end.
int EdgeBuffer(SurveyState& state, const std::vector<SurveyRow>& rows, BufferExtent extent);

}  // namespace veln
