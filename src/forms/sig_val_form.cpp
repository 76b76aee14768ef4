#include "forms/sig_val_form.h"

#include "survey/row_table.h"
#include "toolkit/number_text.h"

namespace veln {

namespace {

void InitEBA(SigValForm& form, const SurveyState& state)
{
  form.LblRC = "Row Count = " + NumberToString(static_cast<double>(InitRows(state.RowNumber).size()));
  form.ChkEB1Enabled = true;
  form.LblRCEnabled = true;
  form.Label2Enabled = true;
}

void DeActEBA(SigValForm& form)
{
  TickEdgeBuffering(form, false);
  form.LblRCEnabled = false;
  form.ChkEB1Enabled = false;
  form.Label2Enabled = false;
}

}  // namespace

const char* SigValForm::Option2Caption() const
{
  return OutliersFound ? "mask all outliers and accept current signal data configuration"
                       : "no outliers detected:  current signal data configuration can be accepted";
}

const char* SigValForm::Option2ToolTip() const
{
  return OutliersFound ? " indicates that all outlier sites should be masked (but not deleted) "
                       : "the current data configuration is acceptable";
}

const char* SigValForm::Command2Caption() const
{
  return OutliersFound ? "Invoke Validation" : "Accept Configuration";
}

const char* SigValForm::Command2ToolTip() const
{
  return OutliersFound ? " perform the validation actions selected above on the decorrelated signal data "
                       : "accept current data configuration and return to main program menu";
}

AcceptanceOptions SigValForm::Options() const
{
  AcceptanceOptions options;
  if (ChkEB1) {
    options.EdgeBuffering = OptEB1 ? BufferExtent::OuterRowsToo : BufferExtent::RowEnds;
  }
  options.TransitionAnalysis = Check2 && Check2Enabled;
  return options;
}

SigValForm LoadSigValForm(const SurveyState& state)
{
  SigValForm form;
  form.Transect = IsTransect(state);
  form.OutliersFound = state.Decorrelation.Counts.OutlierCount > 0;
  form.Option1Enabled = form.OutliersFound;
  if (form.OutliersFound) {
    form.Option1 = true;
  } else {
    ChooseAcceptance(form, state);
  }
  return form;
}

void ChooseDeletion(SigValForm& form)
{
  form.Option1 = true;
  form.Option2 = false;
  form.Check2Enabled = false;
  DeActEBA(form);
}

void ChooseAcceptance(SigValForm& form, const SurveyState& state)
{
  form.Option1 = false;
  form.Option2 = true;
  if (form.Transect) {
    form.Check2Enabled = true;
    InitEBA(form, state);
  }
}

void TickEdgeBuffering(SigValForm& form, bool on)
{
  form.ChkEB1 = on;
  form.OptEBEnabled = on;
  form.OptEB1 = on;
  form.OptEB2 = false;
}

void ChooseRowBuffering(SigValForm& form, bool firstAndLastRow)
{
  form.OptEB1 = firstAndLastRow;
  form.OptEB2 = !firstAndLastRow;
}

}  // namespace veln
