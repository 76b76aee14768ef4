#include "logger/option_rules.h"

#include "logger/field_split.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace veln {

namespace {

using Options = ConversionOptions;
using Text = std::optional<std::string>;

/// A choice among words: the word and what it stands for.
template <class Value>
using Word = std::pair<const char*, Value>;

template <class Target, class Value, std::size_t Count>
bool TakeWord(Target& target, const std::string& text, const std::array<Word<Value>, Count>& words)
{
  const auto found = std::ranges::find_if(words, [&text](const auto& word) { return word.first == text; });
  if (found == words.end()) {
    return false;
  }
  target = found->second;
  return true;
}

template <class Value, std::size_t Count>
Text WordOf(const Value& value, const std::array<Word<Value>, Count>& words)
{
  const auto found = std::ranges::find_if(words, [&value](const auto& word) { return word.second == value; });
  return found == words.end() ? Text() : Text(found->first);
}

template <class Value, std::size_t Count>
Text WordOf(const std::optional<Value>& value, const std::array<Word<Value>, Count>& words)
{
  return value ? WordOf(*value, words) : std::nullopt;
}

bool TakeNumber(double& target, const std::string& text, double least, double most)
{
  const auto number = ParseNumber(text);
  const bool sound = number && *number >= least && *number <= most;
  target = sound ? *number : target;
  return sound;
}

template <class Whole>
bool TakeWhole(Whole& target, const std::string& text, Whole least, Whole most)
{
  Whole number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool sound =
      error == std::errc() && end == text.data() + text.size() && number >= least && number <= most;
  target = sound ? number : target;
  return sound;
}

Text NumberUnless(double value, double standard)
{
  return value == standard ? Text() : Text(ShortestForm(value));
}

bool TakeColumn(Text& target, const std::string& text)
{
  target = text;
  return !text.empty();
}

constexpr double MostMetres = 1E6;
constexpr double MostSeconds = 3600;

constexpr std::array<Word<char>, 8> Separators = {{{"tab", '\t'},
                                                   {"semicolon", ';'},
                                                   {"comma", ','},
                                                   {"blank", BlankRuns},
                                                   {";", ';'},
                                                   {",", ','},
                                                   {" ", BlankRuns},
                                                   {"\t", '\t'}}};
constexpr std::array<Word<bool>, 2> Decimals = {{{"comma", true}, {"point", false}}};
constexpr std::array<Word<bool>, 2> Encodings = {{{"latin-1", true}, {"utf-8", false}}};
constexpr std::array<Word<bool>, 2> YesNo = {{{"yes", true}, {"no", false}}};
constexpr std::array<Word<bool>, 2> LineEnds = {{{"cr", true}, {"lf", false}}};
constexpr std::array<Word<DateOrder>, 3> DateOrders = {
    {{"dmy", DateOrder::DayFirst}, {"mdy", DateOrder::MonthFirst}, {"ymd", DateOrder::YearFirst}}};
constexpr std::array<Word<NonPositive>, 3> NonPositives = {
    {{"keep", NonPositive::Keep}, {"drop", NonPositive::Drop}, {"refuse", NonPositive::Refuse}}};
constexpr std::array<Word<Repeats>, 3> RepeatWords = {
    {{"mean", Repeats::Mean}, {"first", Repeats::First}, {"all", Repeats::All}}};
constexpr std::array<Word<bool>, 2> TurnWords = {{{"keep", true}, {"drop", false}}};

bool ReadHeaderLine(Options& o, const std::string& text)
{
  constexpr std::size_t MostLines = 400;
  std::size_t line = 0;
  if (text != "none" && !TakeWhole<std::size_t>(line, text, 1, MostLines)) {
    return false;
  }
  o.Reading.Form.HeaderLine = line;
  return true;
}

bool ReadSkip(Options& o, const std::string& text)
{
  constexpr std::size_t MostLines = 400;
  std::size_t lines = 0;
  const bool sound = TakeWhole<std::size_t>(lines, text, 0, MostLines);
  o.Reading.Form.SkippedLines = lines;
  return sound;
}

bool ReadRows(Options& o, const std::string& text)
{
  if (text == "auto" || text == "none") {
    o.Rows.From = text == "auto" ? RowsFrom::Track : RowsFrom::None;
    return true;
  }
  o.Rows.From = RowsFrom::Column;
  return TakeColumn(o.Reading.Columns.Row, text);
}

Text WriteRows(const Options& o)
{
  if (o.Rows.From == RowsFrom::Track) {
    return {};
  }
  return o.Rows.From == RowsFrom::None ? Text("none") : o.Reading.Columns.Row;
}

bool ReadOffset(Options& o, const std::string& text)
{
  const std::size_t comma = std::min(text.find(','), text.size());
  AntennaOffset offset;
  const bool sound = comma < text.size() && TakeNumber(offset.Forward, text.substr(0, comma), -1000, 1000) &&
                     TakeNumber(offset.Right, text.substr(comma + 1), -1000, 1000);
  o.Offset = offset;
  return sound;
}

bool ReadMedian(Options& o, const std::string& text)
{
  return TakeWhole(o.MedianSites, text, 3, 99) && o.MedianSites % 2 == 1;
}

bool ReadCrs(Options& o, const std::string& text)
{
  o.Crs = ReadCoordinateSystem(text);
  return o.Crs.has_value();
}

bool ReadJump(Options& o, const std::string& text)
{
  double metres = 0;
  const bool sound = TakeNumber(metres, text, 0, MostMetres);
  o.JumpMetres = metres;
  return sound;
}

std::vector<OptionRule> FormRules()
{
  return {
      {"separator", "tab|semicolon|comma|blank", "What divides columns", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Form.Separator, t, Separators); },
       [](const Options& o) { return WordOf(o.Reading.Form.Separator, Separators); }},
      {"header", "LINE|none", "The line of column names, from 1; those before it are no data", true,
       ReadHeaderLine,
       [](const Options& o) {
         const auto& line = o.Reading.Form.HeaderLine;
         return !line ? Text() : Text(*line == 0 ? "none" : GeneralForm(static_cast<double>(*line)));
       }},
      {"skip", "N", "So many lines at the beginning are no data", true, ReadSkip,
       [](const Options& o) {
         const auto& lines = o.Reading.Form.SkippedLines;
         return lines ? Text(GeneralForm(static_cast<double>(*lines))) : Text();
       }},
      {"decimal", "point|comma", "The decimal sign", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Form.DecimalComma, t, Decimals); },
       [](const Options& o) { return WordOf(o.Reading.Form.DecimalComma, Decimals); }},
      {"encoding", "utf-8|latin-1", "How letters are written", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Form.Latin1, t, Encodings); },
       [](const Options& o) { return WordOf(o.Reading.Form.Latin1, Encodings); }},
      {"quotes", "yes|no", "Whether double quotes hold a field together (default: yes)", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Form.Quotes, t, YesNo); },
       [](const Options& o) { return WordOf(o.Reading.Form.Quotes, YesNo); }},
      {"line-end", "lf|cr", "What ends a line; lf stands for CR LF too", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Form.CarriageReturns, t, LineEnds); },
       [](const Options& o) { return WordOf(o.Reading.Form.CarriageReturns, LineEnds); }},
      {"comment", "SIGNS", "Beginnings of comment lines, apart by blanks (default: \"# % // !\")", true,
       [](Options& o, const std::string& t) {
         o.Reading.Form.Comments = t;
         return true;
       },
       [](const Options& o) { return o.Reading.Form.Comments; }},
  };
}

