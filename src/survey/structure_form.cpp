#include "survey/structure_form.h"

namespace veln {

std::string StructureForm::Label9() const
{
  const std::string columns = "Required Record Order:  site-ID*,  x-cord,  y-cord,  s1,  s2*";
  return columns + (Transect ? ",  row-num    (* if present)" : "    (* if present)");
}

ImportRequest StructureForm::Request() const
{
  return {Text3, {Transect, Check1, Check2}, {Text1, Text2}, Check4 ? "dS/m" : "mS/m", Option1};
}

void ChooseLogTransform(StructureForm& form, bool log)
{
  form.Option1 = log;
  form.Text1 = log ? "log(EMv)" : "EMv";
  form.Text2 = log ? "log(EMh)" : "EMh";
}

void ChooseUnits(StructureForm& form, bool deciSiemens)
{
  form.Check4 = deciSiemens;
}

}  // namespace veln
