#include "logger/file_form.h"
#include "support/files.h"
#include "support/refusals.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace veln {
namespace {

using testing::HasSubstr;

std::string DataFile(const std::string& name)
{
  return ReadText(std::filesystem::path(VELN_TEST_DATA) / name);
}

/// The roles of columns as text: "lat 1 lon 2 packed s 5 7 clock 4".
std::string RolesText(const ColumnRoles& roles)
{
  const auto number = [](std::size_t column) { return " " + std::to_string(column + 1); };
  std::string text = (roles.Geographic ? "lat" : "x") + number(roles.First) +
                     (roles.Geographic ? " lon" : " y") + number(roles.Second) +
                     (roles.Angles == AngleForm::PackedMinutes ? " packed" : "") + " s";
  for (std::size_t i = 0; i < roles.SignalCount; ++i) {
    text += number(roles.Signals.at(i));
  }
  constexpr std::array<const char*, 5> Styles = {"", " clock", " packed clock", " seconds", " milliseconds"};
  text += roles.Time ? Styles.at(static_cast<std::size_t>(roles.Clock)) + number(*roles.Time) : "";
  return text + (roles.Date ? " date" + number(*roles.Date) : "");
}

struct FormCase {
  const char* File;
  const char* Form;
  const char* Roles;
  ColumnChoices Choices;
};

ColumnChoices Signal(const char* name)
{
  ColumnChoices choices;
  choices.S1 = name;
  return choices;
}

TEST(Recognition, FormAndColumnsOfFilesAsLoggersWriteThem)
{
  const std::vector<FormCase> cases = {
      {"tab_packed_minutes.dat",
       "tab-separated, header in line 1, decimal point, UTF-8, lines end in LF",
       "lat 1 lon 2 packed s 5 7 clock 4",
       {}},
      {"semicolon_decimal_comma_latin1.csv",
       "semicolon-separated, header in line 1, decimal comma, Latin-1, lines end in CR LF",
       "x 2 y 3 s 4 clock 5",
       {}},
      {"blanks_without_header.txt", "separated by blanks, no header, decimal point, UTF-8, lines end in LF",
       "lat 2 lon 3 s 4", Signal("4")},
      {"header_behind_comment_sign.txt",
       "separated by blanks, header in line 2, decimal point, UTF-8, lines end in LF",
       "lat 1 lon 2 s 3",
       {}},
      {"lines_before_the_header.csv",
       "comma-separated, header in line 4, decimal point, UTF-8, lines end in LF",
       "x 1 y 2 s 3",
       {}},
      {"carriage_returns.txt",
       "comma-separated, header in line 1, decimal point, UTF-8, lines end in CR",
       "x 1 y 2 s 3",
       {}},
      {"dates_and_times.csv",
       "comma-separated, header in line 1, decimal point, UTF-8, lines end in LF",
       "x 3 y 4 s 5 packed clock 2 date 1",
       {}},
      {"degrees_and_minutes.csv",
       "comma-separated, header in line 1, decimal point, UTF-8, lines end in LF",
       "lat 1 lon 2 s 3",
       {}},
  };
  for (const FormCase& one : cases) {
    const FileForm form = RecogniseFile(DataFile(one.File), one.File, {}, one.Choices);
    EXPECT_EQ(DescribeForm(form.Text), one.Form) << one.File;
    EXPECT_EQ(RolesText(form.Roles), one.Roles) << one.File;
  }
}

TEST(Recognition, QuotedNamesBehindAByteOrderMark)
{
  ColumnChoices choices;
  choices.Lat = "lat";
  choices.Lon = "lon";
  const FileForm form = RecogniseFile(DataFile("quotes_and_mark.csv"), "f", {}, choices);
  EXPECT_TRUE(form.Text.ByteOrderMark);
  ASSERT_EQ(form.Columns.size(), 4);
  EXPECT_EQ(form.Columns[1].Name, "Lon, deg");
  EXPECT_EQ(RolesText(form.Roles), "lat 1 lon 2 s 3 4");
}

TEST(Recognition, EmptyColumnsBehindTheLastNameAreNone)
{
  EXPECT_EQ(RecogniseColumns(DataFile("lines_before_the_header.csv"), "f", {}).Columns.size(), 3);
}

TEST(Recognition, WhatIsToldGoesBeforeWhatIsSeen)
{
  FormChoices choices;
  choices.Separator = ';';
  choices.HeaderLine = 2;
  choices.DecimalComma = true;
  const TextForm form = RecogniseTextForm("a,b\nc;d\n1,5;2\n1,5;3\n", choices);
  EXPECT_EQ(DescribeForm(form),
            "semicolon-separated, header in line 2, decimal comma, UTF-8, lines end in LF");
  EXPECT_EQ(form.FirstDataLine, 3);
  choices.HeaderLine = 0;
  choices.SkippedLines = 3;
  EXPECT_EQ(RecogniseTextForm("a,b\nc;d\n1,5;2\n1,5;3\n", choices).FirstDataLine, 4);
}

TEST(Recognition, WhatStandsBetweenHeaderAndDataHidesNeither)
{
  const TextForm units =
      RecogniseTextForm("lat;lon;cond\n[deg];[deg];[mS/m]\n51.5;1.2;30\n51.5;1.2;31\n", {});
  EXPECT_EQ(units.HeaderLine, 1);
  EXPECT_EQ(units.FirstDataLine, 3);
  const TextForm lost = RecogniseTextForm("lat;lon;cond\n;;\n;;x\n51.5;1.2;30\n51.5;1.2;31\n", {});
  EXPECT_EQ(lost.HeaderLine, 1);
  EXPECT_EQ(lost.FirstDataLine, 2);
}

TEST(Recognition, DecimalCommasInPackedMinutes)
{
  std::string text = "lat;lon;cond\n";
  for (int i = 0; i < 5; ++i) {
    text += "1000,50000" + std::to_string(i) + "N;00559,994000E;2" + std::to_string(i) + ",5\n";
  }
  EXPECT_EQ(RolesText(RecogniseFile(text, "f", {}, {}).Roles), "lat 1 lon 2 packed s 3");
}

TEST(Recognition, RefusesWithFileAndRemedy)
{
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"no_conductivity.csv",
       "--s1 (and --s2), by name or number. These fit: \"lat (column 1)\", \"lon (column 2)\", "
       "\"height (column 3)\"."},
      {"prose.txt", "prose.txt: "},
      {"utf16.csv", "utf16.csv is UTF-16 text; save it as UTF-8."},
  };
  for (const auto& [file, part] : cases) {
    EXPECT_THAT(RefusalOf([&] { RecogniseFile(DataFile(file), file, {}, {}); }), HasSubstr(part));
  }
  EXPECT_EQ(RefusalOf([] { RecogniseFile("", "f.csv", {}, {}); }), "f.csv is empty.");
  EXPECT_THAT(RefusalOf([] { RecogniseFile("PK\x03\x04zip", "f", {}, {}); }), HasSubstr("spreadsheet"));
  EXPECT_EQ(RefusalOf([] { RecogniseFile(DataFile("two_of_one_name.csv"), "f", {}, Signal("Cond")); }),
            "f: --s1 \"Cond\" is the name of several columns; name one by its number. These fit: "
            "\"cond (column 3)\", \"cond (column 4)\".");
}

