// Makes the example surveys: make_surveys FOLDER [NAME...]. Invented fields, but with the habits of real
// ones: conductivity is skewed, follows a trend and a few patches, positions carry GPS error, and some
// readings were taken over buried metal.

#include "random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veln::examples {
namespace {

/// How a field is laid out and what was read on it. Lengths in metres, conductivity in mS/m.
struct Field {
  std::string_view FileName;
  std::uint64_t Seed;
  int Rows;
  int SitesPerRow;
  double RowSpacing;
  double SiteSpacing;
  double Easting;
  double Northing;
  double GpsError;  ///< deviation of a position
  bool Transect;    ///< site IDs, two signals and row numbers, rows walked there and back
  double Typical;   ///< the middle of the first signal
  int MetalSites;   ///< readings spoilt by buried metal
};

constexpr std::array Fields = {
    Field{"transect_1500.txt", 1907, 30, 50, 20, 8, 412350, 4618200, 0.35, true, 62, 6},
    Field{"grid_800.txt", 4211, 40, 20, 15, 15, 655120, 4052480, 0, false, 48, 3},
    Field{"transect_30000.txt", 7703, 200, 150, 6, 4, 298400, 5110650, 0.35, true, 75, 40},
};

/// A patch of wetter or saltier soil: highest in its middle, falling off softly on all sides.
struct Patch {
  double X;
  double Y;
  double Reach;
  double Height;

  [[nodiscard]] double At(double x, double y) const
  {
    const double dx = (x - X) / Reach;
    const double dy = (y - Y) / Reach;
    const double falloff = 1 / (1 + dx * dx + dy * dy);
    return Height * falloff * falloff;
  }
};

/// The pattern in the logarithm of conductivity, over a field that is 1 by 1.
class Pattern {
 public:
  explicit Pattern(Random& random)
      : slopeX_(0.5 * random.Uniform() - 0.1), slopeY_(0.4 * random.Uniform() - 0.3)
  {
    for (int i = 0; i < 6; ++i) {
      const double height = (i % 3 == 2 ? -0.5 : 0.7) * (0.6 + 0.8 * random.Uniform());
      patches_.push_back({random.Uniform(), random.Uniform(), 0.12 + 0.15 * random.Uniform(), height});
    }
  }

  [[nodiscard]] double At(double x, double y) const
  {
    double sum = slopeX_ * (x - 0.5) + slopeY_ * (y - 0.5);
    for (const Patch& patch : patches_) {
      sum += patch.At(x, y);
    }
    return sum;
  }

 private:
  double slopeX_;
  double slopeY_;
  std::vector<Patch> patches_;
};

/// Both readings at one place.
struct Reading {
  double Signal1;
  double Signal2;
};

/// The second signal sees less deep: the same soil for the most part, and a layer of its own.
Reading ReadSoil(const Field& field, const Pattern& deep, const Pattern& shallow, double x, double y,
                 Random& random)
{
  const double soil = deep.At(x, y);
  const double log1 = soil + 0.05 * random.Normal();
  const double log2 = 0.8 * soil + 0.18 * shallow.At(x, y) + 0.06 * random.Normal();
  return {field.Typical * std::exp(log1), 0.7 * field.Typical * std::exp(log2)};
}

/// Metal lifts one coil's reading far above the soil's and presses the other's down.
void SpoilByMetal(Reading& reading, Random& random)
{
  reading.Signal1 *= 2.6 + 0.8 * random.Uniform();
  reading.Signal2 *= 0.45 + 0.2 * random.Uniform();
}

/// Sites over metal, by their number in the file; two do not share a place.
std::vector<int> MetalSites(const Field& field, Random& random)
{
  const int count = field.Rows * field.SitesPerRow;
  std::vector<int> sites;
  while (std::ssize(sites) < field.MetalSites) {
    const int site = static_cast<int>(random.Uniform() * count);
    if (std::ranges::find(sites, site) == sites.end()) {
      sites.push_back(site);
    }
  }
  return sites;
}

/// The text of a survey file, one line a site.
std::string SurveyText(const Field& field)
{
  Random random(field.Seed);
  const Pattern deep(random);
  const Pattern shallow(random);
  const std::vector<int> metal = MetalSites(field, random);
  std::string text;
  for (int site = 0; site < field.Rows * field.SitesPerRow; ++site) {
    const int row = site / field.SitesPerRow;
    const int step = site % field.SitesPerRow;
    const int along = field.Transect && row % 2 == 1 ? field.SitesPerRow - 1 - step : step;
    Reading reading =
        ReadSoil(field, deep, shallow, (row + 0.5) / field.Rows, (along + 0.5) / field.SitesPerRow, random);
    if (std::ranges::find(metal, site) != metal.end()) {
      SpoilByMetal(reading, random);
    }
    const double x = field.Easting + row * field.RowSpacing + field.GpsError * random.Normal();
    const double y = field.Northing + along * field.SiteSpacing + field.GpsError * random.Normal();
    std::array<char, 96> line{};
    if (field.Transect) {
      std::snprintf(line.data(), line.size(), "%d, %.2f, %.2f, %.3f, %.3f, %d\n", site + 1, x, y,
                    reading.Signal1, reading.Signal2, row + 1);
    } else {
      std::snprintf(line.data(), line.size(), "%.2f, %.2f, %.3f\n", x, y, reading.Signal1);
    }
    text += line.data();
  }
  return text;
}

void Run(std::span<char*> arguments)
{
  if (arguments.size() < 2) {
    throw std::invalid_argument("usage: make_surveys FOLDER [NAME...]");
  }
  const std::vector<std::string_view> names(arguments.begin() + 2, arguments.end());
  for (const Field& field : Fields) {
    if (names.empty() || std::ranges::find(names, field.FileName) != names.end()) {
      std::ofstream file(std::filesystem::path(arguments[1]) / field.FileName, std::ios::binary);
      file.exceptions(std::ios::failbit | std::ios::badbit);
      file << SurveyText(field) << std::flush;
    }
  }
}

}  // namespace
}  // namespace veln::examples

int main(int argc, char** argv)
{
  try {
    veln::examples::Run({argv, static_cast<std::size_t>(argc)});
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
