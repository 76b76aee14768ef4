#include "toolkit/number_text.h"

#include "support/table.h"
#include "support/testing.h"

#include <cstdlib>

namespace veln {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

std::string Zeros(int count)
{
  return std::string(static_cast<std::size_t>(count), '0');
}

std::vector<std::vector<std::string>> Rows(const char* name)
{
  return ReadRows(std::filesystem::path(VELN_TEST_DATA) / name);
}

TEST(NumberText, FormsAreThoseOfTheTable)
{
  for (const auto& row : Rows("number_forms.txt")) {
    SCOPED_TRACE(row.at(0) + " of " + row.at(1));
    const double value = std::strtod(row.at(1).c_str(), nullptr);
    if (row[0] == "shortest") {
      EXPECT_EQ(ShortestForm(value), row.at(2));
      EXPECT_EQ(ParseNumber(row[2]), value);
    } else if (row[0] == "general") {
      const std::string signPlace = row.at(2)[0] == '-' ? "" : " ";
      EXPECT_EQ(GeneralForm(value), row[2]);
      EXPECT_EQ(NumberToString(value), signPlace + row[2]);
      EXPECT_EQ(PrintedNumber(value), signPlace + row[2] + " ");
    } else {
      EXPECT_EQ(FormatNumber(value, row[0]), row.at(2));
      EXPECT_EQ(RoundByFormat(value, row[0]), std::strtod(row[2].c_str(), nullptr));
      EXPECT_EQ(std::signbit(RoundByFormat(value, row[0])), row[2][0] == '-');
    }
  }
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0.00"), "179769313486232" + Zeros(294) + ".00");
}

TEST(NumberText, ReadNumbersAreThoseOfTheTable)
{
  for (const auto& row : Rows("numbers_read.txt")) {
    const std::optional<double> read = ParseNumber(row[0]);
    ASSERT_EQ(read.has_value(), row.size() > 1) << "\"" << row[0] << "\"";
    if (read) {
      EXPECT_EQ(*read, std::strtod(row[1].c_str(), nullptr)) << row[0];
      EXPECT_EQ(std::signbit(*read), row[1][0] == '-') << row[0];
    }
  }
  EXPECT_EQ(ParseNumber("0." + Zeros(399) + "1E400"), 1);
  EXPECT_EQ(ParseNumber("1" + Zeros(400) + "E-400"), 1);
  EXPECT_EQ(ParseNumber("1" + Zeros(309)), std::nullopt);
  EXPECT_EQ(ParseNumber("0." + Zeros(400) + "1E+800"), std::nullopt);
  EXPECT_EQ(ParseNumber("." + Zeros(400) + "1"), 0);
  EXPECT_EQ(ParseNumber("1" + Zeros(400) + "E-800"), 0);
}

TEST(NumberText, Int16sHaveTheirDigitsInEveryForm)
{
  for (int i = -32768; i <= 32767; i += 5) {
    const std::string digits = std::to_string(i);
    ASSERT_EQ(GeneralForm(i), digits);
    ASSERT_EQ(FormatNumber(i, "##0.000"), digits + ".000");
    ASSERT_EQ(FormatNumber(i, "########0.0#####"), digits + ".0");
    ASSERT_EQ(RoundByFormat(i / 1000.0, "0.00"), (i < 0 ? i - 5 : i + 5) / 10 / 100.0);
    ASSERT_EQ(ParseNumber(FormatNumber(i / 1000.0, "0.000")), i / 1000.0);
    ASSERT_EQ(ParseNumber(digits), i);
    ASSERT_EQ(RoundToInt16(i), i);
  }
}

TEST(NumberText, TiesBecomeTheEvenInteger)
{
  for (int even = -32766; even <= 32764; even += 22) {
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
