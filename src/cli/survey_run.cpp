#include "cli/survey_run.h"

#include "cli/console_dialogs.h"
#include "cli/progress_text.h"
#include "cli/run_json.h"
#include "cli/run_record.h"
#include "cli/survey_pictures.h"
#include "design/manual_design.h"
#include "forms/auto_selection.h"
#include "forms/reduction_form.h"
#include "quality/design_facts.h"
#include "signal/validation.h"
#include "survey/coordinate_translation.h"
#include "survey/import_advice.h"
#include "survey/row_table.h"
#include "survey/signal_transform.h"
#include "survey/statistics.h"
#include "survey/survey_export.h"
#include "toolkit/clock.h"
#include "toolkit/number_text.h"
#include "toolkit/output_target.h"
#include "toolkit/refusal.h"
#include "workspace/captions.h"
#include "workspace/project.h"

#include <ostream>
#include <ranges>
#include <system_error>
#include <utility>

namespace veln {

namespace {

/// Shows the designs of an automatic selection as they are made.
class SelectionProgress : public RunObserver {
 public:
  explicit SelectionProgress(ProgressText& progress) : progress_(progress) {}

  bool NextDesign(int k, int n) override
  {
    progress_.Counter("Selection     design" + NumberToString(k) + " of" + NumberToString(n));
    return true;
  }

 private:
  ProgressText& progress_;
};

/// One run, step by step.
class SurveyRun {
 public:
  SurveyRun(const RunOptions& options, const RunOutput& output)
      : options_(options),
        output_(output),
        printed_(options.Json || options.Quiet ? nullptr : &output.Out),
        progress_(printed_, output.Terminal),
        dialogs_({options.TransitionFile}, printed_, output.Errors)
  {
    state_.ProgramDir = options.Root;
  }

  int Run()
  {
    SetProject();
    Import();
    Prepare();
    Decorrelate();
    DeleteOutlierRounds();
    Accept();
    SelectByHand();
    ReduceSurvey();
    SelectAutomatically();
    for (const DesignOption& design : options_.Designs) {
      MakeOneDesign(design);
    }
    Export();
    DrawPictures();
    progress_.FileList(record_.Files);
    if (options_.Json) {
      record_.Notes = dialogs_.Notes();
      output_.Out << ComposeRunJson(options_, record_, state_);
    }
    return dialogs_.Warned() ? 1 : 0;
  }

 private:
  void SetProject()
  {
    const FieldPlace place = PlaceOfField(options_.Root, options_.Project, options_.Field);
    std::error_code failure;
    std::filesystem::create_directories(place.Folder, failure);
    if (failure) {
      RefuseFile(place.Folder, "made", failure.value());
    }
    field_ = TakeField(place, "veln", LockPatience);
    if (!options_.Overwrite && IsFieldInUse(options_.Root, options_.Project, options_.Field)) {
      throw Refusal(FieldInUseQuestion(), RefusalKind::FieldUse);
    }
    AcceptProject(state_, options_.Project, options_.Field, options_.Description);
    progress_.Step("Project", options_.Project + ", field " + options_.Field);
  }

  void Import()
  {
    ImportSurvey(state_, options_.Import, [this](ImportPass pass, int count) {
      progress_.Counter((pass == ImportPass::Scanning ? "Scanning Line # " : "Importing Line #") +
                        NumberToString(count));
    });
    record_.ImportedSites = state_.SurveySize;
    std::string text = Counted(state_.SurveySize, "site") + ", " + Counted(state_.SignalCount, "signal") +
                       " in " + UnitsText(state_.SignalUnits);
    if (IsTransect(state_)) {
      text += ", " + Counted(std::ssize(InitRows(state_.RowNumber)), "row");
    }
    progress_.Step("Import", text);
    Tell(options_.Advices);
    Tell(AdviseImport(state_));
  }

  void Tell(const std::vector<Advice>& advices)
  {
    for (const Advice& advice : advices) {
      progress_.Step("Advice", advice.Text);
      record_.Advices.push_back(advice);
    }
  }

