#pragma once

#include "cli/run_record.h"
#include "workspace/survey_state.h"

#include <iosfwd>
#include <string>
#include <string_view>

namespace veln {

/// The progress text of a run: one aligned line a step, tables for long lists. Counters that update in place
/// show on a terminal alone; elsewhere the text has no control characters.
class ProgressText {
 public:
  /// Prints nothing when `out` is null.
  ProgressText(std::ostream* out, bool terminal) : out_(out), terminal_(terminal && out != nullptr) {}
  ProgressText(const ProgressText&) = delete;
  ProgressText& operator=(const ProgressText&) = delete;
  /// A step that is refused leaves no counter on the line of its message.
  ~ProgressText() { ClearCounter(); }

  /// One step: its name and what it did.
  void Step(std::string_view name, std::string_view text);
  /// A counter that takes the place of the one before, on a terminal alone.
  void Counter(const std::string& text);
  void ClearCounter();
  /// The chosen sites of a design, with their coordinates.
  void DesignTable(const SavedDesign& design);
  /// The scores of an automatic selection: the best one marked with "*", acceptable ones with "+".
  void ScoreTable(const SelectionScores& scores);
  /// The files written, under the folder that holds them.
  void FileList(const std::vector<std::filesystem::path>& files);

 private:
  std::ostream* out_;
  bool terminal_;
  std::size_t counterLength_ = 0;
};

}  // namespace veln
