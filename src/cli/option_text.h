#pragma once

#include "design/design_scoring.h"
#include "signal/decorrelation.h"
#include "survey/coordinate_translation.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// One design asked for: `SIZE[,d=V][,stratum=K][,ignore-ta][,no-support]`.
struct DesignOption {
  DesignSize Size = DesignSize::Standard;
  bool IncludeSupportSites = true;
  int DFactor = PlainDFactor;  ///< hundredths
  std::optional<int> Stratum;  ///< from 1
  bool IgnoreTA = false;
};

/// An automatic design selection asked for: `limited|full[,ignore-ta]`.
struct SelectionOption {
  SelectionScope Scope = SelectionScope::Full;
  bool IgnoreTA = false;
};

// Each reader takes the value of the option named and throws Refusal (usage) if it is not one.

/// A level or D-factor with at most two decimals, between `lowest` and `highest` hundredths. Gives
/// hundredths.
int ReadHundredths(const std::string& option, const std::string& text, int lowest, int highest);

/// A whole number between `lowest` and `highest`.
int ReadWholeNumber(const std::string& option, const std::string& text, int lowest, int highest);

/// `swap`, `rotate=DEG` (whole degrees, -180 to 180), `reverse-x` or `reverse-y`.
CoordinateTranslation ReadTranslation(const std::string& option, const std::string& text);

/// A count or `all`, which is the largest count.
int ReadRounds(const std::string& option, const std::string& text);

DesignOption ReadDesign(const std::string& option, const std::string& text);

SelectionOption ReadSelection(const std::string& option, const std::string& text);

/// Site numbers joined by commas; one that stands twice counts once.
std::vector<double> ReadSiteNumbers(const std::string& option, const std::string& text);

/// Text that files carry: UTF-8 without line breaks and other control characters, of at most
/// `mostCharacters`.
void RequireText(const std::string& option, const std::string& text, int mostCharacters);

/// A path: no line break.
void RequirePath(const std::string& option, const std::string& text);

}  // namespace veln
