#include "logger/clock_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veln {
namespace {

TEST(ClockText, ReadsTimesOfEveryStyle)
{
  struct Case {
    const char* Text;
    ClockStyle Style;
    double Seconds;
  };
  for (const Case& one : std::vector<Case>{{"10:44:01.5", ClockStyle::TimeOfDay, 38641.5},
                                           {"8:04", ClockStyle::TimeOfDay, 29040},
                                           {"12:05:00 AM", ClockStyle::TimeOfDay, 300},
                                           {"1:05:00 pm", ClockStyle::TimeOfDay, 47100},
                                           {"2024-03-05T00:01:00Z", ClockStyle::TimeOfDay, 60},
                                           {"5/03/2024 23:59:59", ClockStyle::TimeOfDay, 86399},
                                           {"104401.5", ClockStyle::PackedClock, 38641.5},
                                           {"000007", ClockStyle::PackedClock, 7},
                                           {"12.5", ClockStyle::Seconds, 12.5},
                                           {"12500", ClockStyle::Milliseconds, 12.5}}) {
    const auto time = ParseClock(one.Text, one.Style);
    ASSERT_TRUE(time) << one.Text;
    EXPECT_DOUBLE_EQ(time->Seconds, one.Seconds) << one.Text;
  }
  for (const char* text : {"", "10", "10:60:00", "25:00:00", "10:44:01x", "a:b:c", "-1:00:00", "10:"}) {
    EXPECT_FALSE(ParseClock(text, ClockStyle::TimeOfDay)) << text;
  }
  EXPECT_FALSE(ParseClock("246000", ClockStyle::PackedClock));
}

TEST(ClockText, ReadsDatesByTheirOrder)
{
  struct Case {
    const char* Text;
    DateOrder Order;
    const char* Expected;
  };
  using enum DateOrder;
  for (const Case& one : std::vector<Case>{{"2024-03-05", DayFirst, "2024-03-05"},
                                           {"5/03/2024", DayFirst, "2024-03-05"},
                                           {"5/03/2024", MonthFirst, "2024-05-03"},
                                           {"24.03.05", YearFirst, "2024-03-05"},
                                           {"05-Mar-99", MonthFirst, "1999-03-05"},
                                           {"20240305", MonthFirst, "2024-03-05"},
                                           {"050324", MonthFirst, "2024-03-05"},
                                           {"29/2/2024", DayFirst, "2024-02-29"},
                                           {"1/1/1970", DayFirst, "1970-01-01"}}) {
    const auto date = ParseDate(one.Text);
    ASSERT_TRUE(date) << one.Text;
    const auto day = DayNumber(*date, one.Order);
    ASSERT_TRUE(day) << one.Text;
    EXPECT_EQ(DateText(*day), one.Expected) << one.Text;
  }
  for (const char* text : {"", "today", "5/3", "5/3/", "2024-03-05x", "1234", "5/Mai/2024"}) {
    EXPECT_FALSE(ParseDate(text)) << text;
  }
  EXPECT_FALSE(DayNumber(*ParseDate("29/2/2023"), DayFirst));
  EXPECT_FALSE(DayNumber(*ParseDate("5/13/2024"), DayFirst));
}

TEST(ClockText, WritesThousandthsAtMost)
{
  EXPECT_EQ(ClockText(38641.48), "10:44:01.48");
  EXPECT_EQ(ClockText(59.9996), "00:01:00");
  EXPECT_EQ(ClockText(86400 + 61), "00:01:01");
}

}  // namespace
}  // namespace veln