/// A column told by name or number.
template <Text ColumnChoices::* Column>
OptionRule ColumnRule(const char* name, const char* help)
{
  return {name,
          "COLUMN",
          help,
          true,
          [](Options& o, const std::string& t) { return TakeColumn(o.Reading.Columns.*Column, t); },
          [](const Options& o) { return o.Reading.Columns.*Column; }};
}

bool ReadRowColumn(Options& o, const std::string& text)
{
  o.Rows.From = RowsFrom::Column;
  return TakeColumn(o.Reading.Columns.Row, text);
}

std::vector<OptionRule> ColumnRules()
{
  return {
      ColumnRule<&ColumnChoices::X>("x", "Easting in metres: header name, its beginning, or column number"),
      ColumnRule<&ColumnChoices::Y>("y", "Northing in metres"),
      ColumnRule<&ColumnChoices::Lat>("lat", "Latitude, in any usual form"),
      ColumnRule<&ColumnChoices::Lon>("lon", "Longitude"),
      ColumnRule<&ColumnChoices::S1>("s1", "First signal (default: the first two conductivities)"),
      ColumnRule<&ColumnChoices::S2>("s2", "Second signal"),
      {"row", "COLUMN", "Row names or numbers; the same as --rows COLUMN", true, ReadRowColumn,
       [](const Options&) { return Text(); }},
      ColumnRule<&ColumnChoices::Time>("time", "Time"),
      ColumnRule<&ColumnChoices::Id>("id", "A column to copy to the sources file"),
      {"dates", "dmy|mdy|ymd", "Order of day, month and year", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Reading.Dates, t, DateOrders); },
       [](const Options& o) { return WordOf(o.Reading.Dates, DateOrders); }},
      {"every", "N", "Take every N-th reading only", false,
       [](Options& o, const std::string& t) {
         return TakeWhole<std::size_t>(o.Reading.Every, t, 1, 1'000'000'000);
       },
       [](const Options& o) { return NumberUnless(static_cast<double>(o.Reading.Every), 1); }},
      {"crs", "SYSTEM", "utm:31N, epsg:32631, tm:lon0=9,lat0=0,k0=0.9996,fe=500000,fn=0 or local", false,
       ReadCrs, [](const Options& o) { return o.Crs ? Text(TextOf(*o.Crs)) : Text(); }},
  };
}

