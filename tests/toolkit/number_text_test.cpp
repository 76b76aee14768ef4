#include "toolkit/number_text.h"

#include "support/testing.h"

#include <cstdlib>

namespace veln {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Smallest = std::numeric_limits<double>::denorm_min();
constexpr double Largest = std::numeric_limits<double>::max();

std::string Zeros(int count)
{
  return std::string(static_cast<std::size_t>(count), '0');
}

/// "12.345" for 12345 with three places, in whole numbers alone.
std::string Places(long scaled, int places)
{
  std::string digits = std::to_string(std::labs(scaled));
  const int missing = places + 1 - static_cast<int>(digits.size());
  digits.insert(0, Zeros(std::max(missing, 0)));
  digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
  return (scaled < 0 ? "-" : "") + digits;
}

/// The general form of a count of thousandths.
std::string ThousandthsInGeneralForm(long thousandths)
{
  std::string text = Places(std::labs(thousandths), 3);
  text.erase(text.find_last_not_of('0') + 1);
  text.erase(0, text[0] == '0' ? 1 : 0);
  if (text.back() == '.') {
    text.pop_back();
  }
  return text.empty() ? "0" : (thousandths < 0 ? "-" : "") + text;
}

/// Half away from zero.
long Tenth(long value)
{
  return (value < 0 ? value - 5 : value + 5) / 10;
}

struct Case {
  double Value;
  std::string Text;
};

struct FormatCase {
  std::string Pattern;
  std::vector<Case> Cases;
};

TEST(NumberText, EveryInt16HasItsDigitsInEveryForm)
{
  for (int i = -32768; i <= 32767; ++i) {
    const std::string digits = std::to_string(i);
    const std::string signPlace = i < 0 ? "" : " ";
    ASSERT_EQ(GeneralForm(i), digits);
    ASSERT_EQ(NumberToString(i), signPlace + digits);
    ASSERT_EQ(PrintedNumber(i), signPlace + digits + " ");
    ASSERT_EQ(FormatNumber(i, "0"), digits);
    ASSERT_EQ(FormatNumber(i, "##0.000"), digits + ".000");
    ASSERT_EQ(FormatNumber(i, "########0.0#####"), digits + ".0");
    ASSERT_EQ(ParseNumber(digits), i);
    ASSERT_EQ(RoundToInt16(i), i);
  }
}

TEST(NumberText, EveryInt16InThousandthsRoundsAsInWholeNumbers)
{
  for (int i = -32768; i <= 32767; ++i) {
    const double value = i / 1000.0;
    ASSERT_EQ(GeneralForm(value), ThousandthsInGeneralForm(i));
    ASSERT_EQ(FormatNumber(value, "0.000"), Places(i, 3));
    ASSERT_EQ(FormatNumber(value, "0.00"), Places(Tenth(i), 2)) << i;
    ASSERT_EQ(RoundByFormat(value, "0.00"), static_cast<double>(Tenth(i)) / 100.0) << i;
    ASSERT_EQ(ParseNumber(Places(i, 3)), value);
  }
}

TEST(NumberText, ShortestFormReadsBackAsTheSameDouble)
{
  for (const auto& [value, text] :
       std::vector<std::pair<double, std::string>>{{0.5, "0.5"},
                                                   {-0.0, "0"},
                                                   {44.62, "44.62"},
                                                   {100000, "100000"},
                                                   {0.1 + 0.2, "0.30000000000000004"},
                                                   {-1E-5, "-0.00001"},
                                                   {3E-7, "3e-07"},
                                                   {1E15, "1e+15"}}) {
    EXPECT_EQ(ShortestForm(value), text);
    EXPECT_EQ(ParseNumber(text), value);
  }
}

TEST(NumberText, GeneralFormHasFifteenDigitsAndPlainDecimalsFifteenPlaces)
{
  for (const Case& number : {Case{0.0, "0"},
                             Case{-0.0, "0"},
                             Case{0.1 + 0.2, ".3"},
                             Case{-0.25, "-.25"},
                             Case{1.0 / 3, ".333333333333333"},
                             Case{2.0 / 3, ".666666666666667"},
                             Case{100.0 / 3, "33.3333333333333"},
                             Case{123456789.123456789, "123456789.123457"},
                             Case{0.99999999999999994, "1"},
                             Case{99999.9999999999, "99999.9999999999"},
                             Case{99999.99999999999, "100000"},
                             Case{0.00001, ".00001"},
                             Case{0.012345678901234, ".012345678901234"},
                             Case{0.0123456789012345, "1.23456789012345E-02"},
                             Case{1.0 / 30, "3.33333333333333E-02"},
                             Case{1e-15, ".000000000000001"},
                             Case{1.5e-15, "1.5E-15"},
                             Case{-1e-16, "-1E-16"},
                             Case{1e-100, "1E-100"},
                             Case{Smallest, "4.94065645841247E-324"},
                             Case{2.2250738585072014e-308, "2.2250738585072E-308"},
                             Case{1e14, "100000000000000"},
                             Case{999999999999999, "999999999999999"},
                             Case{999999999999999.9, "1E+15"},
                             Case{1e15, "1E+15"},
                             Case{-1.5e15, "-1.5E+15"},
                             Case{1234567890123456, "1.23456789012346E+15"},
                             Case{1e100, "1E+100"},
                             Case{Largest, "1.79769313486232E+308"}}) {
    EXPECT_EQ(GeneralForm(number.Value), number.Text);
  }
}

TEST(NumberText, SignTakesThePlaceOfTheLeadingBlank)
{
  EXPECT_EQ(NumberToString(0.5), " .5");
  EXPECT_EQ(NumberToString(-0.25), "-.25");
  EXPECT_EQ(NumberToString(-0.0), " 0");
  EXPECT_EQ(PrintedNumber(-0.25), "-.25 ");
  EXPECT_EQ(PrintedNumber(3), " 3 ");
}

TEST(NumberText, PatternsRoundHalvesAwayFromZeroAndDropWhatIsNotNeeded)
{
  const std::vector<FormatCase> patterns = {
      {"0", {{0.5, "1"}, {1.5, "2"}, {2.5, "3"}, {-2.5, "-3"}, {0.499, "0"}, {-0.499, "0"}, {99.5, "100"}}},
      {"0.00", {{1.575, "1.58"}, {1.005, "1.01"}, {-1.005, "-1.01"}, {2.675, "2.68"}, {9.995, "10.00"}}},
      {"0.00",
       {{0.005, "0.01"}, {0.00499, "0.00"}, {-0.00499, "0.00"}, {-0.005, "-0.01"}, {999.995, "1000.00"}}},
      {"0.000", {{0.0005, "0.001"}, {1.0005, "1.001"}, {0.9995, "1.000"}, {-0.00049, "0.000"}}},
      {"0.0000", {{0.00005, "0.0001"}, {0.00004, "0.0000"}, {0.12345, "0.1235"}, {-9.99995, "-10.0000"}}},
      {"##0.000", {{0, "0.000"}, {0.5, "0.500"}, {-7.0625, "-7.063"}, {12345.6785, "12345.679"}}},
      {"#0.0000", {{0.25, "0.2500"}, {99.99995, "100.0000"}, {-0.00004, "0.0000"}}},
      {"0.0###", {{1, "1.0"}, {1.25, "1.25"}, {1.23455, "1.2346"}, {1.20004, "1.2"}, {0.99995, "1.0"}}},
      {"0.00##", {{1, "1.00"}, {1.2, "1.20"}, {1.234, "1.234"}, {1.23455, "1.2346"}, {1.23995, "1.24"}}},
      {"0.0####", {{0.000005, "0.00001"}, {0.000004, "0.0"}, {-0.000004, "0.0"}, {12.34, "12.34"}}},
      {"0.00#", {{1.0045, "1.005"}, {1.0004, "1.00"}, {-1.0095, "-1.01"}, {0.1, "0.10"}}},
      {"0.0#####", {{0.0000005, "0.000001"}, {123.4567895, "123.45679"}, {-0.0000004, "0.0"}, {5, "5.0"}}},
      {"0.00###", {{2.5, "2.50"}, {2.000005, "2.00001"}, {2.000004, "2.00"}, {-17.123455, "-17.12346"}}},
      {"########0.0#####", {{12, "12.0"}, {12.25, "12.25"}, {651234.5678905, "651234.567891"}}},
      {"########0.0#####", {{1234567890.5, "1234567890.5"}, {123456789.1234567, "123456789.123457"}}},
      {"########0.0###", {{4000000.00005, "4000000.0001"}, {651234.56785, "651234.5679"}, {0, "0.0"}}}};
  for (const FormatCase& format : patterns) {
    for (const Case& number : format.Cases) {
      EXPECT_EQ(FormatNumber(number.Value, format.Pattern), number.Text) << format.Pattern;
      EXPECT_EQ(RoundByFormat(number.Value, format.Pattern), std::strtod(number.Text.c_str(), nullptr));
    }
  }
}

TEST(NumberText, FormatsReadTheFifteenDigitsThatAPersonReads)
{
  EXPECT_EQ(FormatNumber(std::nextafter(0.5, 0), "0"), "1");
  EXPECT_EQ(FormatNumber(0.49999999999999, "0"), "0");
  EXPECT_EQ(FormatNumber(0.12344999999999999, "0.0000"), "0.1235");
  EXPECT_EQ(FormatNumber(1e15, "0"), "1000000000000000");
  EXPECT_EQ(FormatNumber(-1.5e20, "0.0#"), "-150000000000000000000.0");
  EXPECT_EQ(FormatNumber(Largest, "0.00"), "179769313486232" + Zeros(294) + ".00");
}

TEST(NumberText, WhatRoundsToZeroHasNoMinusSign)
{
  for (const double value : {-0.0, -Smallest, -1e-300, -0.00004}) {
    for (const char* pattern : {"0", "0.00", "##0.000", "#0.0000", "0.0###", "0.00##", "0.00#"}) {
      EXPECT_EQ(FormatNumber(value, pattern).find('-'), std::string::npos) << pattern;
      EXPECT_FALSE(std::signbit(RoundByFormat(value, pattern))) << pattern;
    }
  }
}

TEST(NumberText, NumbersHaveSignDigitsPointAndExponent)
{
  for (const Case& number :
       {Case{1, "1"}, Case{1, "+1"}, Case{-1, "-1"}, Case{0.5, ".5"}, Case{5, "5."}, Case{-0.005, "-.5E-2"},
        Case{1e5, "1e5"}, Case{1e5, "1E+05"}, Case{7, "0007"}, Case{0.1, "0.1"}, Case{250, "2.5E0002"},
        Case{0, "-0"}, Case{0, "0E999"}, Case{0, "0.0E-99999999999999999999"},
        Case{1, "0." + Zeros(399) + "1E400"}, Case{1, "1" + Zeros(400) + "E-400"}}) {
    const std::optional<double> read = ParseNumber(number.Text);
    ASSERT_TRUE(read.has_value()) << number.Text;
    EXPECT_EQ(*read, number.Value) << number.Text;
    EXPECT_EQ(std::signbit(*read), number.Value < 0) << number.Text;
  }
}

TEST(NumberText, OtherTextIsNotANumber)
{
  using namespace std::string_view_literals;
  for (const std::string_view text :
       {""sv,         "+"sv,      "-"sv,     "."sv,     "-."sv,  "E5"sv,   ".E5"sv,    "1E"sv,
        "1E+"sv,      "1e-"sv,    " 1"sv,    "1 "sv,    "1,5"sv, "1..2"sv, "1.2.3"sv,  "--1"sv,
        "+-1"sv,      "-+1"sv,    "0x10"sv,  "nan"sv,   "inf"sv, "-inf"sv, "1d5"sv,    "1f"sv,
        "1E5.0"sv,    "1_000"sv,  "1E 5"sv,  "1\t"sv,   "1\0"sv, "\0"sv,   "\u00BD"sv, "\u0661"sv,
        "infinity"sv, "NAN(1)"sv, "1E+-5"sv, "\uFF11"sv}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << "\"" << text << "\"";
  }
}

TEST(NumberText, NumbersBeyondTheDoublesAreNoneAndThoseBelowAreZero)
{
  for (const std::string& text :
       {std::string("1E999"), std::string("-1E999"), std::string("1E99999999999999999999"), "1" + Zeros(309),
        "0." + Zeros(400) + "1E+800", std::string("1.8E308")}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
  }
  for (const std::string& text :
       {std::string("1E-999"), std::string("-1E-999"), std::string("1E-99999999999999999999"),
        "." + Zeros(400) + "1", "1" + Zeros(400) + "E-800", std::string("-2E-324")}) {
    const std::optional<double> read = ParseNumber(text);
    EXPECT_EQ(read, 0.0) << text;
    EXPECT_FALSE(std::signbit(read.value_or(-1))) << text;
  }
  EXPECT_EQ(ParseNumber("1.7976931348623157E308"), Largest);
  EXPECT_EQ(ParseNumber("1.7976931348623159E308"), std::nullopt);
  EXPECT_EQ(ParseNumber("3E-324"), Smallest);
  EXPECT_EQ(ParseNumber("-1E-320"), -1e-320);
}

TEST(NumberText, TiesBecomeTheEvenInteger)
{
  for (int even = -32766; even <= 32764; even += 2) {
    ASSERT_EQ(RoundToInt16(even + 0.5), even);
    ASSERT_EQ(RoundToInt16(even + 1.5), even + 2);
    ASSERT_EQ(RoundToInt16(std::nextafter(even + 0.5, Infinity)), even + 1);
  }
}

TEST(NumberText, IntegersEndAtSixteenBits)
{
  EXPECT_EQ(RoundToInt16(32767.49), 32767);
  EXPECT_EQ(RoundToInt16(32767.5), std::nullopt);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);
  EXPECT_EQ(RoundToInt16(std::nextafter(-32768.5, -Infinity)), std::nullopt);
  for (const double value : {Infinity, -Infinity, std::nan(""), 65536.0, -4e18, 1e300}) {
    EXPECT_EQ(RoundToInt16(value), std::nullopt) << value;
  }
}

}  // namespace
}  // namespace veln
