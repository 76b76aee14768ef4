#include "logger/option_rules.h"

#include "support/refusals.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace veln {
namespace {

/// A value of each option that is not its default, as it is written back.
const std::map<std::string, std::string> Values = {{"separator", "semicolon"},
                                                   {"header", "3"},
                                                   {"skip", "4"},
                                                   {"decimal", "comma"},
                                                   {"encoding", "latin-1"},
                                                   {"quotes", "no"},
                                                   {"line-end", "cr"},
                                                   {"comment", "; *"},
                                                   {"x", "East"},
                                                   {"y", "2"},
                                                   {"lat", "Lat"},
                                                   {"lon", "Lon"},
                                                   {"s1", "Cond"},
                                                   {"s2", "7"},
                                                   {"row", "Line"},
                                                   {"time", "UTC"},
                                                   {"id", "FID"},
                                                   {"dates", "mdy"},
                                                   {"every", "5"},
                                                   {"crs", "utm:31N"},
                                                   {"jump", "0"},
                                                   {"lag", "-1.5"},
                                                   {"offset", "2,-0.5"},
                                                   {"inset", "3"},
                                                   {"nonpositive", "drop"},
                                                   {"still", "0"},
                                                   {"repeats", "first"},
                                                   {"median", "5"},
                                                   {"rows", "none"},
                                                   {"turns", "keep"},
                                                   {"row-turn", "45"},
                                                   {"row-chord", "2.5"},
                                                   {"row-min", "20"},
                                                   {"thin", "1.5"}};

TEST(OptionRules, EachIsReadAndWrittenBack)
{
  for (const OptionRule& rule : OptionRules()) {
    ASSERT_TRUE(Values.contains(rule.Name)) << rule.Name;
    EXPECT_EQ(rule.Write({}), std::nullopt) << rule.Name;
    ConversionOptions options;
    ReadOption(options, rule.Name, Values.at(rule.Name));
    EXPECT_NE(options, ConversionOptions()) << rule.Name;
    if (std::string(rule.Name) != "row") {  // written as --rows
      EXPECT_EQ(rule.Write(options), Values.at(rule.Name)) << rule.Name;
    }
  }
}

TEST(OptionRules, WrongValuesAreUsage)
{
  for (const auto& [name, text] : std::vector<std::pair<const char*, const char*>>{{"separator", "x"},
                                                                                   {"header", "0"},
                                                                                   {"skip", "-1"},
                                                                                   {"x", ""},
                                                                                   {"dates", "dym"},
                                                                                   {"every", "0"},
                                                                                   {"every", "1.5"},
                                                                                   {"crs", "mars"},
                                                                                   {"jump", "-1"},
                                                                                   {"lag", "x"},
                                                                                   {"offset", "1"},
                                                                                   {"offset", "1,2,3"},
                                                                                   {"median", "4"},
                                                                                   {"median", "1"},
                                                                                   {"median", "101"},
                                                                                   {"turns", "yes"},
                                                                                   {"row-turn", "0"},
                                                                                   {"thin", "nan"}}) {
    ConversionOptions options;
    try {
      ReadOption(options, name, text);
      ADD_FAILURE() << name << " " << text << " was taken";
    } catch (const Refusal& refusal) {
      EXPECT_EQ(refusal.Kind(), RefusalKind::Usage);
    }
  }
}

TEST(OptionRules, SomeDoNotGoTogether)
{
  const auto refusal = [](const std::vector<std::pair<const char*, const char*>>& told) {
    ConversionOptions options;
    for (const auto& [name, text] : told) {
      ReadOption(options, name, text);
    }
    return RefusalOf([&] { RequireConsistent(options); });
  };
  EXPECT_EQ(refusal({{"x", "a"}, {"y", "b"}, {"s1", "c"}, {"s2", "d"}}), "not refused");
  EXPECT_NE(refusal({{"x", "a"}, {"lat", "b"}}), "not refused");
  EXPECT_NE(refusal({{"s2", "a"}}), "not refused");
  EXPECT_NE(refusal({{"row", "a"}, {"rows", "none"}}), "not refused");
  EXPECT_NE(refusal({{"inset", "1"}}), "not refused");
}

}  // namespace
}  // namespace veln