std::vector<OptionRule> CleaningRules()
{
  return {
      {"jump", "METRES", "Drop up to 5 fixes farther away than this (default: 10, or 5 median steps; 0: off)",
       true, ReadJump,
       [](const Options& o) { return o.JumpMetres ? Text(ShortestForm(*o.JumpMetres)) : Text(); }},
      {"lag", "SECONDS", "Readings belong to where the sensor was so long before", true,
       [](Options& o, const std::string& t) {
         return TakeNumber(o.LagSeconds, t, -MostSeconds, MostSeconds);
       },
       [](const Options& o) { return NumberUnless(o.LagSeconds, 0); }},
      {"offset", "FORWARD,RIGHT", "Metres from the antenna to the sensor", true, ReadOffset,
       [](const Options& o) {
         return o.Offset ? Text(ShortestForm(o.Offset->Forward) + "," + ShortestForm(o.Offset->Right))
                         : Text();
       }},
      {"inset", "METRES", "Drop sites nearer to the boundary than this, too", false,
       [](Options& o, const std::string& t) { return TakeNumber(o.InsetMetres, t, 0, MostMetres); },
       [](const Options& o) { return NumberUnless(o.InsetMetres, 0); }},
      {"nonpositive", "keep|drop|refuse", "Readings of 0 or less (default: keep)", true,
       [](Options& o, const std::string& t) { return TakeWord(o.NonPositives, t, NonPositives); },
       [](const Options& o) {
         return o.NonPositives == NonPositive::Keep ? Text() : WordOf(o.NonPositives, NonPositives);
       }},
      {"still", "METRES", "Readings nearer than this to a site's first one join it (default: 0.20)", true,
       [](Options& o, const std::string& t) { return TakeNumber(o.StillMetres, t, 0, MostMetres); },
       [](const Options& o) { return NumberUnless(o.StillMetres, Options().StillMetres); }},
      {"repeats", "mean|first|all", "What becomes of readings at one place (default: mean)", true,
       [](Options& o, const std::string& t) { return TakeWord(o.RepeatsAs, t, RepeatWords); },
       [](const Options& o) {
         return o.RepeatsAs == Repeats::Mean ? Text() : WordOf(o.RepeatsAs, RepeatWords);
       }},
      {"median", "N", "Running median of the signals over N sites, odd, 3 to 99", true, ReadMedian,
       [](const Options& o) { return NumberUnless(o.MedianSites, 0); }},
  };
}

