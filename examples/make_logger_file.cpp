// Makes the example of a logger's own file: make_logger_file FOLDER. An invented walk over an invented field,
// written as loggers write: a header, positions in degrees and minutes in one number, three conductivities
// with in-phase values between them, two readings a position fix, a long stand at the gate, a lost reading,
// and negative values at a fence.

#include "random.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace veln::examples {
namespace {

constexpr int Rows = 9;
constexpr double RowMetres = 48;
constexpr double RowSpacing = 5;
constexpr double ReadingsPerMetre = 1.6;
constexpr int StandingReadings = 40;

/// Writes the readings of a walk, two to a position fix.
class Walk {
 public:
  /// A reading at a place in metres east and north of the gate.
  void Read(double x, double y)
  {
    if (count_ % 2 == 0) {
      fixX_ = x + 0.03 * random_.Normal();
      fixY_ = y + 0.03 * random_.Normal();
    }
    const double soil = 18 + 6 * std::sin(x / 19) + 4 * std::cos((y + x) / 13);
    const bool fence = x > RowMetres - 1.2 && y > RowSpacing * 5;
    std::array<double, 3> cond{};
    for (std::size_t coil = 0; coil < cond.size(); ++coil) {
      const auto depth = static_cast<double>(coil);
      cond.at(coil) = soil * (0.7 + 0.35 * depth) + 0.4 * random_.Normal() - (fence ? 30 + 8 * depth : 0);
    }
    AddLine(cond);
    ++count_;
  }

  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  void AddLine(const std::array<double, 3>& cond)
  {
    // Degrees and minutes near 51° 47' north, 1° 12' west: metres of a minute of arc there.
    constexpr double NorthMinute = 1854.4;
    constexpr double WestMinute = 1149.2;
    constexpr int LostReading = 300;
    const double seconds = 34'200 + count_ * 0.55;
    std::array<char, 24> lost{};
    std::snprintf(lost.data(), lost.size(), "%.2f", cond[0]);
    std::array<char, 200> line{};
    std::snprintf(line.data(), line.size(),
                  "51%09.6fN\t001%09.6fW\t%.2f\t%02d:%02d:%05.2f\t%s\t%.2f\t%.2f\t%.2f\t%.2f\t%.2f\t\n",
                  47 + fixY_ / NorthMinute, 12 - fixX_ / WestMinute, 61.4 + 0.01 * random_.Normal(),
                  static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60) % 60,
                  std::fmod(seconds, 60), count_ == LostReading ? "" : lost.data(),
                  1.7 + 0.05 * random_.Normal(), cond[1], 2 + 0.05 * random_.Normal(), cond[2],
                  2.6 + 0.05 * random_.Normal());
    text_ += line.data();
  }

  Random random_{3301};
  int count_ = 0;
  double fixX_ = 0, fixY_ = 0;
  std::string text_ =
      "Latitude\tLongitude\tAltitude\tTime\tCond.1[mS/m]\tInph.1[ppt]\tCond.2[mS/m]\tInph.2[ppt]\tCond.3[mS/"
      "m]\tInph.3[ppt]\t"
      "Note\n";
};

std::string LoggerText()
{
  Walk walk;
  for (int i = 0; i < StandingReadings; ++i) {
    walk.Read(0, 0);
  }
  const int readings = static_cast<int>(RowMetres * ReadingsPerMetre);
  const int headland = static_cast<int>(RowSpacing * ReadingsPerMetre);
  for (int row = 0; row < Rows; ++row) {
    const bool back = row % 2 == 1;
    for (int i = 0; i <= readings; ++i) {
      walk.Read((back ? readings - i : i) / ReadingsPerMetre, row * RowSpacing);
    }
    for (int i = 1; i < headland && row + 1 < Rows; ++i) {
      walk.Read(back ? 0 : RowMetres, (row + static_cast<double>(i) / headland) * RowSpacing);
    }
  }
  return walk.Text();
}

}  // namespace
}  // namespace veln::examples

int main(int argc, char** argv)
{
  try {
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    std::filesystem::create_directories(folder);
    std::ofstream file(folder / "logger_rows.dat", std::ios::binary);
    if (!(file << veln::examples::LoggerText()).flush()) {
      std::cerr << "logger_rows.dat could not be written\n";
      return 1;
    }
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
