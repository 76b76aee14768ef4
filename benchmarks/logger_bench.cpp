// A logger's file of 19 columns made into a survey, beside the least that any way of reading it has to do:
// the bytes, the numbers of the used columns, and one projection a line.
#include "geodesy/transverse_mercator.h"
#include "logger/conversion.h"
#include "toolkit/file_store.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace {

using namespace veln;

constexpr int RowMetres = 2'000;

/// A file of so many lines: rows to and fro at half a metre a reading.
std::filesystem::path LoggerFile(int lines)
{
  const auto path = std::filesystem::temp_directory_path() / ("veln_bench_" + std::to_string(lines) + ".csv");
  std::ofstream file(path, std::ios::binary);
  file << "FID,Lat,Lon,Height,Time,Cond.1[mS/m],Inph.1,Cond.2[mS/m],Inph.2,HDOP,Sats,a,b,c,d,e,f,g,h\n";
  std::string line(256, ' ');
  for (int i = 0; i < lines; ++i) {
    const int row = i / (2 * RowMetres);
    const int along = i % (2 * RowMetres);
    const double x = (row % 2 == 0 ? along : 2 * RowMetres - along) * 0.5;
    const int size = std::snprintf(
        line.data(), line.size(),
        "%d,%.8f,%.8f,%.2f,%02d:%02d:%02d.%d,%.2f,1.73,%.2f,2.02,0.9,11,1.25,641,10,2,346,0,-13,0.5\n", i,
        52.4 + row * 1.1E-4, 1.2 + x * 1.47E-5, 30.1, i / 36000 % 24, i / 600 % 60, i / 10 % 60, i % 10,
        30 + i % 17 * 0.25, 50 + i % 23 * 0.25);
    file.write(line.data(), size);
  }
  return path;
}

void ConvertFile(benchmark::State& run)
{
  const auto path = LoggerFile(static_cast<int>(run.range(0)));
  ConversionOptions options;
  options.ThinMetres = 25;
  options.Rows.From = RowsFrom::Track;
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(Convert(ReadLoggerFiles({path}, options.Reading), options));
  }
  std::filesystem::remove(path);
}
BENCHMARK(ConvertFile)->Arg(8'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The field behind `count` commas, and the rest behind it.
double TakeNumber(std::string_view& line, int count)
{
  for (int i = 0; i < count; ++i) {
    line.remove_prefix(line.find(',') + 1);
  }
  double value = 0;
  std::from_chars(line.data(), line.data() + line.size(), value);
  return value;
}

void FloorOfConverting(benchmark::State& run)
{
  const auto path = LoggerFile(static_cast<int>(run.range(0)));
  const TransverseMercatorProjection projection(UtmSystem(31, true));
  for ([[maybe_unused]] auto _ : run) {
    const std::string content = ReadFile(path);
    std::string_view rest = content;
    double sum = 0;
    for (rest.remove_prefix(rest.find('\n') + 1); !rest.empty();) {
      const std::size_t length = rest.find('\n');
      std::string_view line = rest.substr(0, length);
      rest.remove_prefix(length + 1);
      const double latitude = TakeNumber(line, 1);
      const double longitude = TakeNumber(line, 1);
      sum += TakeNumber(line, 2) + TakeNumber(line, 1) + TakeNumber(line, 2);
      sum += projection.Forward({latitude, longitude}).X;
    }
    benchmark::DoNotOptimize(sum);
  }
  std::filesystem::remove(path);
}
BENCHMARK(FloorOfConverting)->Arg(8'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
