#include "cli/option_text.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace veln {

namespace {

constexpr double Hundred = 100;

[[noreturn]] void RefuseValue(const std::string& option, const std::string& text, const std::string& wanted)
{
  throw Refusal(option + ": \"" + text + "\" is not " + wanted + ".", RefusalKind::Usage);
}

std::vector<std::string> SplitAtCommas(const std::string& text)
{
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

/// A whole number with an optional minus sign and nothing else; empty if it is none or leaves the integers.
std::optional<int> ReadWhole(std::string_view text)
{
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return value;
}

bool IsAllDigits(const std::string& text)
{
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

void ReadSize(const std::string& option, const std::string& text, DesignOption& design)
{
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    for (const bool support : {true, false}) {
      if (text == GeneralForm(SampleSize(size, support))) {
        design.Size = size;
        design.IncludeSupportSites = support;
        return;
      }
    }
  }
  RefuseValue(option, text, "a design size (6, 12, 20, or 5, 10, 18 without support sites)");
}

int ReadStratum(const std::string& option, const std::string& text)
{
  const auto stratum = ReadWhole(text);
  if (!stratum || *stratum < 1 || *stratum > MostStrata) {
    RefuseValue(option, text, "a stratum from 1 to " + GeneralForm(MostStrata));
  }
  return *stratum;
}

void ReadDesignPart(const std::string& option, const std::string& part, DesignOption& design)
{
  constexpr std::string_view Factor = "d=";
  constexpr std::string_view StratumKey = "stratum=";
  if (part.starts_with(Factor)) {
    design.DFactor = ReadHundredths(option, part.substr(Factor.size()), LowestDFactor, HighestDFactor);
  } else if (part.starts_with(StratumKey)) {
    design.Stratum = ReadStratum(option, part.substr(StratumKey.size()));
  } else if (part == "ignore-ta") {
    design.IgnoreTA = true;
  } else if (part == "no-support") {
    design.IncludeSupportSites = false;
  } else {
    RefuseValue(option, part, "one of d=V, stratum=K, ignore-ta, no-support");
  }
}

}  // namespace

int ReadHundredths(const std::string& option, const std::string& text, int lowest, int highest)
{
  const auto value = ParseNumber(text);
  const double hundredths = value ? std::round(*value * Hundred) : 0;
  if (!value || hundredths < lowest || hundredths > highest || hundredths / Hundred != *value) {
    RefuseValue(option, text,
                "a number from " + FormatNumber(lowest / Hundred, "0.00") + " to " +
                    FormatNumber(highest / Hundred, "0.00") + " in steps of 0.01");
  }
  return static_cast<int>(hundredths);
}

int ReadWholeNumber(const std::string& option, const std::string& text, int lowest, int highest)
{
  const auto value = ReadWhole(text);
  if (!value || *value < lowest || *value > highest) {
    RefuseValue(option, text, "a whole number from " + GeneralForm(lowest) + " to " + GeneralForm(highest));
  }
  return *value;
}

CoordinateTranslation ReadTranslation(const std::string& option, const std::string& text)
{
  constexpr std::string_view Rotation = "rotate=";
  constexpr int HalfTurn = 180;
  if (text == "swap") {
    return {TranslationKind::Swap, 0};
  }
  if (text == "reverse-x") {
    return {TranslationKind::ReverseX, 0};
  }
  if (text == "reverse-y") {
    return {TranslationKind::ReverseY, 0};
  }
  if (!text.starts_with(Rotation)) {
    RefuseValue(option, text, "one of swap, rotate=DEG, reverse-x, reverse-y");
  }
  const auto degrees = ReadWhole(std::string_view(text).substr(Rotation.size()));
  if (!degrees || *degrees < -HalfTurn || *degrees > HalfTurn) {
    RefuseValue(option, text, "a rotation by whole degrees from -180 to 180");
  }
  return {TranslationKind::Rotate, *degrees};
}

int ReadRounds(const std::string& option, const std::string& text)
{
  if (text == "all") {
    return std::numeric_limits<int>::max();
  }
  if (!IsAllDigits(text)) {
    RefuseValue(option, text, "a number of rounds or \"all\"");
  }
  return ReadWhole(text).value_or(std::numeric_limits<int>::max());
}

DesignOption ReadDesign(const std::string& option, const std::string& text)
{
  const std::vector<std::string> parts = SplitAtCommas(text);
  DesignOption design;
  ReadSize(option, parts.front(), design);
  for (auto part = parts.begin() + 1; part != parts.end(); ++part) {
    ReadDesignPart(option, *part, design);
  }
  return design;
}

SelectionOption ReadSelection(const std::string& option, const std::string& text)
{
  const std::vector<std::string> parts = SplitAtCommas(text);
  const bool limited = parts[0] == "limited";
  const SelectionOption selection{limited ? SelectionScope::Limited : SelectionScope::Full,
                                  parts.size() == 2 && parts[1] == "ignore-ta"};
  if ((!limited && parts[0] != "full") || (parts.size() > 1 && !selection.IgnoreTA)) {
    RefuseValue(option, text, "limited or full, with \",ignore-ta\" behind it if wanted");
  }
  return selection;
}

std::vector<double> ReadSiteNumbers(const std::string& option, const std::string& text)
{
  std::vector<double> numbers;
  for (const std::string& part : SplitAtCommas(text)) {
    const auto number = ParseNumber(part);
    if (!IsAllDigits(part) || !number) {
      RefuseValue(option, part, "a site number");
    }
    if (std::ranges::find(numbers, *number) == numbers.end()) {
      numbers.push_back(*number);
    }
  }
  return numbers;
}

void RequirePath(const std::string& option, const std::string& text)
{
  if (text.find_first_of("\r\n") != std::string::npos) {
    throw Refusal(option + ": a line break can not stand in it.", RefusalKind::Usage);
  }
}

void RequireText(const std::string& option, const std::string& text, int mostCharacters)
{
  RequirePath(option, text);
  if (!IsUtf8(text)) {
    throw Refusal(option + ": the text is not UTF-8.", RefusalKind::Usage);
  }
  if (HasControlCharacter(text)) {
    throw Refusal(option + ": a control character can not stand in it.", RefusalKind::Usage);
  }
  if (std::cmp_greater(CharacterCount(text), mostCharacters)) {
    throw Refusal(
        option + ": \"" + text + "\" has more than" + NumberToString(mostCharacters) + " characters.",
        RefusalKind::Usage);
  }
}

}  // namespace veln
