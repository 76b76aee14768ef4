#include "logger_files.h"
#include "records.h"
#include "toolkit/refusal.h"

#include <gtest/gtest.h>

#include <cmath>

namespace veln {
namespace {

/// Changes, takes out, doubles or cuts bytes of a text.
std::string Spoilt(std::string text, SteadyRandom& random)
{
  using std::string_view_literals::operator""sv;
  constexpr std::string_view Bytes = "\0\r\n\t,;\" -.0159NSEW#\xF6\xFF"sv;
  const auto at = [&] { return static_cast<std::size_t>(random.Next() * static_cast<double>(text.size())); };
  const int changes = 1 + static_cast<int>(random.Next() * 40);
  for (int i = 0; i < changes && !text.empty(); ++i) {
    const double kind = random.Next();
    const std::size_t begin = at();
    const auto length = static_cast<std::size_t>(random.Next() * 30);
    if (kind < 0.6) {
      text[begin] = Bytes[static_cast<std::size_t>(random.Next() * static_cast<double>(Bytes.size()))];
    } else if (kind < 0.8) {
      text.erase(begin, length);
    } else if (kind < 0.98) {
      text.insert(at(), text.substr(begin, length));
    } else {
      text.resize(begin);
    }
  }
  return text;
}

/// Whatever bytes stand in a file: it is refused in words, or every line is accounted for and every site has
/// numbers.
TEST(RandomBytes, AreRefusedOrAccountedFor)
{
  SteadyRandom random(17);
  const std::vector<std::string> seeds = {LoggerText(3, 40), CoilRecordFile(30),
                                          ReadText(VELN_TEST_DATA "/semicolon_decimal_comma_latin1.csv"),
                                          ReadText(VELN_TEST_DATA "/dates_and_times.csv")};
  int converted = 0;
  for (int round = 0; round < 300; ++round) {
    LoggerFiles files;
    files.Write("f.dat", Spoilt(seeds[static_cast<std::size_t>(round) % seeds.size()], random));
    ConversionOptions options;
    options.Rows.From = round % 3 == 0 ? RowsFrom::None : RowsFrom::Track;
    options.ThinMetres = round % 5 == 0 ? 2 : 0;
    options.MedianSites = round % 7 == 0 ? 5 : 0;
    try {
      const Conversion conversion = files.Converted(options);
      ++converted;
      ASSERT_EQ(Unaccounted(conversion.Account), 0) << "round " << round;
      for (const TrackPoint& site : conversion.Sites()) {
        ASSERT_TRUE(std::isfinite(site.X) && std::isfinite(site.Y) && std::isfinite(site.Signals[0]));
      }
    } catch (const Refusal& refusal) {
      ASSERT_FALSE(refusal.Message().empty());
    }
  }
  EXPECT_GT(converted, 30);
}

}  // namespace
}  // namespace veln
