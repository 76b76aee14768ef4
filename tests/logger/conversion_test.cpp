#include "logger/conversion.h"

#include "logger/conversion_files.h"
#include "logger/conversion_report.h"
#include "logger/option_rules.h"
#include "logger/survey_sidecar.h"
#include "logger_files.h"
#include "records.h"
#include "support/refusals.h"
#include "toolkit/number_text.h"
#include "toolkit/sha256.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <thread>

namespace veln {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::size_t Count(const Conversion& conversion, Fate fate)
{
  return conversion.Account.Fates.at(static_cast<std::size_t>(fate)).Count;
}

std::vector<std::string> LinesOf(const std::string& text)
{
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> AdviceCodes(const Conversion& conversion)
{
  std::vector<std::string> codes;
  for (const Advice& advice : conversion.Advices) {
    codes.push_back(advice.Code);
  }
  return codes;
}

TEST(Conversion, EveryLineIsAccountedForUnderItsFirstReason)
{
  std::string text = "Logger 7\n" + LoggerText(4, 40);
  text += std::string(LoggerHeader) +                        // the logger started again
          "# battery low\n\n" +                              // comment, blank
          std::string("\0\0\0", 3) + "\n" +                  // blank
          "5230.0N\t00115.0W\t09:00:00\tn/a\t1\n" +          // no reading
          "5230.0N\t\t09:00:00\t1\t1\n" +                    // no position
          "5230.0N\t00115.0W\n" +                            // ragged
          "9930.0N\t00115.0W\t09:00:00\t1\t1\n" +            // out of range
          "0000.000000N\t00000.000000W\t09:00:00\t1\t1\n" +  // the receiver had no fix
          LoggerLine(0, 24, 900, 1) + LoggerLine(0, 24, 901, 1) + LoggerLine(400, 24, 902, 1) +
          LoggerLine(0, 24.5, 903, 1);
  LoggerFiles files;
  files.Write("f.dat", text);
  const Conversion conversion = files.Converted();
  EXPECT_EQ(Unaccounted(conversion.Account), 0);
  EXPECT_EQ(conversion.Account.Lines, CountedLines(text));
  EXPECT_EQ(conversion.Account.Header, 3);
  EXPECT_EQ(conversion.Account.Comments, 1);
  EXPECT_EQ(conversion.Account.Blank, 2);
  EXPECT_EQ(Count(conversion, Fate::Missing), 4);
  EXPECT_EQ(Count(conversion, Fate::OutOfRange), 1);
  EXPECT_EQ(Count(conversion, Fate::Jump), 1);
  EXPECT_EQ(Count(conversion, Fate::Repeat), 1);
  EXPECT_EQ(conversion.Rows.Rows, 4);
  EXPECT_THAT(conversion.Source.Files[0].FirstFault,
              HasSubstr("f.dat, line 199, column \"Cond.1\": \"n/a\" is not a number"));
}

TEST(Conversion, SurveyTextIsWhatTheImportReads)
{
  LoggerFiles files;
  files.Write("f.dat", LoggerText(3, 40));
  const Conversion rows = files.Converted();
  const auto lines = LinesOf(SurveyText(rows));
  ASSERT_EQ(lines.size(), rows.Sites().size());
  // 1.25 degrees west, 52.5 north in zone 30, by PROJ.
  EXPECT_EQ(lines[0], "618790.61,5818091.45,20,10,1");
  EXPECT_EQ(TextOf(rows.Crs), "utm:30N");
  ConversionOptions options;
  ReadOption(options, "rows", "none");
  ReadOption(options, "s1", "Cond.2");
  EXPECT_EQ(LinesOf(SurveyText(files.Converted(options)))[0], "618790.61,5818091.45,10");
}

TEST(Conversion, OrderOfFilesIsThatOfTheirTimes)
{
  const auto dated = [](const std::string& day, double north) {
    std::string text = "lat,lon,date,time,cond\n";
    for (int i = 0; i < 60; ++i) {
      text += FormatNumber(52.5 + north + i * 1E-5, "0.000000") + ",1.0," + day +
              ",10:00:" + FormatNumber(i, "00") + ",5\n";
    }
    return text;
  };
  LoggerFiles files;
  files.Write("b.csv", dated("5/3/2024", 0.001));
  files.Write("a.csv", dated("6/2/2024", 0.002));
  const auto first = [&](const char* dates) {
    ConversionOptions options;
    if (*dates != 0) {
      ReadOption(options, "dates", dates);
    }
    const Conversion conversion = files.Converted(options);
    EXPECT_EQ(Unaccounted(conversion.Account), 0);
    return conversion.Source.Files[conversion.Sites().front().File].Path.filename().string();
  };
  EXPECT_EQ(first("dmy"), "a.csv");  // 6 February before 5 March
  EXPECT_EQ(first("mdy"), "b.csv");  // 3 May before 2 June
  EXPECT_EQ(first(""), "a.csv");
  files.Write("c.csv", dated("3/25/2024", 0.003));  // a part over 12 tells for all
  EXPECT_EQ(first(""), "c.csv");
}

TEST(Conversion, PositionsOfEachKind)
{
  const auto wrapped = [](double x) { return FormatNumber(x > 180 && x < 181 ? x - 360 : x, "0.0000000"); };
  const auto text = [&](const std::string& header, auto x, auto y) {
    std::string all = header + "\n";
    for (int i = 0; i < 60; ++i) {
      all += wrapped(x(i)) + "," + FormatNumber(y(i), "0.0000000") + ",5\n";
    }
    return all;
  };
  const auto at = [](double from, double step) { return [from, step](int i) { return from + step * i; }; };
  struct Case {
    double Lon, Lat;
    const char* System;
  };
  // The middle decides: zone and hemisphere are its own, also where the survey lies across their edges.
  for (const Case& one : std::vector<Case>{{-0.0002, 51, "utm:31N"},
                                           {-0.0004, 51, "utm:30N"},
                                           {20, -0.0004, "utm:34S"},
                                           {20, -0.0002, "utm:34N"},
                                           {179.9998, 10, "utm:1N"},
                                           {179.9996, 10, "utm:60N"}}) {
    LoggerFiles files;
    files.Write("f.csv", text("lon,lat,cond", at(one.Lon, 0.00001), at(one.Lat, 0.00001)));
    const Conversion conversion = files.Converted();
    EXPECT_EQ(TextOf(conversion.Crs), one.System) << one.Lon << " " << one.Lat;
    EXPECT_LT(conversion.High.X - conversion.Low.X, 70);
    EXPECT_LT(conversion.High.Y - conversion.Low.Y, 70);
  }
  LoggerFiles metres;
  metres.Write("f.csv", text("easting,northing,cond", at(500000, 1), at(6000000, 1)));
  EXPECT_THAT(AdviceCodes(metres.Converted()), ElementsAre("no-crs"));
  ConversionOptions told;
  ReadOption(told, "crs", "epsg:25832");
  EXPECT_THAT(AdviceCodes(metres.Converted(told)), ElementsAre());
  LoggerFiles degrees;
  degrees.Write("f.csv", text("x,y,cond", at(151, 0.00001), at(-33, 0.00001)));
  const Conversion taken = degrees.Converted();
  EXPECT_EQ(TextOf(taken.Crs), "utm:56S");
  EXPECT_THAT(taken.Notes, ElementsAre(HasSubstr("taken as longitude and latitude")));
  LoggerFiles pole;
  pole.Write("f.csv", text("lon,lat,cond", at(10, 0.00001), at(84.5, 0.00001)));
  EXPECT_THAT(RefusalOf([&] { pole.Converted(); }), HasSubstr("--crs tm:lon0=10"));
}

TEST(Conversion, TooFewAndTooManySitesAreToldWithTheRemedy)
{
  LoggerFiles few;
  few.Write("f.dat", LoggerText(1, 20) + "x\n");
  EXPECT_THAT(RefusalOf([&] { few.Converted(); }),
              testing::AllOf(HasSubstr("sites; a survey needs at least 50.\n  lines read"),
                             HasSubstr("dropped: no position or reading"),
                             HasSubstr("line 30, column \"Latitude\"")));
  LoggerFiles many;
  many.Write("f.dat", LoggerText(40, 800));
  ConversionOptions options;
  ReadOption(options, "rows", "none");
  const std::string refusal = RefusalOf([&] { many.Converted(options); });
  EXPECT_THAT(refusal, HasSubstr("The files make 32,320 sites; a survey has at most 30,000. --thin "));
  const std::string told = refusal.substr(refusal.find("--thin ") + 7);
  ReadOption(options, "thin", told.substr(0, told.find(' ')));
  const Conversion thinned = many.Converted(options);
  EXPECT_LE(thinned.Sites().size(), MostSurveySites);
  EXPECT_EQ(Unaccounted(thinned.Account), 0);
}

TEST(Conversion, EveryNthIsCountedAsDropped)
{
  LoggerFiles files;
  files.Write("f.dat", LoggerText(4, 60));
  ConversionOptions options;
  ReadOption(options, "every", "2");
  ReadOption(options, "rows", "none");
  const Conversion conversion = files.Converted(options);
  EXPECT_EQ(conversion.Account.NotEveryNth, (4 * 61 + 4 * 7) / 2);
  EXPECT_EQ(conversion.Sites()[1].Signals[0], 22);  // the third reading
  EXPECT_EQ(Unaccounted(conversion.Account), 0);
}

TEST(Conversion, RecordFilesLieBetweenTheirFixes)
{
  LoggerFiles files;
  const std::string content = CoilRecordFile(40);
  files.Write("f.N38", content);
  ConversionOptions options;
  ReadOption(options, "still", "0.05");
  const Conversion conversion = files.Converted(options);
  EXPECT_EQ(conversion.Account.Lines, content.size() / 26);
  EXPECT_EQ(Unaccounted(conversion.Account), 0);
  EXPECT_EQ(Count(conversion, Fate::NoPosition), 3 + 2);  // at 0.5, 0.7, 0.9 s and at 40.2, 40.4 s
  EXPECT_EQ(conversion.Sites().size(), 39 * 5 + 1);
  // A fifth of the way between fixes that are 0.00032 minutes, 0.59 m, apart.
  EXPECT_NEAR(Distance(conversion.Sites()[0], conversion.Sites()[1]), 0.1187, 0.0005);
}

TEST(Conversion, SourcesAndDroppedRecordsTellWhereAllCameFrom)
{
  LoggerFiles files;
  std::string text = LoggerText(3, 40);
  text.insert(text.find('\n') + 1, "5230.0N\t\"a,b\"\t\tx\t\n");
  files.Write("f.dat", text + LoggerLine(40, 20, 400, 3) + LoggerLine(40, 20, 401, 4));
  ConversionOptions options;
  ReadOption(options, "id", "Cond.1");
  ReadOption(options, "rows", "none");
  const Conversion conversion = files.Converted(options);
  const auto sources = LinesOf(SourcesText(conversion));
  EXPECT_EQ(sources[0], "site,file,first_line,last_line,readings,lat,lon,time,id");
  const std::string file = (files.Folder() / "f.dat").string();
  EXPECT_EQ(sources[1], "1," + file + ",3,3,1,52.50000000,-1.25000000,09:00:00,20.00");
  EXPECT_THAT(sources.back(), HasSubstr(",147,148,2,"));
  EXPECT_EQ(DroppedText(conversion),
            "file,line,reason,record\n" + file + ",2,no position or reading,5230.0N,\"a,b\",,x,\n");
  WriteText(files.Folder() / "f.dat", text);
  EXPECT_THAT(RefusalOf([&] { DroppedText(conversion); }), HasSubstr("changed while it was read"));
}

TEST(Sidecar, TellsTheImportWhatItNeeds)
{
  LoggerFiles files;
  files.Write("f.dat", LoggerText(3, 40) + LoggerLine(300, 20, 400, 3));
  const std::string boundary =
      R"({"type":"Polygon","coordinates":[[[-1.26,52.4],[-1.24,52.4],[-1.24,52.6],[-1.26,52.6]]]})";
  WriteText(files.Folder() / "b.json", boundary);
  ConversionOptions options;
  options.Boundaries = {files.Folder() / "b.json"};
  const Conversion conversion = files.Converted(options);
  const std::string text = ComposeSidecar(conversion, "abc");
  const SurveySidecar sidecar = ReadSidecar(text);
  EXPECT_EQ(sidecar.SurveyDigest, "abc");
  EXPECT_TRUE(sidecar.Transect);
  EXPECT_TRUE(sidecar.SecondSignal);
  EXPECT_THAT(sidecar.Labels, ElementsAre("Cond.1", "Cond.2"));
  EXPECT_EQ(sidecar.Units, "mS/m");
  EXPECT_EQ(TextOf(sidecar.Crs), "utm:30N");
  ASSERT_EQ(sidecar.Boundary.size(), 1);
  EXPECT_NEAR(sidecar.Boundary[0].Rings()[0][0].X, conversion.Boundary[0].Rings()[0][0].X, 1E-6);
  EXPECT_TRUE(sidecar.Exclusions.empty());
  EXPECT_THAT(text, HasSubstr("-146\""));
  EXPECT_LT(text.size(), 8000);
}

TEST(Sidecar, DamagedOnesAreRefusedByTheirKey)
{
  LoggerFiles files;
  files.Write("f.dat", LoggerText(3, 40));
  const std::string sound = ComposeSidecar(files.Converted(), "abc");
  const auto changed = [&sound](const std::string& part, const std::string& other) {
    std::string text = sound;
    return text.replace(text.find(part), part.size(), other);
  };
  EXPECT_EQ(RefusalOf([&] { ReadSidecar(sound); }), "not refused");
  EXPECT_EQ(RefusalOf([&] { ReadSidecar(sound.substr(0, 100)); }), "it is no JSON document");
  EXPECT_THAT(RefusalOf([&] { ReadSidecar(changed("\"schema\": 1", "\"schema\": 2")); }),
              HasSubstr("newer version"));
  EXPECT_THAT(RefusalOf([&] { ReadSidecar(changed("\"transect\"", "\"both\"")); }), HasSubstr("\"type\""));
  EXPECT_THAT(RefusalOf([&] { ReadSidecar(changed("\"s2\": true", "\"s2\": 1")); }), HasSubstr("\"s2\""));
  EXPECT_THAT(
      RefusalOf([&] { ReadSidecar(changed("\"Cond.1\",\n    \"Cond.2\"", "\"a long label\", \"b\"")); }),
      HasSubstr("\"labels\""));
  EXPECT_THAT(RefusalOf([&] { ReadSidecar(changed("utm:30N", "mars")); }), HasSubstr("\"crs\""));
}

TEST(Sidecar, StandsBesideItsSurveyUnderItsName)
{
  EXPECT_EQ(SidecarPath("a/b.c.txt"), "a/b.c.survey.json");
  EXPECT_EQ(SidecarPath("field"), "field.survey.json");
  EXPECT_EQ(SourcesPath("/x/s.txt"), "/x/s.sources.csv");
}

TEST(Conversion, AdviceTellsWhatLooksWrong)
{
  LoggerFiles files;
  std::string text = "x,y,cond[S/m]\n";
  for (int i = 0; i < 60; ++i) {
    text += std::to_string(i) + ",0," + (i < 7 ? "-1" : "2") + "\n";
  }
  files.Write("f.csv", text);
  const Conversion conversion = files.Converted();
  EXPECT_THAT(AdviceCodes(conversion), ElementsAre("no-crs", "nonpositive"));
  EXPECT_EQ(conversion.Advices[1].Text, "7 of 60 readings of cond are 0 or less");
  EXPECT_THAT(ConversionReport(conversion), HasSubstr("\nAdvice        7 of 60 readings"));
  EXPECT_EQ(KnownUnits(" mS / m"), "mS/m");
  EXPECT_EQ(KnownUnits("S/m"), "");
}

TEST(Conversion, PipesAreReadOnce)
{
  LoggerFiles files;
  const std::string text = LoggerText(3, 40);
  const std::filesystem::path pipe = files.Folder() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::jthread writer([&] { std::ofstream(pipe) << text; });
  const Readings readings = ReadLoggerFiles({pipe}, {});
  EXPECT_TRUE(readings.Files[0].Stream);
  EXPECT_EQ(readings.Files[0].Digest, Sha256Hex(text));
  EXPECT_EQ(readings.Files[0].Lines, CountedLines(text));
}

TEST(Conversion, RefusesFilesThatDoNotGoTogether)
{
  LoggerFiles files;
  const auto first = files.Write("f.dat", LoggerText(3, 40));
  EXPECT_THAT(RefusalOf([&] { ReadLoggerFiles({first, first}, {}); }), HasSubstr("given twice"));
  EXPECT_THAT(RefusalOf([&] { ReadLoggerFiles({files.Folder()}, {}); }), HasSubstr("Is a directory"));
  const auto plane = files.Write("p.csv", "x,y,cond,ec\n1,2,3,4\n");
  EXPECT_THAT(RefusalOf([&] { ReadLoggerFiles({first, plane}, {}); }), HasSubstr("convert them apart"));
  const auto other = files.Write("o.dat", "lat\tlon\tcond[dS/m]\tec[mS/m]\n1.5\t2.5\t3\t4\n");
  EXPECT_THAT(RefusalOf([&] { ReadLoggerFiles({first, other}, {}); }), HasSubstr("different units"));
  const auto moved = files.Write("m.csv", "x,y,cond\n1,2,3\n2,2,3\ny,x,cond\n1,2,3\n");
  EXPECT_THAT(RefusalOf([&] { ReadLoggerFiles({moved}, {}); }),
              HasSubstr("m.csv, line 4: another header begins here"));
}

}  // namespace
}  // namespace veln