  void Prepare()
  {
    if (options_.ConvertUnits) {
      BasicStatsForm form = LoadBasicStatsForm(state_);
      form.Check3 = options_.ConvertUnits == ConductivityUnits::MilliSiemens;
      form.Check4 = !form.Check3;
      ComputeSignals(state_, form);
      progress_.Step("Units", std::string("signals rescaled to ") + UnitsText(state_.SignalUnits));
    }
    for (const CoordinateTranslation& translation : options_.Translations) {
      TranslateCoordinates(state_, translation);
    }
    if (!options_.Translations.empty()) {
      progress_.Step("Coordinates", Counted(std::ssize(options_.Translations), "translation") + " applied");
    }
    const char* step = "Signals";
    for (const SignalFacts& signal : state_.Signals.Rows | std::views::take(state_.SignalCount)) {
      const SignalTexts row = TextsOf(signal);
      progress_.Step(std::exchange(step, ""), row.LblNm + ": mean " + row.LblMu + ", std " + row.LblStd +
                                                  ", " + row.LblMn + " to " + row.LblMx);
    }
    if (state_.Signals.Correlation) {
      progress_.Step("", "correlation " + PanelCorrelation(state_.Signals));
    }
  }

  void Decorrelate()
  {
    const DecorrelationCounts counts = DecorrelateSignals(state_, options_.Levels);
    record_.Decorrelations.push_back({state_.SurveySize, counts});
    progress_.Step("Decorrelation",
                   Counted(state_.SurveySize, "site") + ": " + GeneralForm(counts.MaskedCount) + " masked, " +
                       Counted(counts.OutlierCount, "outlier") + " (levels " +
                       LevelText(options_.Levels.Masking) + ", " + LevelText(options_.Levels.Outlier) + ")");
  }

  void DeleteOutlierRounds()
  {
    for (int round = 0; round < options_.DeletionRounds; ++round) {
      if (record_.Decorrelations.back().Counts.OutlierCount == 0) {
        return;
      }
      const int deleted = DeleteOutliers(state_);
      progress_.Step("Validation", Counted(deleted, "outlier") + " deleted");
      Decorrelate();
    }
  }

  void Accept()
  {
    const Acceptance acceptance = AcceptConfiguration(
        state_, {options_.EdgeBuffering, options_.TransitionAnalysis}, dialogs_, SystemDateTime);
    record_.EdgeMasked = acceptance.EdgeMasked;
    record_.HighScores = acceptance.HighScores;
    record_.Files = acceptance.Files;
    const auto [edgeBuffering, transitionAnalysis] = state_.Algorithms.value_or(AlgorithmFacts{});
    progress_.Step("Acceptance", std::string("edge buffering ") + AlgorithmText(edgeBuffering) +
                                     ", transition analysis " + AlgorithmText(transitionAnalysis));
  }

  void SelectByHand()
  {
    if (options_.ManualSites.empty()) {
      return;
    }
    for (const std::size_t site : KnownSites()) {
      SelectSite(state_, site);
    }
    std::vector<int> siteIds;
    for (const std::size_t i : SelectedSites(state_)) {
      siteIds.push_back(state_.SiteId[i]);
    }
    record_.Files.push_back(SaveUDSamInfo(state_, dialogs_, SystemDateTime));
    progress_.Step("Manual design", Counted(std::ssize(siteIds), "site"));
    record_.ManualSites = std::move(siteIds);
  }

  /// The sites asked for by hand. Unknown numbers are refused before any is selected, each with its warning.
  [[nodiscard]] std::vector<std::size_t> KnownSites() const
  {
    std::vector<std::size_t> sites;
    std::string warnings;
    for (const double number : options_.ManualSites) {
      if (const auto site = FindSite(state_, number)) {
        sites.push_back(*site);
      } else {
        warnings += (warnings.empty() ? "" : "\n") + UnknownSiteWarning(number);
      }
    }
    if (!warnings.empty()) {
      throw Refusal(warnings);
    }
    return sites;
  }

  /// Opens the design window's state once; refuses when the rules on available sites have closed it.
  SrsForm& DesignWindow()
  {
    if (!srs_) {
      SilentDialogs silent;
      srs_ = OpenSrs(state_, silent);
    }
    if (srs_->Closed) {
      throw Refusal(TooFewSites);
    }
    return *srs_;
  }

  void ReduceSurvey()
  {
    if (!options_.Reduction) {
      return;
    }
    ReduceGridSize(DesignWindow(), state_, options_.Reduction->Factor, dialogs_);
    record_.ReducedTo = DetermineAvSites(state_);
    progress_.Step("Reduction", Counted(*record_.ReducedTo, "site") + " available");
  }

