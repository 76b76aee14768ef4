#include "toolkit/clock.h"

#include "support/testing.h"

#include <cstdio>
#include <ctime>

namespace veln {

TEST(Clock, TellsLocalDateAndTime)
{
  const std::time_t before = std::time(nullptr);
  const std::string text = SystemDateTime();
  std::tm told{};
  ASSERT_EQ(std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &told.tm_year, &told.tm_mon, &told.tm_mday,
                        &told.tm_hour, &told.tm_min, &told.tm_sec),
            6);
  told.tm_year -= 1900;
  told.tm_mon -= 1;
  told.tm_isdst = -1;
  EXPECT_EQ(text.size(), 19U);
  EXPECT_GE(std::mktime(&told), before);
  EXPECT_LE(std::mktime(&told), std::time(nullptr));
}

}  // namespace veln
