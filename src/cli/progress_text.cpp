#include "cli/progress_text.h"

#include "toolkit/number_text.h"
#include "toolkit/utf8.h"

#include <ostream>

namespace veln {

namespace {

constexpr std::size_t NameWidth = 14;

std::string PadRight(std::string_view text, std::size_t width)
{
  const std::size_t length = CharacterCount(text);
  return std::string(text) + std::string(length < width ? width - length : 0, ' ');
}

std::string PadLeft(std::string_view text, std::size_t width)
{
  const std::size_t length = CharacterCount(text);
  return std::string(length < width ? width - length : 0, ' ') + std::string(text);
}

std::string PointLine(const DesignPoint& point)
{
  constexpr std::size_t CountWidth = 7;
  constexpr std::size_t CoordinateWidth = 16;
  constexpr const char* CoordinateFormat = "0.0#####";
  return PadLeft(GeneralForm(point.Number), CountWidth) +
         PadLeft(GeneralForm(point.Site.SiteId), CountWidth + 2) +
         PadLeft(FormatNumber(point.Site.X, CoordinateFormat), CoordinateWidth) +
         PadLeft(FormatNumber(point.Site.Y, CoordinateFormat), CoordinateWidth) +
         (point.Support ? "  support site" : "") + "\n";
}

std::string ScoreCell(const SelectionScores& scores, const SelectionSummary& summary,
                      const Combination& combination)
{
  constexpr std::size_t CellWidth = 9;
  const auto& score = ScoreOf(scores, combination);
  if (!score) {
    return PadLeft("", CellWidth + 1);
  }
  std::string mark = IsAcceptable(summary, score) ? "+" : " ";
  if (summary.Best == combination) {
    mark = "*";
  }
  return PadLeft(FormatNumber(*score, "0.000"), CellWidth) + mark;
}

/// Tables end their lines without trailing blanks.
std::string TrimRight(std::string line)
{
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

}  // namespace

void ProgressText::Step(std::string_view name, std::string_view text)
{
  if (out_ != nullptr) {
    ClearCounter();
    *out_ << PadRight(name, NameWidth) << text << "\n";
  }
}

void ProgressText::Counter(const std::string& text)
{
  if (terminal_) {
    *out_ << "\r" << PadRight(text, counterLength_) << std::flush;
    counterLength_ = text.size();
  }
}

void ProgressText::ClearCounter()
{
  if (counterLength_ > 0) {
    *out_ << "\r" << std::string(counterLength_, ' ') << "\r" << std::flush;
    counterLength_ = 0;
  }
}

void ProgressText::DesignTable(const SavedDesign& design)
{
  if (out_ == nullptr) {
    return;
  }
  *out_ << "  Point  Site ID               x               y\n";
  for (const DesignPoint& point : PointsOf(design.Made)) {
    *out_ << PointLine(point);
  }
}

void ProgressText::ScoreTable(const SelectionScores& scores)
{
  if (out_ == nullptr) {
    return;
  }
  constexpr double Hundredths = 100;
  const SelectionSummary summary = SummariseScores(scores);
  std::string heading = "          ";
  for (int f = 1; f <= DFactorCount; ++f) {
    heading += "   F= " + FormatNumber(DFactorOf(f) / Hundredths, "0.00");
  }
  *out_ << heading << "\n";
  for (int stratum = 1; stratum <= scores.pnum; ++stratum) {
    std::string line = "  Strata" + NumberToString(stratum);
    for (int f = 1; f <= DFactorCount; ++f) {
      line += ScoreCell(scores, summary, {stratum, f});
    }
    *out_ << TrimRight(line);
  }
  *out_ << "  (* best, + acceptable)\n";
}

void ProgressText::FileList(const std::vector<std::filesystem::path>& files)
{
  if (out_ == nullptr) {
    return;
  }
  ClearCounter();
  std::filesystem::path folder;
  for (const auto& file : files) {
    if (file.parent_path() != folder) {
      folder = file.parent_path();
      *out_ << PadRight("Files", NameWidth) << "in " << folder.string() << "\n";
    }
    *out_ << PadRight("", NameWidth) << file.filename().string() << "\n";
  }
}

}  // namespace veln
