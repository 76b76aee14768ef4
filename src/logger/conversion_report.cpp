#include "logger/conversion_report.h"

#include "logger/conversion_summary.h"
#include "logger/grouped_number.h"
#include "toolkit/number_text.h"

namespace veln {

namespace {

/// A line of the report: its name, blanks to column 15, its text.
std::string ReportLine(const std::string& name, const std::string& text)
{
  constexpr std::size_t NameWidth = 14;
  return name + std::string(name.size() < NameWidth ? NameWidth - name.size() : 1, ' ') + text + "\n";
}

std::string Quoted(const FileForm& form, std::size_t column)
{
  return "\"" + form.Columns.at(column).Name + "\"";
}

std::string PositionText(const FileForm& form)
{
  const ColumnRoles& roles = form.Roles;
  const std::string pair = Quoted(form, roles.First) + ", " + Quoted(form, roles.Second);
  if (!roles.Geographic) {
    return "x, y " + pair + " in metres";
  }
  const bool packed = roles.Angles == AngleForm::PackedMinutes;
  return "lat, lon " + pair + (packed ? " in degrees and minutes in one number" : " in degrees");
}

std::string FileText(const FileAccount& file)
{
  const FileForm& form = file.Form;
  const ColumnRoles& roles = form.Roles;
  const std::string text = ReportLine(
      "File", file.Path.string() + ": " + (form.Records ? "records of 26 bytes" : DescribeForm(form.Text)));
  std::string columns = PositionText(form) + "; signals ";
  for (std::size_t i = 0; i < roles.SignalCount; ++i) {
    const std::string& unit = form.Columns.at(roles.Signals.at(i)).Unit;
    columns += (i == 0 ? "" : ", ") + Quoted(form, roles.Signals.at(i)) + (unit.empty() ? "" : " in " + unit);
  }
  columns += roles.Time ? "; time " + Quoted(form, *roles.Time) : "";
  columns += roles.Date ? ", date " + Quoted(form, *roles.Date) : "";
  columns += roles.Row ? "; rows " + Quoted(form, *roles.Row) : "";
  return text + ReportLine("", columns);
}

std::string RowsText(const RowSummary& rows)
{
  constexpr double Percent = 100;
  const double share =
      rows.Sites == 0 ? 0 : Percent * static_cast<double>(rows.SitesInRows) / static_cast<double>(rows.Sites);
  if (rows.HasRows) {
    return GroupedNumber(rows.Rows) + " rows, holding " + FormatNumber(share, "0.0") + " % of " +
           GroupedNumber(rows.Sites) + " sites and " + FormatNumber(rows.RowMetres, "0") + " m of the track";
  }
  return "none: a grid (" + GroupedNumber(rows.Rows) + " found, with " + FormatNumber(rows.RowMetres, "0") +
         " of " + FormatNumber(rows.TrackMetres, "0") +
         " m of track; a survey of rows has three, and half the track)";
}

std::string SignalText(const SignalSummary& signal, std::size_t sites)
{
  constexpr const char* Format = "0.0###";
  return signal.Label + (signal.Unit.empty() ? "" : " in " + signal.Unit) + ": mean " +
         FormatNumber(signal.Mean, Format) + ", std " + FormatNumber(signal.Deviation, Format) + ", " +
         FormatNumber(signal.Minimum, Format) + " to " + FormatNumber(signal.Maximum, Format) + ", " +
         GroupedNumber(signal.NonPositive) + " of " + GroupedNumber(sites) + " are 0 or less";
}

}  // namespace

std::string ConversionReport(const Conversion& conversion)
{
  constexpr const char* Metres = "0.00";
  std::string text;
  for (const FileAccount& file : conversion.Source.Files) {
    text += FileText(file);
  }
  for (const std::string& note : conversion.Notes) {
    text += ReportLine("Note", note);
  }
  text += ReportLine("Lines", GroupedNumber(conversion.Account.Lines) + " read, " +
                                  GroupedNumber(conversion.Account.Sites()) + " sites written");
  text += AccountText(conversion);
  const PlanePoint& low = conversion.Low;
  const PlanePoint& high = conversion.High;
  text += ReportLine("System", TextOf(conversion.Crs));
  text += ReportLine(
      "Extent", FormatNumber(high.X - low.X, Metres) + " m by " + FormatNumber(high.Y - low.Y, Metres) +
                    " m: x " + FormatNumber(low.X, Metres) + " to " + FormatNumber(high.X, Metres) + ", y " +
                    FormatNumber(low.Y, Metres) + " to " + FormatNumber(high.Y, Metres));
  text += ReportLine("Track", FormatNumber(conversion.Rows.TrackMetres, Metres) + " m, a site every " +
                                  FormatNumber(conversion.MedianSpacing, Metres) + " m (median)");
  text += ReportLine("Rows", RowsText(conversion.Rows));
  std::string name = "Signals";
  for (const SignalSummary& signal : conversion.Signals) {
    text += ReportLine(name, SignalText(signal, conversion.Sites().size()));
    name.clear();
  }
  for (const Advice& advice : conversion.Advices) {
    text += ReportLine("Advice", advice.Text);
  }
  return text;
}

}  // namespace veln
