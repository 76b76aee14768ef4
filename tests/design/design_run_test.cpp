#include "design/design_run.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

TEST(DesignRun, TellsEachStepInOrder)
{
  SurveyState state = LineField();
  RunTranscript transcript;
  const Design design = MakeDesign(state, LimitedDesign(), transcript);
  EXPECT_EQ(
      transcript.Lines,
      (Lines{" loading grid data, one moment please...", "map",
             " Locating target sites for RSD level #  2  Del Vec =  0  .1  .2", "candidates of 2 101 102 103",
             " Locating target sites for RSD level #  3  Del Vec =  0  .1  .2", "candidates of 3 104 105 106",
             " Locating target sites for RSD level #  4  Del Vec =  0  .1  .2", "candidates of 4 107 108 109",
             " Locating target sites for RSD level #  5  Del Vec =  0  .1  .2", "candidates of 5 110 111 112",
             " Locating target sites for RSD level #  1  Del Vec =  0  .1  .2", "candidates of 1 113 114 115",
             "start 113 101 104 107 110",
             "Initializing Optimization Algorithm:  Opt-Criteria =  1.32",  // 2^0.4
             "Iteration #  1:  Opt-Criteria =  1", "exchange 113 for 115",
             "Converged on Itrn #  2:  Opt-Criteria =  1  Now searching for 1st SS...", "support 117",
             "Algorithm FINISHED:  Final Opt-Criteria =  1"}));
  EXPECT_EQ(design.LoopCount, 2);
  EXPECT_EQ(design.OptCriteria, 1);
  EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 0, 0}));
}

/// A whole run written down plainly, every distance computed anew each time it is asked for: the rule that
/// the engine is held to. Points, ranks and fields count from 1.
class PlainRun {
 public:
  PlainRun(const SurveyState& survey, const DesignSettings& settings) : survey_(survey), settings_(settings)
  {
    const int n = TargetPoints(settings.Size);
    std::vector<int> order = {2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 1, 10};
    std::erase_if(order, [n](int point) { return point > n; });
    for (const int point : order) {
      Locate(point);
    }
    Optimise(n);
    const int last = settings.IncludeSupportSites ? n + SupportSites(settings.Size) : n;
    for (int point = n + 1; point <= last; ++point) {
      Support(point);
    }
    for (int point = 1; point <= last; ++point) {
      Codes.push_back(sites_[point][1][3]);
    }
  }

  std::vector<double> Codes;  ///< of the sites chosen, by point
  double OptCriteria = 0;
  int LoopCount = 0;

 private:
  void Place(int point, int rank, std::size_t i)
  {
    sites_[point][rank] = {0, survey_.CoordX[i], survey_.CoordY[i], static_cast<double>(survey_.SiteId[i])};
  }

  void Locate(int point)
  {
    const bool two = survey_.SignalCount == 2;
    const LevelRow level =
        InitDLevels(settings_.Size, settings_.DFactor).at(static_cast<std::size_t>(point) - 1);
    for (int rank = 1; rank <= 3; ++rank) {
      double best = 1E+24;
      std::size_t pick = survey_.SiteId.size();
      int c = 0;
      for (std::size_t i = 0; i < survey_.SiteId.size(); ++i) {
        c += status_[i] == 0 ? 1 : 0;
        if (status_[i] != 0 || c % settings_.Parsing.ParseDenominator != settings_.Parsing.ParseModulus) {
          continue;
        }
        const double d1 = survey_.Decorr1[i] - (two ? level[1] : level[0]);
        const double d2 = two ? survey_.Decorr2[i] - level[2] : 0;
        const double s = survey_.TransitionDone && !settings_.IgnoreTA ? survey_.TransitionScore[i] : 0;
        const double distance = std::sqrt(d1 * d1 + d2 * d2 + s * s);
        if (distance < best) {
          best = distance;
          pick = i;
        }
      }
      status_.at(pick) = 9;
      Place(point, rank, pick);
    }
  }

  [[nodiscard]] double NearestOf(int n1, int n2) const
  {
    double best = 1E+24;
    for (int j = 1; j <= n2; ++j) {
      if (j != n1) {
        const double dx = sites_[n1][1][1] - sites_[j][1][1];
        const double dy = sites_[n1][1][2] - sites_[j][1][2];
        best = std::min(best, std::sqrt(dx * dx + dy * dy));
      }
    }
    return best;
  }

