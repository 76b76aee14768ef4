#pragma once

#include "design/design_fields.h"
#include "forms/srs_form.h"

namespace veln {

/// The sizes of the design window: the one selected with a star, those that are closed in brackets.
inline std::string SizesOf(const SrsForm& form)
{
  std::string text;
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const std::string count = std::to_string(SampleSize(size, form.IncludeSupportSites));
    text += text.empty() ? "" : " ";
    text += form.OptionEnabled.at(static_cast<std::size_t>(size)) ? count : "(" + count + ")";
    text += form.Size == size ? "*" : "";
  }
  return text;
}

/// The whole state of the design window as text.
inline std::string Describe(const SrsForm& form)
{
  std::ostringstream text;
  text << (form.Closed ? "closed" : "open") << (form.Finished ? " and finished" : " and ready") << "; sizes "
       << SizesOf(form) << "; D " << form.Check1 << ' ' << form.Text1() << "; TA " << form.Check2
       << form.Check2Enabled << "; parsing " << form.Check3 << form.Check3Enabled << ' '
       << form.Parsing.ParseDenominator << '/' << form.Parsing.ParseModulus << "; support "
       << form.IncludeSupportSites << "; reduce " << form.Reduction.mnuSRSReduce;
  for (const bool step : form.Reduction.Steps) {
    text << step;
  }
  text << form.Reduction.mnuSRSRecover << "; design " << form.LblDN << " of " << form.LblSS() << " by"
       << form.LblSC << "\n"
       << form.LblMS << "\n"
       << form.SurveySizeNote << "\n"
       << form.Command3Caption << form.Command3ToolTip << form.OptCriteria << ' ' << form.LoopCount;
  return text.str();
}

}  // namespace veln
