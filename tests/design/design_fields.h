#pragma once

#include "design/design_run.h"
#include "support/surveys.h"
#include "support/testing.h"
#include "toolkit/number_text.h"

namespace veln {

/// A site of a field that a test lays out by hand.
struct HandSite {
  double X = 0;
  double Y = 0;
  double Z1 = 0;
  double Z2 = 0;
};

/// An accepted grid survey of these sites, numbered from 101, all free.
inline SurveyState HandField(const std::vector<HandSite>& sites, int signals = 1,
                             const std::filesystem::path& programDir = "/nowhere")
{
  SurveyState state = NamedState(programDir);
  state.SurveySize = static_cast<int>(sites.size());
  state.SignalCount = signals;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    state.SiteId.push_back(static_cast<std::int16_t>(101 + i));
    state.CoordX.push_back(sites[i].X);
    state.CoordY.push_back(sites[i].Y);
    state.Decorr1.push_back(sites[i].Z1);
    if (signals == 2) {
      state.Decorr2.push_back(sites[i].Z2);
    }
  }
  state.SiteStatus.assign(sites.size(), site_status::Free);
  state.DecorrDone = true;
  state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  return state;
}

/// One signal along a line of 45 m, for which the ideal spacing of 5 sites is 45 / (5 - 0.5) = 10 m. The
/// three sites of each target of the limited design stand together, the nearest at 0, 10, 20, 30 m, but for
/// the centre: its nearest stands at 35 m and its third at 40 m, so that one exchange makes all distances 10
/// m. The last two are near the centre.
inline SurveyState LineField(const std::filesystem::path& programDir = "/nowhere")
{
  SurveyState state = HandField({{0, 0, 2.5},
                                 {1, 0, 2.4},
                                 {2, 0, 2.3},
                                 {10, 0, -2.5},
                                 {11, 0, -2.6},
                                 {12, 0, -2.7},
                                 {20, 0, 1.5},
                                 {21, 0, 1.6},
                                 {22, 0, 1.7},
                                 {30, 0, -1.5},
                                 {31, 0, -1.4},
                                 {32, 0, -1.3},
                                 {35, 0, 0},
                                 {36, 0, 0.1},
                                 {40, 0, -0.2},
                                 {4, 0, 0.6},
                                 {45, 0, 0.5}},
                                1, programDir);
  for (std::size_t i = 0; i < state.CoordX.size(); ++i) {
    state.CoordX[i] += 100.5;
    state.CoordY[i] = 7.25;
  }
  return state;
}

/// The settings of a limited design, otherwise as a window opens.
inline DesignSettings LimitedDesign()
{
  DesignSettings settings;
  settings.Size = DesignSize::Limited;
  return settings;
}

inline std::string FixedClock()
{
  return "2026-11-22 14:05:09";
}

/// A program directory with the project "farm", and the files that a test expects there.
class DesignFolder : public testing::Test {
 protected:
  DesignFolder() { std::filesystem::create_directories(project_); }

  [[nodiscard]] std::string Written(const std::string& suffix) const
  {
    return ReadText(project_ / ("ab12" + suffix));
  }

  /// Compares output files with the golden ones, in which "{dir}" stands for the program directory.
  void ExpectGolden(const std::string& name, const std::vector<std::string>& suffixes) const
  {
    for (const std::string& suffix : suffixes) {
      std::string golden = ReadText(std::filesystem::path(VELN_TEST_DATA) / (name + suffix));
      if (const std::size_t place = golden.find("{dir}"); place != std::string::npos) {
        golden.replace(place, 5, directory_.Path().string());
      }
      EXPECT_EQ(Written(suffix), golden);
    }
  }

  TemporaryDirectory directory_;
  std::filesystem::path project_ = directory_ / "data/farm";
  ScriptedDialogs dialogs_;
};

/// Keeps what a run tells as lines of text.
class RunTranscript : public RunObserver {
 public:
  void Status(const std::string& text) override { Lines.push_back(text); }
  void MapReady() override { Lines.emplace_back("map"); }
  void CandidatesFound(int point, const PointCandidates& found) override
  {
    Lines.push_back("candidates of " + std::to_string(point) + Code(found[0]) + Code(found[1]) +
                    Code(found[2]));
  }
  void Started(std::span<const PointCandidates> points) override
  {
    Lines.emplace_back("start");
    for (const PointCandidates& point : points) {
      Lines.back() += Code(point[0]);
    }
  }
  void Exchanged(const CandidateSite& leaving, const CandidateSite& entering) override
  {
    Lines.push_back("exchange" + Code(leaving) + " for" + Code(entering));
  }
  void SupportFound(const CandidateSite& site) override { Lines.push_back("support" + Code(site)); }
  bool NextDesign(int k, int n) override
  {
    Designs.push_back(std::to_string(k) + " of " + std::to_string(n));
    return k != StopAt;
  }
  void DesignScored(std::optional<double> score) override
  {
    Lines.push_back(score ? "score " + FormatNumber(*score, "0.0###") : "no score");
  }

  std::vector<std::string> Lines;
  std::vector<std::string> Designs;
  int StopAt = 0;

 private:
  static std::string Code(const CandidateSite& site) { return " " + std::to_string(site.SiteId); }
};

}  // namespace veln