std::vector<OptionRule> RowRules()
{
  return {
      {"rows", "auto|none|COLUMN", "Rows from the track, none, or a column (default: auto)", true, ReadRows,
       WriteRows},
      {"turns", "drop|keep", "Sites of turns on a survey with rows (default: drop)", true,
       [](Options& o, const std::string& t) { return TakeWord(o.Rows.KeepTurns, t, TurnWords); },
       [](const Options& o) { return WordOf(o.Rows.KeepTurns, TurnWords); }},
      {"row-turn", "DEGREES", "Headings that differ by more make a turn (default: 30)", true,
       [](Options& o, const std::string& t) { return TakeNumber(o.Rows.TurnDegrees, t, 1, 179); },
       [](const Options& o) { return NumberUnless(o.Rows.TurnDegrees, RowChoices().TurnDegrees); }},
      {"row-chord", "METRES", "Track from which a heading is taken (default: 5)", true,
       [](Options& o, const std::string& t) { return TakeNumber(o.Rows.ChordMetres, t, 0.1, MostMetres); },
       [](const Options& o) { return NumberUnless(o.Rows.ChordMetres, RowChoices().ChordMetres); }},
      {"row-min", "METRES", "The shortest row (default: 15)", true,
       [](Options& o, const std::string& t) { return TakeNumber(o.Rows.LeastMetres, t, 0, MostMetres); },
       [](const Options& o) { return NumberUnless(o.Rows.LeastMetres, RowChoices().LeastMetres); }},
      {"thin", "METRES", "Join the readings of each such piece of path to their mean", false,
       [](Options& o, const std::string& t) { return TakeNumber(o.ThinMetres, t, 0, MostMetres); },
       [](const Options& o) { return NumberUnless(o.ThinMetres, 0); }},
  };
}

}  // namespace

const std::vector<OptionRule>& OptionRules()
{
  static const std::vector<OptionRule> Rules = [] {
    std::vector<OptionRule> all = FormRules();
    for (const auto& more : {ColumnRules(), CleaningRules(), RowRules()}) {
      all.insert(all.end(), more.begin(), more.end());
    }
    return all;
  }();
  return Rules;
}

void ReadOption(ConversionOptions& options, const std::string& name, const std::string& text)
{
  const auto& rules = OptionRules();
  const auto rule = std::ranges::find_if(rules, [&name](const OptionRule& one) { return name == one.Name; });
  if (rule == rules.end()) {
    throw Refusal("\"" + name + "\" is not an option of a conversion.", RefusalKind::Usage);
  }
  if (!rule->Read(options, text)) {
    throw Refusal("--" + name + ": \"" + text + "\" is not " + rule->Value + ".", RefusalKind::Usage);
  }
}

void RequireConsistent(const ConversionOptions& options)
{
  const ColumnChoices& columns = options.Reading.Columns;
  const auto refuse = [](const char* text) { throw Refusal(text, RefusalKind::Usage); };
  if ((columns.X || columns.Y) && (columns.Lat || columns.Lon)) {
    refuse("--x and --y name plane coordinates, --lat and --lon geographic ones: tell one pair.");
  }
  if (columns.S2 && !columns.S1) {
    refuse("--s2 names a second signal; --s1 has to name the first.");
  }
  if (columns.Row && options.Rows.From != RowsFrom::Column) {
    refuse("--row names a column of rows, --rows tells otherwise: tell one of them.");
  }
  if (options.InsetMetres > 0 && options.Boundaries.empty()) {
    refuse("--inset needs a --boundary.");
  }
}

}  // namespace veln