TEST(Columns, AnExactNameThenABeginningThenANumber)
{
  std::vector<TableColumn> columns;
  for (const char* cell : {"Cond.1[mS/m]", "Cond.10[mS/m]", "Note", "7"}) {
    columns.push_back(ReadHeaderCell(cell, columns.size()));
  }
  const auto found = [&](const std::string& text) { return FindColumn(columns, text, "--s1", "f") + 1; };
  EXPECT_EQ(found("cond.1"), 1);
  EXPECT_EQ(found("COND.10"), 2);
  EXPECT_EQ(found("Cond.1[mS/m]"), 1);
  EXPECT_EQ(found("no"), 3);
  EXPECT_EQ(found("7"), 4);
  EXPECT_EQ(found("2"), 2);
  EXPECT_EQ(RefusalOf([&] { found("con"); }),
            "f: --s1 \"con\" is the beginning of several columns; tell more of the name. These fit: "
            "\"Cond.1 (column 1)\", \"Cond.10 (column 2)\".");
  EXPECT_EQ(
      RefusalOf([&] { found("5"); }),
      "f: --s1 \"5\" is no column: there are 4. Its columns: \"Cond.1\", \"Cond.10\", \"Note\", \"7\".");
  EXPECT_THAT(RefusalOf([&] { found("temp"); }), HasSubstr("is no column of it"));
}

TEST(Columns, UnitsStandInBracketsBehindTheName)
{
  for (const auto& [cell, name, unit] :
       std::vector<std::array<const char*, 3>>{{"Cond.1[mS/m]", "Cond.1", "mS/m"},
                                               {" EC (dS/m) ", "EC", "dS/m"},
                                               {"[x]", "[x]", ""},
                                               {"a]", "a]", ""},
                                               {"", "column 9", ""}}) {
    const TableColumn column = ReadHeaderCell(cell, 8);
    EXPECT_EQ(column.Name, name);
    EXPECT_EQ(column.Unit, unit);
  }
}

}  // namespace
}  // namespace veln
