#pragma once

#include "support/process.h"
#include "support/surveys.h"
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

inline std::string GridText(int sites)
{
  return Lines(sites, GridLine);
}

/// The lines of a text, whatever ends them.
inline std::vector<std::string> SplitLines(const std::string& text)
{
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) {
      line.pop_back();
    }
    lines.push_back(line);
  }
  return lines;
}

/// A text without the lines that differ from run to run: paths, date and time.
inline std::string SteadyText(const std::string& text, const std::filesystem::path& root)
{
  std::string steady;
  for (const std::string& line : SplitLines(text)) {
    if (line.find(root.string()) == std::string::npos && !line.starts_with("Date & Time:")) {
      steady += line + "\n";
    }
  }
  return steady;
}

/// Ten rows of 62 sites with site numbers and two signals; site 101 reads far too high for any soil, site 202
/// so high that it stands out once the first is gone.
inline RawSurvey SpoiltTransect()
{
  RawSurvey survey = TransectSurvey(10, 62, 2, 7);
  survey.Signal1[100] = 1E9;
  survey.Signal1[201] = 500;
  return survey;
}

/// A run that leaves no step out, on the survey above.
inline std::vector<std::string> EveryStep()
{
  std::vector<std::string> options = {"--site-id", "--s2", "--log", "--transition", "--transition-file"};
  const std::vector<std::pair<const char*, const char*>> values = {
      {"--type", "transect"},
      {"--convert-units", "dS/m"},
      {"--translate", "rotate=30"},
      {"--translate", "swap"},
      {"--delete-outliers", "2"},
      {"--edge-buffer", "rows"},
      {"--manual", "130,77,400"},
      {"--ads", "limited"},
      {"--design", "12"},
      {"--design", "20,d=0.85"},
      {"--design", "12,stratum=2,no-support"},
      {"--design", "5,d=1.15"},
      {"--design", "6,stratum=3,d=1.05,ignore-ta"},
      {"--description", "Süd, \"oben\""}};
  for (const auto& [option, value] : values) {
    options.insert(options.end(), {option, value});
  }
  return options;
}

}  // namespace veln
