#include "toolkit/rounded_number.h"

#include "support/testing.h"
#include "toolkit/number_text.h"

#include <cstdlib>
#include <random>

namespace veln {
namespace {

constexpr const char* Patterns[] = {"0", "0.00", "0.00###", "0.0#####", "########0.0###"};

void ExpectPlainRule(double value)
{
  for (const char* pattern : Patterns) {
    ASSERT_EQ(RoundedNumber(value, pattern), NumberToString(RoundByFormat(value, pattern)))
        << "value " << std::hexfloat << value << ", pattern " << pattern;
  }
}

TEST(RoundedNumber, EqualsThePlainRuleAtTiesAndTheirNeighbours)
{
  // Each tie of the first few units, and of the tens every seventh.
  for (int thousandths = -40'000; thousandths <= 40'000;
       thousandths += std::abs(thousandths) < 4'000 ? 5 : 35) {
    for (const double scale : {1E-3, 1E-6, 1E-7}) {
      const double tie = thousandths * scale;
      ExpectPlainRule(tie);
      ExpectPlainRule(std::nextafter(tie, 1E9));
      ExpectPlainRule(std::nextafter(tie, -1E9));
    }
  }
}

TEST(RoundedNumber, EqualsThePlainRuleForNumbersOfAllSizes)
{
  std::mt19937_64 random(20261122);
  for (int i = 0; i < 15'000; ++i) {
    const double value = std::ldexp(static_cast<double>(random() >> 11U), -static_cast<int>(random() % 90));
    ExpectPlainRule(value);
    ExpectPlainRule(-value);
  }
  for (const double value : {0.0, -0.0, 1E+13, 9'999'999.9999995, 1E+15, 1E+300, 5E-324, -4E-7}) {
    ExpectPlainRule(value);
  }
}

}  // namespace
}  // namespace veln
