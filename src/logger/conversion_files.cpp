#include "logger/conversion_files.h"

#include "geodesy/transverse_mercator.h"
#include "logger/coil_records.h"
#include "logger/field_split.h"
#include "logger/input_file.h"
#include "logger/survey_sidecar.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/sha256.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

/// A cell of a comma-separated file.
std::string Cell(std::string_view text)
{
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    return std::string(text);
  }
  std::string cell = "\"";
  for (const char c : text) {
    cell += c == '"' ? "\"\"" : std::string(1, c);
  }
  return cell + "\"";
}

std::string Whole(std::size_t number)
{
  return GeneralForm(static_cast<double>(number));
}

std::string TimeText(const FileAccount& file, double time)
{
  constexpr double SecondsPerDay = 86'400;
  if (std::isnan(time)) {
    return "";
  }
  if (file.HasDates) {
    const double day = std::floor(time / SecondsPerDay);
    return DateText(static_cast<int>(day)) + "T" + ClockText(time - day * SecondsPerDay);
  }
  const ClockStyle style = file.Form.Roles.Clock;
  const bool daily = file.Form.Records || style == ClockStyle::TimeOfDay || style == ClockStyle::PackedClock;
  return daily ? ClockText(time) : ShortestForm(time);
}

/// Readings between a site's first and last that went into it.
std::size_t ReadingsOf(const Readings& source, const TrackPoint& site)
{
  std::size_t count = 0;
  for (std::size_t i = site.First; i <= site.Last; ++i) {
    count += IsDropped(source.Fates[i]) ? 0 : 1;
  }
  return count;
}

/// The dropped readings of one file, in the order of its lines.
class DroppedLines {
 public:
  DroppedLines(const Readings& source, const FileAccount& file)
      : source_(source), next_(file.FirstReading), end_(file.FirstReading + file.ReadingCount)
  {
  }

  /// The fate of a line if it was dropped; lines are asked for in rising order.
  std::optional<Fate> At(std::size_t line)
  {
    while (next_ < end_ && source_.Lines[next_] < line) {
      ++next_;
    }
    const bool dropped = next_ < end_ && source_.Lines[next_] == line && IsDropped(source_.Fates[next_]);
    return dropped ? std::optional(source_.Fates[next_]) : std::nullopt;
  }

 private:
  const Readings& source_;
  std::size_t next_, end_;
};

std::string HexText(std::string_view bytes)
{
  constexpr std::string_view Digits = "0123456789abcdef";
  constexpr unsigned HalfByte = 4;
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += Digits[byte >> HalfByte];
    text += Digits[byte & 0xFU];
  }
  return text;
}

std::string RowStart(const FileAccount& file, std::size_t line, Fate fate)
{
  return Cell(file.Path.string()) + "," + Whole(line) + "," + std::string(FateText(fate));
}

void AddDroppedLines(InputFile& input, const FileAccount& file, DroppedLines& dropped, std::string& text)
{
  const TextForm& form = file.Form.Text;
  LineReader lines(input, form.CarriageReturns);
  std::vector<std::string_view> fields;
  for (std::string_view line; lines.Next(line);) {
    if (const auto fate = dropped.At(lines.Number())) {
      text += RowStart(file, lines.Number(), *fate);
      SplitFields(line, form.Separator, form.Quotes, fields);
      for (const std::string_view field : fields) {
        text += "," + Cell(FieldText(field, form.Latin1));
      }
      text += "\n";
    }
  }
}

/// Records hold bytes of any kind: they are told in hexadecimal.
void AddDroppedRecords(InputFile& input, const FileAccount& file, DroppedLines& dropped, std::string& text)
{
  std::size_t number = 0;
  do {
    while (!input.Window().empty() && (input.AtEnd() || input.Window().size() >= CoilRecordBytes)) {
      const std::string_view record = input.Window().substr(0, CoilRecordBytes);
      ++number;
      if (const auto fate = dropped.At(number)) {
        text += RowStart(file, number, *fate) + "," + HexText(record) + "\n";
      }
      input.Take(record.size());
    }
  } while (input.Extend() || !input.Window().empty());
}

}  // namespace

std::string SurveyText(const Conversion& conversion)
{
  constexpr const char* Centimetres = "0.00";
  std::string text;
  for (const TrackPoint& site : conversion.Sites()) {
    text += FormatNumber(site.X, Centimetres) + "," + FormatNumber(site.Y, Centimetres);
    for (std::size_t i = 0; i < static_cast<std::size_t>(conversion.Source.SignalCount); ++i) {
      text += "," + ShortestForm(site.Signals.at(i));
    }
    text += conversion.Rows.HasRows ? "," + Whole(site.Row) + "\n" : "\n";
  }
  return text;
}

std::string SourcesText(const Conversion& conversion)
{
  constexpr const char* Degrees = "0.00000000";
  const Readings& source = conversion.Source;
  const bool geographic = conversion.Crs.IsProjected();
  std::optional<TransverseMercatorProjection> projection;
  if (geographic) {
    projection.emplace(conversion.Crs);
  }
  std::string text = "site,file,first_line,last_line,readings,lat,lon,time,id\n";
  std::size_t number = 0;
  for (const TrackPoint& site : conversion.Sites()) {
    const FileAccount& file = source.Files[site.File];
    text += Whole(++number) + "," + Cell(file.Path.string()) + "," + Whole(source.Lines[site.First]) + "," +
            Whole(source.Lines[site.Last]) + "," + Whole(ReadingsOf(source, site)) + ",";
    if (projection) {
      const GeographicPoint place = projection->Reverse({site.X, site.Y});
      text += FormatNumber(place.Latitude, Degrees) + "," + FormatNumber(place.Longitude, Degrees);
    } else {
      text += ",";
    }
    text += "," + TimeText(file, site.Time) + "," +
            (source.Ids.Ends.empty() ? "" : Cell(source.Ids.At(site.First))) + "\n";
  }
  return text;
}

std::string DroppedText(const Conversion& conversion)
{
  std::string text = "file,line,reason,record\n";
  for (const FileAccount& file : conversion.Source.Files) {
    InputFile input(file.Path);
    input.Extend();
    DroppedLines dropped(conversion.Source, file);
    if (file.Form.Records) {
      AddDroppedRecords(input, file, dropped, text);
    } else {
      AddDroppedLines(input, file, dropped, text);
    }
    if (input.Digest() != file.Digest) {
      throw Refusal(file.Path.string() + " changed while it was read; convert it again.");
    }
  }
  return text;
}

std::filesystem::path SourcesPath(const std::filesystem::path& survey)
{
  return survey.parent_path() / (survey.stem().string() + ".sources.csv");
}

std::vector<ComposedFile> ComposeConversionFiles(const Conversion& conversion,
                                                 const std::filesystem::path& survey,
                                                 const std::optional<std::filesystem::path>& dropped)
{
  std::vector<ComposedFile> files;
  files.push_back({survey, SurveyText(conversion)});
  files.push_back({SidecarPath(survey), ComposeSidecar(conversion, Sha256Hex(files.front().Content))});
  files.push_back({SourcesPath(survey), SourcesText(conversion)});
  if (dropped) {
    files.push_back({*dropped, DroppedText(conversion)});
  }
  return files;
}

}  // namespace veln
