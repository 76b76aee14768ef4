#include "design/design_run.h"

#include "design/design_optimisation.h"
#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

TEST(DesignRun, TellsEachStepInOrderAndLeavesNoMark)
{
  SurveyState state = LineField();
  const SurveyState before = state;
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
  EXPECT_EQ(state, before);

  CandidateHold hold = HoldCandidates(state, design);  // all but the support site and its neighbour
  EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 0, 0}));
  hold.reset();
  EXPECT_EQ(state, before);
}

/// The points of a design as text: number, site, alternates, target.
Lines Points(const Design& design)
{
  Lines lines;
  for (const DesignPoint& point : PointsOf(design)) {
    std::ostringstream line;
    line << point.Number << (point.Support ? " support " : " ") << point.Site.SiteId;
    for (const CandidateSite& site : point.Alternates) {
      line << ' ' << site.SiteId;
    }
    const char* before = ": ";
    for (const double level : point.Target) {
      line << std::exchange(before, ", ") << level;
    }
    lines.push_back(line.str());
  }
  return lines;
}

TEST(DesignRun, PointsKnowAlternatesAndTargets)
{
  SurveyState state = LineField();
  RunObserver silent;
  Design design = MakeDesign(state, LimitedDesign(), silent);
  EXPECT_EQ(Points(design), (Lines{"1 115 114 113: 0", "2 101 102 103: 2.5", "3 104 105 106: -2.5",
                                   "4 107 108 109: 1.5", "5 110 111 112: -1.5", "6 support 117"}));
  design.SignalCount = 2;
  design.Sites[5] = {};  // a support site that could not be placed
  design.Sites[2] = {};
  EXPECT_EQ(Points(design), (Lines{"1 115 114 113: 0, 0", "2 101 102 103: 1.75, 1.75",
                                   "4 107 108 109: 1.75, -1.75", "5 110 111 112: -1.75, 1.75"}));
}

TEST(DesignRun, ObserverPassesOnWhatItDoesNotTake)
{
  RunTranscript direct;
  RunTranscript behind;
  RunObserver relay(&behind);
  const CandidateSite site{0, 0, 7, 0};
  const PointCandidates point = {site, site, site};
  for (RunObserver* observer : {static_cast<RunObserver*>(&direct), &relay}) {
    observer->Status("told");
    observer->MapReady();
    observer->CandidatesFound(3, point);
    observer->Started(std::span(&point, 1));
    observer->Exchanged(site, site);
    observer->SupportFound(site);
    observer->DesignScored(1.5);
  }
  EXPECT_EQ(behind.Lines, direct.Lines);
  EXPECT_EQ(direct.Lines.size(), 7U);
  behind.StopAt = 4;
  EXPECT_TRUE(relay.NextDesign(3, 9) && RunObserver().NextDesign(4, 9));
  EXPECT_FALSE(relay.NextDesign(4, 9));
}

// The fifteenth pick needs a fifth free site: 14 are taken by then, so 19 sites do and 18 do not.
TEST(DesignRun, StratumWithoutASiteEndsTheRunAndFreesAllCandidates)
{
  DesignSettings settings = LimitedDesign();
  settings.Parsing = {5, 0};
  RunObserver silent;
  std::vector<HandSite> sites;
  for (int i = 0; i < 18; ++i) {
    sites.push_back({10.0 * i, 3.0 * i * i, 0.25 * i - 2});
  }
  SurveyState state = HandField(sites);
  EXPECT_THAT(WholeRefusalOf(state, [&] { MakeDesign(state, settings, silent); }),
              StartsWith("There are not enough free sites in this stratum"));
  sites.push_back({200, 0, 0});
  state = HandField(sites);
  EXPECT_TRUE(MakeDesign(state, settings, silent).Sites[0][2].Exists());
}

/// A whole run written down plainly, every distance computed anew each time it is asked for: the rule that
/// the engine is held to.
class PlainRun {
 public:
  PlainRun(const SurveyState& survey, const DesignSettings& settings) : survey_(survey), settings_(settings)
  {
    const std::size_t n = static_cast<std::size_t>(TargetPoints(settings.Size));
    Points.resize(n);
    for (const std::size_t point : {2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 1, 10}) {
      if (point <= n) {
        Locate(Points[point - 1], InitDLevels(settings.Size, settings.DFactor)[point - 1]);
      }
    }
    Optimise();
    for (int k = 0; settings.IncludeSupportSites && k < SupportSites(settings.Size); ++k) {
      Support();
    }
  }

  std::vector<std::vector<std::size_t>> Points;  ///< places of the candidates, the chosen site first
  double OptCriteria = 0;
  int LoopCount = 0;

