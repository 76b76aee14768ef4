#pragma once

#include "survey/survey_import.h"
#include "toolkit/dialogs.h"

#include <string>

namespace veln {

/// What `frmStructure` shows: the structure of the raw file as the user tells it.
struct StructureForm {
  bool Transect = false;
  bool Check1 = false;        ///< site-ID column
  bool Check2 = false;        ///< second signal; shows `Label8` and `Text2`
  std::string Text1 = "EMv";  ///< s1 label
  std::string Text2 = "EMh";  ///< s2 label
  bool Check4 = false;        ///< dS/m; `Check3`, mS/m, is always its opposite
  bool Option1 = false;       ///< natural log transform
  std::string Text3;          ///< path and file name

  /// The line that tells the order of a record's items (`Label9`).
  [[nodiscard]] std::string Label9() const;
  /// What the form asks of the import.
  [[nodiscard]] ImportRequest Request() const;
};

/// A click on `Option1` (true) or `Option2`: sets the transform and puts its default labels over what was
/// typed.
void ChooseLogTransform(StructureForm& form, bool log);

/// `Command1`: the import. Beeps first if there is no such file. Throws what `ImportSurvey` throws.
void ImportStructure(const StructureForm& form, SurveyState& state, Dialogs& dialogs,
                     const ImportProgress& progress);

/// A change of `Check3` ("mS/m") or `Check4` ("dS/m"): exactly one of the pair is on.
void ChooseUnits(StructureForm& form, bool deciSiemens);

}  // namespace veln