  void SelectAutomatically()
  {
    if (!options_.Selection) {
      return;
    }
    SrsForm& form = DesignWindow();
    ChooseSize(form, state_, options_.Designs.empty() ? DesignSize::Standard : options_.Designs.front().Size);
    IgnoreScores(form, options_.Selection->IgnoreTA);
    SelectionProgress observer(progress_);
    const auto scores = SelectDesigns(form, state_, options_.Selection->Scope, dialogs_, observer);
    if (!scores) {
      return;  // nobody stops a run of the command line
    }
    record_.Selection = scores;
    const SelectionSummary summary = SummariseScores(*scores);
    progress_.Step("Selection",
                   Counted(std::ssize(CombinationsOf(*scores)), "design") + " scored by Opt-Criteria");
    progress_.ScoreTable(*scores);
    if (summary.Best) {
      progress_.Step("", BestDesignText(summary));
      progress_.Step("", AcceptableText(summary));
    } else {
      dialogs_.Inform("Note: " + BestDesignText(summary));
    }
  }

  void IgnoreScores(SrsForm& form, bool ignore) const
  {
    if (state_.TransitionDone) {
      IgnoreTransition(form, ignore);
    }
  }

  void ChooseSettings(SrsForm& form, const DesignOption& option)
  {
    SilentDialogs silent;
    IncludeSupport(form, option.IncludeSupportSites, silent);
    ChooseSize(form, state_, option.Size);
    AdjustDFactor(form, true);
    MoveDFactor(form, option.DFactor);
    IgnoreScores(form, option.IgnoreTA);
    if (option.Stratum) {
      SwitchParsing(form, true);
      ParseForm parse = LoadParseForm(state_);
      ChooseStratum(parse, *option.Stratum);
      InvokeParsing(parse, form, silent);
    }
  }

  void MakeOneDesign(const DesignOption& option)
  {
    SrsForm& form = DesignWindow();
    ChooseSettings(form, option);
    RunObserver unwatched;
    RunDesign(form, state_, dialogs_, unwatched);
    const std::optional<Design> made = form.Finished;
    if (!made) {
      return;  // a run that did not finish has thrown
    }
    SavedDesign saved{state_.DesignCount + 1, *made, Judge(*made)};
    const auto files = SaveDesign(form, state_, dialogs_, SystemDateTime);
    record_.Files.insert(record_.Files.end(), files.begin(), files.end());
    ShowDesign(saved);
    record_.Designs.push_back(std::move(saved));
  }

  /// The quality of a design that is not saved yet, whose candidates still count as free.
  [[nodiscard]] std::optional<DesignQuality> Judge(const Design& design) const
  {
    if (!options_.Json) {
      return std::nullopt;
    }
    const SurveyFacts facts = FactsOf(state_);
    const Plan plan = PlanOf(state_, design);
    const PlanFigures figures = MeasurePlan(facts, plan);
    return DesignQuality{plan.Places(), figures, RankPlan(facts, plan, figures)};
  }

  void ShowDesign(const SavedDesign& saved)
  {
    const DesignSettings& settings = saved.Made.Settings;
    std::string text =
        Counted(saved.Made.PointCount(), "site") + ", D-factor " + FormatNumber(settings.DFactor, "0.00");
    if (settings.Parsing.ParseDenominator != 1) {
      text += ", stratum" + NumberToString(settings.Parsing.ParseModulus + 1) + " of" +
              NumberToString(settings.Parsing.ParseDenominator);
    }
    text += ": Opt-Criteria " + FormatNumber(saved.Made.OptCriteria, "0.000") + " after " +
            Counted(saved.Made.LoopCount, "loop");
    progress_.Step("Design" + NumberToString(saved.Number), text);
    progress_.DesignTable(saved);
  }

  void Export()
  {
    if (!options_.Export || !HasDesign(state_)) {
      return;
    }
    const ExportResult result = MakeOutF(state_);
    if (!result.Written) {
      throw Refusal(result.Reason);
    }
    record_.Files.push_back(result.Path);
    progress_.Step("Export", GeneralForm(state_.SurveySize) + " lines in " + result.Path.filename().string());
  }

  void DrawPictures()
  {
    if (options_.Pictures.empty()) {
      return;
    }
    const auto files = ComposePictures(state_, options_.Pictures, options_.PictureStyle);
    WriteFieldFiles(state_, files);
    for (const ComposedFile& file : files) {
      record_.Files.push_back(file.Path);
    }
    progress_.Step("Pictures", Counted(std::ssize(files), "picture") + " drawn");
  }

  const RunOptions& options_;
  const RunOutput& output_;
  std::ostream* printed_;
  ProgressText progress_;
  ConsoleDialogs dialogs_;
  FileLock field_;  ///< for as long as the run works on the field
  SurveyState state_;
  std::optional<SrsForm> srs_;
  RunRecord record_;
};

}  // namespace

int RunSurvey(const RunOptions& options, const RunOutput& output)
{
  return SurveyRun(options, output).Run();
}

}  // namespace veln