  [[nodiscard]] double LogSeparation(int n) const
  {
    double sum = 0;
    for (int i = 1; i <= n; ++i) {
      sum += std::log(NearestOf(i, n) + 0.000001);
    }
    return sum / n;
  }

  void Optimise(int n)
  {
    const auto [west, east] = std::ranges::minmax(survey_.CoordX);
    const auto [south, north] = std::ranges::minmax(survey_.CoordY);
    const double rx = east - west;
    const double ry = north - south;
    const double p = (rx <= ry ? ry : rx) / (rx + ry);
    const double t = (rx + ry) * p / (std::exp(p * std::log(n)) - 0.5);
    double best = LogSeparation(n);
    for (int point = 1; point > 0;) {
      ++LoopCount;
      point = 0;
      int rank = 0;
      for (int i = 1; i <= n; ++i) {
        for (int j = 2; j <= 3; ++j) {
          std::swap(sites_[i][1], sites_[i][j]);
          const double l = LogSeparation(n);
          if (l > best) {
            best = l;
            point = i;
            rank = j;
          }
          std::swap(sites_[i][1], sites_[i][j]);
        }
      }
      if (point > 0) {
        std::swap(sites_[point][1], sites_[point][rank]);
      }
    }
    OptCriteria = RoundByFormat(t / std::exp(best), "0.000");
  }

  void Support(int point)
  {
    const double c = std::clamp(125.0 / survey_.SurveySize, 0.25, 1.0);
    double best = 0;
    std::size_t pick = survey_.SiteId.size();
    for (std::size_t i = 0; i < survey_.SiteId.size(); ++i) {
      if (status_[i] == 0 && std::abs(survey_.Decorr1[i]) < c &&
          (survey_.SignalCount == 1 || std::abs(survey_.Decorr2[i]) < c)) {
        Place(point, 1, i);
        if (NearestOf(point, point - 1) > best) {
          best = NearestOf(point, point - 1);
          pick = i;
        }
      }
    }
    Place(point, 1, pick);
  }

  const SurveyState& survey_;
  const DesignSettings& settings_;
  std::vector<std::int16_t> status_ = survey_.SiteStatus;
  std::array<double, 4> sites_[21][4] = {};
};

// Odd seeds lay an ideal grid, whose equal distances are decided by the order of trials.
TEST(DesignRun, AgreesWithThePlainRule)
{
  for (unsigned seed = 1; seed <= 16; ++seed) {
    const int signals = seed % 4 < 2 ? 1 : 2;
    SurveyState state = AcceptedSurvey(seed % 2 == 1 ? GridSurvey(20, 15, signals, seed)
                                                     : TransectSurvey(10, 30, signals, seed));
    SteadyRandom random(seed + 100);
    state.TransitionDone = seed % 3 == 0;
    for (std::size_t i = 0; i < state.SiteId.size(); ++i) {
      state.TransitionScore.push_back(random.Next());
      state.SiteStatus[i] = static_cast<std::int16_t>(random.Next() < 0.1 ? 7 : 0);
    }
    for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", target points " + std::to_string(TargetPoints(size)));
      DesignSettings settings;
      settings.Size = size;
      settings.DFactor = 0.8 + 0.025 * seed;
      settings.IgnoreTA = seed % 6 == 0;
      settings.IncludeSupportSites = seed % 5 != 0;
      settings.Parsing = {1 + static_cast<int>(seed % 3), static_cast<int>(seed % 3)};
      const PlainRun plain(state, settings);
      SurveyState worked = state;
      RunTranscript transcript;
      const Design design = MakeDesign(worked, settings, transcript);
      EXPECT_EQ(
          std::ranges::count(transcript.Lines, "Converged on Itrn # " + NumberToString(design.LoopCount) +
                                                   ":  Opt-Criteria = " + NumberToString(design.OptCriteria) +
                                                   "  Now searching for 2st SS..."),
          size == DesignSize::Limited ? 0 : 1);
      std::vector<double> codes;
      codes.reserve(plain.Codes.size());
      for (int point = 0; point < design.PointCount(); ++point) {
        codes.push_back(design.Sites.at(static_cast<std::size_t>(point))[0].SiteId);
      }
      EXPECT_EQ(codes, plain.Codes);
      EXPECT_EQ(design.OptCriteria, plain.OptCriteria);
      EXPECT_EQ(design.LoopCount, plain.LoopCount);
    }
  }
}

}  // namespace
}  // namespace veln
