#pragma once

#include "cli/veln_session.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace veln {

/// FNV-1a, 64 bits, as 16 hexadecimal digits.
inline std::string Fnv1a(const std::string& text)
{
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char c : text) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  }
  std::string digits;
  for (int shift = 60; shift >= 0; shift -= 4) {
    digits += "0123456789abcdef"[(hash >> static_cast<unsigned>(shift)) & 0xFU];
  }
  return digits;
}

/// Runs that between them take every road to a design, each with its name and its survey.
struct FixedRun {
  std::string Name;
  std::string Survey;
  std::vector<std::string> Options;
};

inline std::vector<FixedRun> FixedRuns()
{
  const RawSurvey grid = GridSurvey(20, 20, 1, 5);
  const RawSurvey large = GridSurvey(100, 51, 2, 9);
  const RawSurvey spoilt = SpoiltTransect();
  return {{"grid", RawFileText(grid, LayoutOf(grid)), {"--design", "20", "--design", "6,d=1.2,stratum=2"}},
          {"large",
           RawFileText(large, LayoutOf(large)),
           {"--s2", "--reduce", "50", "--ads", "full", "--design", "12,stratum=7,d=0.93"}},
          {"spoilt", RawFileText(spoilt, LayoutOf(spoilt, true)), EveryStep()}};
}

/// One line for each file of each fixed run, and for the document that it prints: run, file, hash of the text
/// without path, date and time lines. A run that fails gives its message instead.
inline std::string HashRuns()
{
  std::string list;
  for (FixedRun& run : FixedRuns()) {
    VelnSession session;
    run.Options.emplace_back("--json");
    const ProcessResult result = session.Run(run.Survey, std::move(run.Options));
    if (result.Status != 0) {
      return run.Name + " " + result.Err;
    }
    list += run.Name + " document " + Fnv1a(SteadyText(result.Out, session.Root())) + "\n";
    for (const std::string& suffix : session.Outputs()) {
      list += run.Name + " " + suffix + " " +
              Fnv1a(SteadyText(ReadText(session.Output(suffix)), session.Root())) + "\n";
    }
  }
  return list;
}

}  // namespace veln
