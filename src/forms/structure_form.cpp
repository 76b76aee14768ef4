#include "forms/structure_form.h"

#include <filesystem>
#include <system_error>

namespace veln {

std::string StructureForm::Label9() const
{
  const std::string columns = "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*";
  return columns + (Transect ? ",  row-num    (* if present)" : "    (* if present)");
}

ImportRequest StructureForm::Request() const
{
  return {Text3,
          {Transect, Check1, Check2},
          {Text1, Text2},
          Check4 ? ConductivityUnits::DeciSiemens : ConductivityUnits::MilliSiemens,
          Option1};
}

void ChooseLogTransform(StructureForm& form, bool log)
{
  form.Option1 = log;
  form.Text1 = log ? "log(EMv)" : "EMv";
  form.Text2 = log ? "log(EMh)" : "EMh";
}

void ImportStructure(const StructureForm& form, SurveyState& state, Dialogs& dialogs,
                     const ImportProgress& progress)
{
  std::error_code failure;
  if (!std::filesystem::exists(form.Text3, failure)) {
    dialogs.Beep();
  }
  ImportSurvey(state, form.Request(), progress);
}

void ChooseUnits(StructureForm& form, bool deciSiemens)
{
  form.Check4 = deciSiemens;
}

}  // namespace veln
