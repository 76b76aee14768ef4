#include "logger/table_columns.h"

#include "logger/field_split.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace veln {

namespace {

std::string Lower(std::string_view text)
{
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

std::string Counted(std::size_t number)
{
  return GeneralForm(static_cast<double>(number));
}

std::optional<std::size_t> ColumnNumber(const std::string& text)
{
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// The columns for which `fits` holds, by index.
template <class Fits>
std::vector<std::size_t> ColumnsThat(const std::vector<TableColumn>& columns, Fits fits)
{
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (fits(columns[i])) {
      found.push_back(i);
    }
  }
  return found;
}

[[noreturn]] void RefuseColumn(const std::vector<TableColumn>& columns,
                               const std::vector<std::size_t>& fitting, const std::string& what,
                               const std::string& file)
{
  std::vector<TableColumn> listed;
  for (const std::size_t i : fitting) {
    listed.push_back(columns[i]);
    const std::string number = "column " + Counted(i + 1);
    const bool named = fitting.size() < columns.size() && columns[i].Name != number;
    listed.back().Name += named ? " (" + number + ")" : "";
  }
  throw Refusal(file + ": " + what + (fitting.size() == columns.size() ? " Its columns: " : " These fit: ") +
                QuotedNames(listed) + ".");
}

/// Lower-case words of a name; digits and signs divide them.
std::vector<std::string> WordsOf(std::string_view name)
{
  std::vector<std::string> words(1);
  for (const char c : Lower(name)) {
    if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
      words.back() += c;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  std::erase(words, "");
  return words;
}

std::string Squeezed(std::string_view name)
{
  std::string letters;
  for (const std::string& word : WordsOf(name)) {
    letters += word;
  }
  return letters;
}

}  // namespace

std::string QuotedNames(const std::vector<TableColumn>& columns)
{
  std::string text;
  for (const TableColumn& column : columns) {
    text += (text.empty() ? "\"" : ", \"") + column.Name + "\"";
  }
  return text;
}

TableColumn ReadHeaderCell(const std::string& cell, std::size_t index)
{
  TableColumn column;
  std::string_view name = TrimField(cell);
  if (name.ends_with(']') || name.ends_with(')')) {
    const std::size_t open = name.rfind(name.back() == ']' ? '[' : '(');
    if (open != std::string_view::npos && open > 0) {
      column.Unit = std::string(TrimField(name.substr(open + 1, name.size() - open - 2)));
      name = TrimField(name.substr(0, open));
    }
  }
  column.Name = name.empty() ? "column " + Counted(index + 1) : std::string(name);
  return column;
}

std::size_t FindColumn(const std::vector<TableColumn>& columns, const std::string& text,
                       const std::string& option, const std::string& file)
{
  const std::string wanted = Lower(ReadHeaderCell(text, 0).Name);
  auto found = ColumnsThat(columns, [&](const TableColumn& column) { return Lower(column.Name) == wanted; });
  const std::string told = option + " \"" + text + "\" ";
  if (found.size() > 1) {
    RefuseColumn(columns, found, told + "is the name of several columns; name one by its number.", file);
  }
  if (found.size() == 1) {
    return found.front();
  }
  if (const auto number = ColumnNumber(text)) {
    if (*number < 1 || *number > columns.size()) {
      RefuseColumn(columns, ColumnsThat(columns, [](const auto&) { return true; }),
                   told + "is no column: there are " + Counted(columns.size()) + ".", file);
    }
    return *number - 1;
  }
  found = ColumnsThat(columns, [&](const TableColumn& column) {
    return !wanted.empty() && Lower(column.Name).starts_with(wanted);
  });
  if (found.size() == 1) {
    return found.front();
  }
  if (found.empty()) {
    RefuseColumn(columns, ColumnsThat(columns, [](const auto&) { return true; }),
                 told + "is no column of it.", file);
  }
  RefuseColumn(columns, found, told + "is the beginning of several columns; tell more of the name.", file);
}

namespace {

// What columns are called, their letters alone.
constexpr std::array<std::string_view, 12> LatitudeNames = {
    "latitude", "lat",   "latitud", "breite", "breitengrad", "gpslatitude",
    "gpslat",   "latdd", "latdeg",  "latwgs", "latitudedeg", "latitudedd"};
constexpr std::array<std::string_view, 14> LongitudeNames = {
    "longitude", "lon",     "long",  "lng",    "longitud", "laenge",       "gpslongitude",
    "gpslon",    "gpslong", "londd", "londeg", "lonwgs",   "longitudedeg", "longitudedd"};
constexpr std::array<std::string_view, 15> EastingNames = {
    "x",    "easting", "east",       "e",    "eastings",   "xcoord", "xcord", "coordx",
    "utmx", "utme",    "utmeasting", "xutm", "rechtswert", "xm",     "pointx"};
constexpr std::array<std::string_view, 15> NorthingNames = {
    "y",    "northing", "north",       "n",    "northings", "ycoord", "ycord", "coordy",
    "utmy", "utmn",     "utmnorthing", "yutm", "hochwert",  "ym",     "pointy"};
constexpr std::array<std::string_view, 13> TimeNames = {
    "time",    "timestamp", "utc",        "utctime",     "gpstime", "datetime",  "localtime",
    "timeutc", "gpsutc",    "gpsutctime", "dateandtime", "zeit",    "systemtime"};
constexpr std::array<std::string_view, 7> DateNames = {"date",    "datestamp", "gpsdate", "utcdate",
                                                       "dateutc", "localdate", "datum"};

/// The column with one of these names, else the first whose name begins with `beginning`.
template <std::size_t Size>
std::optional<std::size_t> KnownColumn(const std::vector<TableColumn>& columns,
                                       const std::array<std::string_view, Size>& names,
                                       std::string_view beginning)
{
  for (const std::string_view name : names) {
    const auto found =
        ColumnsThat(columns, [name](const auto& column) { return Squeezed(column.Name) == name; });
    if (!found.empty()) {
      return found.front();
    }
  }
  const auto found = ColumnsThat(
      columns, [beginning](const auto& column) { return Squeezed(column.Name).starts_with(beginning); });
  return found.empty() ? std::nullopt : std::optional(found.front());
}

bool HasWord(const std::vector<std::string>& words, std::initializer_list<std::string_view> wanted)
{
  return std::ranges::any_of(words, [&wanted](const std::string& word) {
    return std::ranges::find(wanted, std::string_view(word)) != wanted.end();
  });
}

/// Whether a column holds conductivities as measured: neither in-phase values nor results of an inversion.
bool IsConductivity(const TableColumn& column)
{
  const auto words = WordsOf(column.Name);
  const std::string unit = Squeezed(column.Unit);
  const bool inverted =
      std::ranges::any_of(words, [](const std::string& word) { return word.starts_with("inv"); });
  const bool other =
      HasWord(words, {"inph", "inphase", "ip", "phase", "ratio", "temp", "error", "std", "sd", "rms"});
  if (!column.Numeric || inverted || other || unit == "ppt" || unit == "ppm") {
    return false;
  }
  return unit == "msm" || unit == "dsm" ||
         HasWord(words, {"cond", "conductivity", "eca", "ec", "econd", "emv", "emh", "hcp", "prp", "vcp",
                         "hcpc", "prpc", "quad"});
}

/// Share of the sample for which `fits` holds is more than a half.
template <class Fits>
bool MostOf(const std::vector<std::string>& sample, Fits fits)
{
  std::size_t filled = 0;
  std::size_t fitting = 0;
  for (const std::string& text : sample) {
    filled += text.empty() ? 0 : 1;
    fitting += !text.empty() && fits(text) ? 1 : 0;
  }
  return fitting * 2 > filled;
}

/// Without a known name: the column whose values carry the hemisphere letters of an axis.
std::optional<std::size_t> ColumnByLetters(const std::vector<TableColumn>& columns, std::string_view letters)
{
  const auto found = ColumnsThat(columns, [letters](const TableColumn& column) {
    return MostOf(column.Sample, [letters](const std::string& text) {
      const AngleAxis axis = letters == "NS" ? AngleAxis::Latitude : AngleAxis::Longitude;
      const char last = static_cast<char>(std::toupper(static_cast<unsigned char>(text.back())));
      return letters.find(last) != std::string_view::npos && ParseAngle(text, axis, AngleForm::Degrees);
    });
  });
  return found.empty() ? std::nullopt : std::optional(found.front());
}

/// The style in which a column tells the time, by its first values.
ClockStyle StyleOf(const TableColumn& column)
{
  constexpr double LeastMilliseconds = 1E11;  // as seconds, the year 5138
  const auto reads = [&column](ClockStyle style) {
    return MostOf(column.Sample,
                  [style](const std::string& text) { return ParseClock(text, style).has_value(); });
  };
  if (reads(ClockStyle::TimeOfDay)) {
    return ClockStyle::TimeOfDay;
  }
  const bool sixDigits = MostOf(
      column.Sample, [](const std::string& text) { return std::min(text.find('.'), text.size()) == 6; });
  if (sixDigits && reads(ClockStyle::PackedClock)) {
    return ClockStyle::PackedClock;
  }
  if (!reads(ClockStyle::Seconds)) {
    return ClockStyle::None;
  }
  const bool large = MostOf(column.Sample, [](const std::string& text) {
    return ParseNumber(text).value_or(0) > LeastMilliseconds;
  });
  return large || column.Unit == "ms" ? ClockStyle::Milliseconds : ClockStyle::Seconds;
}

/// Whether the first values of x and y can only be degrees: within their range, and of a field that would
/// else fit in a room.
bool HoldDegrees(const TableColumn& x, const TableColumn& y)
{
  constexpr double LargestField = 0.5;
  const auto fits = [](const TableColumn& column, AngleAxis axis) {
    double low = 0;
    double high = 0;
    std::size_t count = 0;
    for (const std::string& text : column.Sample) {
      if (const auto number = ParseNumber(text)) {
        low = count == 0 ? *number : std::min(low, *number);
        high = count == 0 ? *number : std::max(high, *number);
        ++count;
      }
    }
    return count > 1 && IsInRange(low, axis) && IsInRange(high, axis) && high - low < LargestField &&
           low != 0;
  };
  return fits(x, AngleAxis::Longitude) && fits(y, AngleAxis::Latitude);
}

/// Gives the roles of one file.
class RoleChooser {
 public:
  RoleChooser(const std::vector<TableColumn>& columns, const ColumnChoices& choices, const std::string& file,
              std::vector<std::string>& notes)
      : columns_(columns), choices_(choices), file_(file), notes_(notes)
  {
  }

  ColumnRoles Choose()
  {
    ChoosePosition();
    ChooseSignals();
    roles_.Row = Told(choices_.Row, "--row");
    roles_.Id = Told(choices_.Id, "--id");
    ChooseTime();
    return roles_;
  }

 private:
  std::optional<std::size_t> Told(const std::optional<std::string>& text, const char* option) const
  {
    const std::string source = choices_.Profile.empty() ? "" : "profile \"" + choices_.Profile + "\", ";
    return text ? std::optional(FindColumn(columns_, *text, source + option, file_)) : std::nullopt;
  }

  struct PositionColumns {
    std::optional<std::size_t> Lat, Lon, X, Y;
  };

  /// The columns told, and beside them those that are known by their names or by the letters they hold.
  [[nodiscard]] PositionColumns KnownBeside(PositionColumns found, bool geographic, bool plane) const
  {
    const auto fill = [](std::optional<std::size_t>& column, const std::optional<std::size_t>& known) {
      column = column ? column : known;
    };
    if (geographic) {
      fill(found.Lat, KnownColumn(columns_, LatitudeNames, "latitude"));
      fill(found.Lon, KnownColumn(columns_, LongitudeNames, "longitude"));
      fill(found.Lat, ColumnByLetters(columns_, "NS"));
      fill(found.Lon, ColumnByLetters(columns_, "EW"));
    }
    if (plane) {
      fill(found.X, KnownColumn(columns_, EastingNames, "easting"));
      fill(found.Y, KnownColumn(columns_, NorthingNames, "northing"));
    }
    return found;
  }

  void ChoosePosition()
  {
    const PositionColumns told = {Told(choices_.Lat, "--lat"), Told(choices_.Lon, "--lon"),
                                  Told(choices_.X, "--x"), Told(choices_.Y, "--y")};
    const bool planeTold = told.X || told.Y;
    const bool geographicTold = told.Lat || told.Lon;
    const auto [lat, lon, x, y] = KnownBeside(told, !planeTold, !geographicTold);
    if (lat && lon) {
      TakeGeographic(*lat, *lon);
      if (x && y && !geographicTold) {
        notes_.push_back(file_ + " has both: latitude and longitude are taken, " +
                         QuotedNames({columns_[*x]}) + " and " + QuotedNames({columns_[*y]}) +
                         " are not (--x, --y to take them).");
      }
    } else if (x && y && !planeTold && HoldDegrees(columns_[*x], columns_[*y])) {
      TakeGeographic(*y, *x);
      notes_.push_back(
          file_ + ": " + QuotedNames({columns_[*x], columns_[*y]}) +
          " hold degrees; they are taken as longitude and latitude (--x, --y take them as metres).");
    } else if (x && y) {
      roles_.First = *x;
      roles_.Second = *y;
    } else {
      RefuseColumn(
          columns_, ColumnsThat(columns_, [](const auto&) { return true; }),
          "the columns of the positions are not known by their names; tell --lat and --lon, or --x and "
          "--y, by name or number.",
          file_);
    }
  }

  void TakeGeographic(std::size_t lat, std::size_t lon)
  {
    roles_.Geographic = true;
    roles_.First = lat;
    roles_.Second = lon;
    const auto packed = [](const TableColumn& column, AngleAxis axis) {
      return MostOf(column.Sample, [axis](const std::string& text) { return IsPackedMinutes(text, axis); });
    };
    if (packed(columns_[lat], AngleAxis::Latitude) || packed(columns_[lon], AngleAxis::Longitude)) {
      roles_.Angles = AngleForm::PackedMinutes;
    }
  }

  void ChooseSignals()
  {
    if (const auto s1 = Told(choices_.S1, "--s1")) {
      AddSignal(*s1);
      if (const auto s2 = Told(choices_.S2, "--s2")) {
        AddSignal(*s2);
      }
      return;
    }
    const auto found = ColumnsThat(columns_, IsConductivity);
    if (found.empty()) {
      const auto numeric = ColumnsThat(columns_, [](const TableColumn& column) { return column.Numeric; });
      RefuseColumn(
          columns_, numeric,
          "no column is known as a conductivity by its name or unit; tell --s1 (and --s2), by name or "
          "number.",
          file_);
    }
    for (std::size_t i = 0; i < found.size() && i < roles_.Signals.size(); ++i) {
      AddSignal(found[i]);
    }
    if (found.size() > 1) {
      const std::string which = found.size() == 2 ? "the two" : "the first two of " + Counted(found.size());
      notes_.push_back("Signals are " + which + " conductivities: " +
                       QuotedNames({columns_[found[0]], columns_[found[1]]}) + " (--s1, --s2 choose).");
    }
  }

  void AddSignal(std::size_t column) { roles_.Signals.at(roles_.SignalCount++) = column; }

  void ChooseTime()
  {
    roles_.Date = KnownColumn(columns_, DateNames, "date");
    if (const auto told = Told(choices_.Time, "--time")) {
      roles_.Time = told;
    } else {
      for (const std::string_view name : TimeNames) {
        const auto named =
            ColumnsThat(columns_, [name](const auto& column) { return Squeezed(column.Name) == name; });
        for (const std::size_t i : named) {
          const ClockStyle style = StyleOf(columns_[i]);
          const bool better =
              !roles_.Time || (style == ClockStyle::TimeOfDay && StyleOf(columns_[*roles_.Time]) != style);
          roles_.Time = style != ClockStyle::None && better ? i : roles_.Time;
        }
      }
    }
    if (!roles_.Time) {
      auto clocks = ColumnsThat(
          columns_, [](const TableColumn& column) { return StyleOf(column) == ClockStyle::TimeOfDay; });
      std::erase_if(clocks, [this](std::size_t i) { return i == roles_.First || i == roles_.Second; });
      roles_.Time = clocks.empty() ? std::nullopt : std::optional(clocks.front());
    }
    roles_.Clock = roles_.Time ? StyleOf(columns_[*roles_.Time]) : ClockStyle::None;
    if (choices_.Time && roles_.Time && roles_.Clock == ClockStyle::None &&
        !columns_[*roles_.Time].Sample.empty()) {
      throw Refusal(file_ + ": --time \"" + *choices_.Time + "\" is a column without times.");
    }
    const bool dated = roles_.Date && MostOf(columns_[*roles_.Date].Sample, [](const std::string& text) {
                         return ParseDate(text).has_value();
                       });
    const bool daily = roles_.Clock == ClockStyle::TimeOfDay || roles_.Clock == ClockStyle::PackedClock;
    roles_.Date = dated && daily && roles_.Date != roles_.Time ? roles_.Date : std::nullopt;
  }

  const std::vector<TableColumn>& columns_;
  const ColumnChoices& choices_;
  const std::string& file_;
  std::vector<std::string>& notes_;
  ColumnRoles roles_;
};

}  // namespace

ColumnRoles AssignColumns(const std::vector<TableColumn>& columns, const ColumnChoices& choices,
                          const std::string& file, std::vector<std::string>& notes)
{
  return RoleChooser(columns, choices, file, notes).Choose();
}

}  // namespace veln
