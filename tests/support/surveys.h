#pragma once

#include "signal/decorrelation.h"
#include "signal/validation.h"
#include "support/files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"
#include "survey/survey_import.h"
#include "workspace/survey_state.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace veln {

/// Numbers from 0 to below 1 that are the same on every machine.
class SteadyRandom {
 public:
  explicit SteadyRandom(std::uint64_t seed) : state_(seed) {}

  double Next()
  {
    constexpr std::uint64_t Multiplier = 6364136223846793005;
    constexpr std::uint64_t Increment = 1442695040888963407;
    constexpr double TwoTo53 = 9007199254740992.0;
    state_ = state_ * Multiplier + Increment;
    return static_cast<double>(state_ >> 11U) / TwoTo53;
  }

 private:
  std::uint64_t state_;
};

/// Puts a site behind the others: the next site number, and two positive signals that are spread evenly and
/// correlated at about 0.83. No site lies further than about 2.5 deviations out, so none is masked.
inline void AppendSite(RawSurvey& survey, double x, double y, SteadyRandom& random)
{
  survey.SiteId.push_back(static_cast<std::int16_t>(survey.SiteId.size() + 1));
  survey.CoordX.push_back(x);
  survey.CoordY.push_back(y);
  const double s1 = 20 + 60 * random.Next();
  survey.Signal1.push_back(s1);
  survey.Signal2.push_back(10 + 0.5 * s1 + 20 * random.Next());
}

/// An ideal grid, 10 m apart, row by row from the south-west corner; many distances in it are equal.
inline RawSurvey GridSurvey(int columns, int rows, int signals = 2, std::uint64_t seed = 1)
{
  SteadyRandom random(seed);
  RawSurvey survey;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      AppendSite(survey, 10.0 * column, 10.0 * row, random);
    }
  }
  if (signals == 1) {
    survey.Signal2.clear();
  }
  return survey;
}

/// Rows walked to and fro, 20 m apart, with a site about every 5 m; positions are off by up to half a metre,
/// so that no two distances are equal. Rows count from 1.
inline RawSurvey TransectSurvey(int rows, int sitesPerRow, int signals = 2, std::uint64_t seed = 1)
{
  SteadyRandom random(seed);
  RawSurvey survey;
  for (int row = 0; row < rows; ++row) {
    for (int site = 0; site < sitesPerRow; ++site) {
      const int along = row % 2 == 0 ? site : sitesPerRow - 1 - site;
      const double x = 5.0 * along + random.Next() - 0.5;
      const double y = 20.0 * row + random.Next() - 0.5;
      AppendSite(survey, x, y, random);
      survey.RowNumber.push_back(static_cast<std::int16_t>(row + 1));
    }
  }
  if (signals == 1) {
    survey.Signal2.clear();
  }
  return survey;
}

/// The columns of a survey, with or without site numbers in its file.
inline RecordLayout LayoutOf(const RawSurvey& survey, bool siteIds = false)
{
  return {!survey.RowNumber.empty(), siteIds, !survey.Signal2.empty()};
}

/// The survey as a raw file with the columns of `layout`, comma-separated, one site a line; numbers have the
/// 17 digits that bring back the same doubles.
inline std::string RawFileText(const RawSurvey& survey, const RecordLayout& layout)
{
  constexpr int ExactDigits = 17;
  std::ostringstream text;
  text.precision(ExactDigits);
  for (std::size_t i = 0; i < survey.SiteId.size(); ++i) {
    if (layout.SiteIdColumn) {
      text << survey.SiteId[i] << ',';
    }
    text << survey.CoordX[i] << ',' << survey.CoordY[i] << ',' << survey.Signal1[i];
    if (layout.SecondSignal) {
      text << ',' << survey.Signal2[i];
    }
    if (layout.Transect) {
      text << ',' << survey.RowNumber[i];
    }
    text << '\n';
  }
  return text.str();
}

/// The record with project "farm" and field ID "ab12" set and the import open. Nothing is made on disk.
inline SurveyState NamedState(const std::filesystem::path& programDir = "/nowhere")
{
  SurveyState state;
  state.ProgramDir = programDir;
  state.ProjectName = "farm";
  state.FieldId = "ab12";
  state.FieldDescription = "North field";
  state.Menu.Apply(WorkflowEvent::ProjectAccepted);
  return state;
}

/// The record after the import of a survey from "raw.txt", labels "EMv" and "EMh", in mS/m.
inline SurveyState ImportedSurvey(const RawSurvey& survey,
                                  const std::filesystem::path& programDir = "/nowhere")
{
  const TemporaryDirectory folder;
  const RecordLayout layout = LayoutOf(survey, true);
  WriteText(folder / "raw.txt", RawFileText(survey, layout));
  SurveyState state = NamedState(programDir);
  ImportSurvey(state, {folder / "raw.txt", layout, {"EMv", "EMh"}});
  state.ImportFileName = "raw.txt";
  return state;
}

/// The record after import and decorrelation.
inline SurveyState DecorrelatedSurvey(const RawSurvey& survey, const DecorrelationLevels& levels = {},
                                      const std::filesystem::path& programDir = "/nowhere")
{
  SurveyState state = ImportedSurvey(survey, programDir);
  DecorrelateSignals(state, levels);
  return state;
}

/// The record after an acceptance without options, ready for design. No file is written.
inline SurveyState AcceptedSurvey(const RawSurvey& survey, const DecorrelationLevels& levels = {},
                                  const std::filesystem::path& programDir = "/nowhere")
{
  SurveyState state = DecorrelatedSurvey(survey, levels);
  ScriptedDialogs dialogs;
  AcceptConfiguration(state, {}, dialogs, SystemDateTime);
  state.ProgramDir = programDir;
  return state;
}

}  // namespace veln