 private:
  void Locate(std::vector<std::size_t>& ranks, const LevelRow& level)
  {
    const bool two = survey_.SignalCount == 2;
    for (int rank = 1; rank <= 3; ++rank) {
      double best = 1E+24;
      ranks.push_back(0);
      int c = 0;
      for (std::size_t i = 0; i < status_.size(); ++i) {
        c += status_[i] == 0 ? 1 : 0;
        if (status_[i] != 0 || c % settings_.Parsing.ParseDenominator != settings_.Parsing.ParseModulus) {
          continue;
        }
        const double d1 = survey_.Decorr1[i] - (two ? level[1] : level[0]);
        const double d2 = two ? survey_.Decorr2[i] - level[2] : 0;
        const double s = survey_.TransitionDone && !settings_.IgnoreTA ? survey_.TransitionScore[i] : 0;
        if (const double distance = std::sqrt(d1 * d1 + d2 * d2 + s * s); distance < best) {
          best = distance;
          ranks.back() = i;
        }
      }
      status_.at(ranks.back()) = 9;
    }
  }

  [[nodiscard]] double NearestOf(std::size_t place, std::size_t self) const
  {
    double best = 1E+24;
    for (std::size_t j = 0; j < Points.size(); ++j) {
      if (j != self) {
        const double dx = survey_.CoordX[place] - survey_.CoordX[Points[j][0]];
        const double dy = survey_.CoordY[place] - survey_.CoordY[Points[j][0]];
        best = std::min(best, std::sqrt(dx * dx + dy * dy));
      }
    }
    return best;
  }

  [[nodiscard]] double LogSeparation() const
  {
    double sum = 0;
    for (std::size_t i = 0; i < Points.size(); ++i) {
      sum += std::log(NearestOf(Points[i][0], i) + 0.000001);
    }
    return sum / static_cast<double>(Points.size());
  }

  void Optimise()
  {
    double best = LogSeparation();
    for (bool changed = true; changed; ++LoopCount) {
      changed = false;
      auto next = Points;
      for (auto& ranks : Points) {
        for (std::size_t rank = 1; rank <= 2; ++rank) {
          std::swap(ranks[0], ranks[rank]);
          if (const double trial = LogSeparation(); trial > best) {
            best = trial;
            next = Points;
            changed = true;
          }
          std::swap(ranks[0], ranks[rank]);
        }
      }
      Points = next;
    }
    OptCriteria = RoundByFormat(TargetSepDist(survey_, static_cast<int>(Points.size())) / std::exp(best),
                                settings_.Rounding);
  }

  void Support()
  {
    const double c = std::clamp(125.0 / survey_.SurveySize, 0.25, 1.0);
    double best = 0;
    std::vector<std::size_t> pick;
    for (std::size_t i = 0; i < status_.size(); ++i) {
      const bool central =
          std::abs(survey_.Decorr1[i]) < c && (survey_.SignalCount == 1 || std::abs(survey_.Decorr2[i]) < c);
      if (status_[i] == 0 && central && NearestOf(i, Points.size()) > best) {
        best = NearestOf(i, Points.size());
        pick = {i};
      }
    }
    if (!pick.empty()) {
      Points.push_back(pick);
    }
  }

  const SurveyState& survey_;
  const DesignSettings& settings_;
  std::vector<std::int16_t> status_ = survey_.SiteStatus;
};

// Odd seeds lay an ideal grid, whose equal distances are decided by the order of trials.
TEST(DesignRun, AgreesWithThePlainRule)
{
  for (unsigned seed = 1; seed <= 16; ++seed) {
    const int signals = seed % 4 < 2 ? 1 : 2;
    const int rows = std::array{5, 15, 26}.at(seed / 2 % 3);  // 100, 300 or 520 sites
    SurveyState state = AcceptedSurvey(seed % 2 == 1 ? GridSurvey(20, rows, signals, seed)
                                                     : TransectSurvey(rows, 20, signals, seed));
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
      settings.Parsing.ParseDenominator = 1 + static_cast<int>(seed % 3);
      settings.Parsing.ParseModulus = static_cast<int>(seed) / 3 % settings.Parsing.ParseDenominator;
      const PlainRun plain(state, settings);
      SurveyState worked = state;
      RunTranscript transcript;
      const Design design = MakeDesign(worked, settings, transcript);
      EXPECT_EQ(
          std::ranges::count(transcript.Lines, "Converged on Itrn # " + NumberToString(design.LoopCount) +
                                                   ":  Opt-Criteria = " + NumberToString(design.OptCriteria) +
                                                   "  Now searching for 2st SS..."),
          size == DesignSize::Limited ? 0 : 1);
      std::vector<std::vector<std::size_t>> points;
      for (const DesignPoint& point : PointsOf(design)) {
        points.push_back({point.Site.Index});
        for (const CandidateSite& site : point.Alternates) {
          points.back().push_back(site.Index);
        }
      }
      EXPECT_EQ(points, plain.Points);
      EXPECT_EQ(design.OptCriteria, plain.OptCriteria);
      EXPECT_EQ(design.LoopCount, plain.LoopCount);
    }
  }
}

}  // namespace
}  // namespace veln
