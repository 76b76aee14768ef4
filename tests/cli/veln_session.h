#pragma once

#include "support/process.h"
#include "support/surveys.h"
#include "support/table.h"
#include "support/testing.h"

namespace veln {

/// The built program in an empty directory of its own, which is its program directory too.
class VelnSession {
 public:
  /// veln ARGUMENTS, as they stand.
  ProcessResult Veln(const std::vector<std::string>& arguments)
  {
    return RunProcess(VELN_PROGRAM, arguments, Root());
  }

  /// veln run survey.txt OPTIONS, with the survey's text in that file.
  ProcessResult Run(const std::string& survey, std::vector<std::string> options = {})
  {
    WriteText(Root() / "survey.txt", survey);
    options.insert(options.begin(), {"run", "survey.txt"});
    return Veln(options);
  }

  [[nodiscard]] std::filesystem::path Root() const { return std::filesystem::canonical(directory_.Path()); }
  /// An output file of the default project and field.
  [[nodiscard]] std::filesystem::path Output(const std::string& suffix) const
  {
    return Root() / "data/demo" / ("FLD1" + suffix);
  }
  /// The suffixes of the output files of the default project, in alphabetical order; other names as they are.
  [[nodiscard]] std::vector<std::string> Outputs() const
  {
    std::vector<std::string> names;
    for (const std::string& name : ListFiles(Root() / "data/demo")) {
      names.push_back(name.starts_with("FLD1") ? name.substr(4) : name);
    }
    return names;
  }

 private:
  TemporaryDirectory directory_;
};

/// A text of `count` lines; `line` gives each from its number, counted from 0.
inline std::string Lines(int count, const std::function<std::string(int)>& line)
{
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += line(i) + "\n";
  }
  return text;
}

/// x,y of a grid of ten columns, 10 m apart, and a signal from 20 to 69.
inline std::string GridLine(int i)
{
  return std::to_string(i % 10 * 10) + "," + std::to_string(i / 10 * 10) + "," +
         std::to_string(20 + i * 7 % 50);
}

/// Such a grid; `further` stands behind it on every line.
inline std::string GridText(int sites, const std::string& further = "")
{
  return Lines(sites, [&further](int i) { return GridLine(i) + further; });
}

/// A text with "ROOT" for a session's directory and without the lines of date and time.
inline std::string SteadyText(const std::string& text, const std::filesystem::path& root)
{
  std::string steady;
  for (std::string line : SplitLines(text)) {
    if (const std::size_t at = line.find(root.string()); at != std::string::npos) {
      line.replace(at, root.string().size(), "ROOT");
    }
    steady += line.starts_with("Date & Time:") ? "" : line + "\n";
  }
  return steady;
}

/// Ten rows of 62 sites with site numbers and two signals; sites 101 and 303 read far too high for any soil,
/// site 202 so high that it stands out once they are gone.
inline RawSurvey SpoiltTransect()
{
  RawSurvey survey = TransectSurvey(10, 62, 2, 7);
  survey.Signal1[100] = 1E9;
  survey.Signal1[302] = 9E8;
  survey.Signal1[201] = 500;
  return survey;
}

}  // namespace veln
