// What the library's tables must say is written here in full, as a client's document would have it.

#include <gtest/gtest.h>

#include "kvtool/tool_run.h"
#include "table.h"

namespace Korvane::Tool {
namespace {

constexpr const char* kFormats =
    R"(value,name,width,height,scanning,edit_rate,aspect_ratio,rounded_rate,uhd,found_as
0,Ntsc,720,486,interlaced,30000/1001,4/3,30,false,Ntsc
1,Pal,720,576,interlaced,25,4/3,25,false,Pal
2,Hd1080p2398,1920,1080,progressive,24000/1001,16/9,24,false,Hd1080p2398
3,Hd1080p24,1920,1080,progressive,24,16/9,24,false,Hd1080p24
4,Hd1080p25,1920,1080,progressive,25,16/9,25,false,Hd1080p25
5,Hd1080p2997,1920,1080,progressive,30000/1001,16/9,30,false,Hd1080p2997
6,Hd1080p30,1920,1080,progressive,30,16/9,30,false,Hd1080p30
7,Hd1080p50,1920,1080,progressive,50,16/9,50,false,Hd1080p50
8,Hd1080p50Alt,1920,1080,progressive,50,16/9,50,false,Hd1080p50
9,Hd1080p5994,1920,1080,progressive,60000/1001,16/9,60,false,Hd1080p5994
10,Hd1080p5994Alt,1920,1080,progressive,60000/1001,16/9,60,false,Hd1080p5994
11,Hd1080p60,1920,1080,progressive,60,16/9,60,false,Hd1080p60
12,Hd1080p60Alt,1920,1080,progressive,60,16/9,60,false,Hd1080p60
13,Hd1080i50,1920,1080,interlaced,25,16/9,25,false,Hd1080i50
14,Hd1080i5994,1920,1080,interlaced,30000/1001,16/9,30,false,Hd1080i5994
15,Hd1080i60,1920,1080,interlaced,30,16/9,30,false,Hd1080i60
16,Hd720p50,1280,720,progressive,50,16/9,50,false,Hd720p50
17,Hd720p5994,1280,720,progressive,60000/1001,16/9,60,false,Hd720p5994
18,Hd720p60,1280,720,progressive,60,16/9,60,false,Hd720p60
19,Hd1080p2997Alt,1920,1080,progressive,30000/1001,16/9,30,false,Hd1080p2997
20,Hd1080p25Alt,1920,1080,progressive,25,16/9,25,false,Hd1080p25
21,Hd1080p2398Alt,1920,1080,progressive,24000/1001,16/9,24,false,Hd1080p2398
22,Uhd2160p60,3840,2160,progressive,60,16/9,60,true,Uhd2160p60
23,Uhd2160p60Alt,3840,2160,progressive,60,16/9,60,false,Uhd2160p60
24,Uhd2160p5994,3840,2160,progressive,60000/1001,16/9,60,true,Uhd2160p5994
25,Uhd2160p5994Alt,3840,2160,progressive,60000/1001,16/9,60,false,Uhd2160p5994
26,Uhd2160p50,3840,2160,progressive,50,16/9,50,true,Uhd2160p50
27,Uhd2160p50Alt,3840,2160,progressive,50,16/9,50,false,Uhd2160p50
28,Uhd2160p30,3840,2160,progressive,30,16/9,30,true,Uhd2160p30
29,Uhd2160p2997,3840,2160,progressive,30000/1001,16/9,30,true,Uhd2160p2997
30,Uhd2160p25,3840,2160,progressive,25,16/9,25,true,Uhd2160p25
31,Uhd2160p24,3840,2160,progressive,24,16/9,24,true,Uhd2160p24
32,Uhd2160p2398,3840,2160,progressive,24000/1001,16/9,24,true,Uhd2160p2398
33,Uhd2160p2997Alt,3840,2160,progressive,30000/1001,16/9,30,true,Uhd2160p2997
34,Uhd2160p25Alt,3840,2160,progressive,25,16/9,25,true,Uhd2160p25
35,Uhd2160p2398Alt,3840,2160,progressive,24000/1001,16/9,24,true,Uhd2160p2398
36,Hd1080p2997Alt2,1920,1080,progressive,30000/1001,16/9,30,false,Hd1080p2997
37,Hd1080p25Alt2,1920,1080,progressive,25,16/9,25,false,Hd1080p25
38,UnknownFormat,,,,,,,false,
)";

constexpr const char* kColorspacesOfHd =
    R"(value,name,planes,depth,stride_0,stride_1,stride_2,lines_0,lines_1,lines_2,frame_bytes
0,ColorspaceUndefined,,,,,,,,,
1,Yuv420p,3,8,1920,960,960,1080,540,540,3110400
2,Yuv422p,3,8,1920,960,960,1080,1080,1080,4147200
3,Uyvy,1,8,3840,,,1080,,,4147200
4,V210,1,10,5120,,,1080,,,5529600
5,V216,1,10,7680,,,1080,,,8294400
6,Colorspace6,,10,,,,,,,
7,Colorspace7,,10,,,,,,,
8,Yuv422p10le,3,10,3840,1920,1920,1080,1080,1080,8294400
9,Yuv422p10leAlt,3,10,3840,1920,1920,1080,1080,1080,8294400
10,Colorspace10,,,,,,,,,
11,Rgb24,1,16,5760,,,1080,,,6220800
12,Argb,1,,7680,,,1080,,,8294400
13,Rgba,1,8,7680,,,1080,,,8294400
14,Rgba64,1,16,15360,,,1080,,,16588800
15,Rgba64Alt,1,16,15360,,,1080,,,16588800
16,Dpx10,1,10,7680,,,1080,,,8294400
17,Smpte2110Yuv10,1,10,4800,,,1080,,,5184000
18,Yuv420pAlt,3,8,1920,960,960,1080,540,540,3110400
)";

constexpr const char* kEssence = R"(value,name,family,dnx,prores
0,EssenceNone,none,false,false
1,EssenceAudio,audio,false,false
2,EssenceDnxhd,video,true,false
3,EssenceVideo3,video,false,false
4,EssenceOther4,none,false,false
5,EssenceMpeg2,video,false,false
6,EssenceVideo6,video,false,false
7,EssenceAudio7,audio,false,false
8,EssencePcm,audio,false,false
9,EssenceAiff,audio,false,false
10,EssenceAudio10,audio,false,false
11,EssenceUncompressed,video,false,false
12,EssenceVideo12,video,false,false
13,EssenceVideo13,video,false,false
14,EssenceVideo14,video,false,false
15,EssenceAvcIntra,video,false,false
16,EssenceProres16,video,false,true
17,EssenceProres17,video,false,true
18,EssenceProres18,video,false,true
19,EssenceProres19,video,false,true
20,EssenceProres20,video,false,true
21,EssenceProres21,video,false,true
22,EssenceVideo22,video,false,false
23,EssenceDnx23,video,true,false
24,EssenceDnx24,video,true,false
25,EssenceDnx25,video,true,false
26,EssenceDnx26,video,true,false
27,EssenceDnx27,video,true,false
28,EssenceData,data,false,false
29,EssenceOther29,none,false,false
30,EssenceVideo30,video,false,false
31,EssenceVideo31,video,false,false
32,EssenceVideo32,video,false,false
33,EssenceVideo33,video,false,false
34,EssenceVideo34,video,false,false
35,EssenceVideo35,video,false,false
36,EssenceVideo36,video,false,false
37,EssenceVideo37,video,false,false
38,EssenceVideo38,video,false,false
39,EssenceVideo39,video,false,false
)";

void expect_printed(const std::string& expected, const std::vector<std::string>& args) {
  const ToolResult result = run_tool(args);
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(expected, result.out);
  EXPECT_EQ("", result.err);
}

// The values of the first column, to see what passes a filter.
std::string values(std::vector<std::string> args) {
  args.emplace_back("--csv");
  std::istringstream lines(run_tool(args).out);
  std::string line;
  std::string values;
  std::getline(lines, line);
  while (std::getline(lines, line)) values += line.substr(0, line.find(',')) + ' ';
  return values;
}

TEST(TableCommand, ListsEveryFormat) { expect_printed(kFormats, {"formats", "--csv"}); }

TEST(TableCommand, ListsEveryColourSpace) {
  expect_printed(kColorspacesOfHd, {"colorspaces", "--csv"});
}

TEST(TableCommand, ListsEveryKindOfEssence) { expect_printed(kEssence, {"essence", "--csv"}); }

TEST(TableCommand, TextIsAligned) {
  expect_printed(
      "value  name             width  height  scanning     edit rate   aspect ratio  rounded rate  "
      "uhd  found as\n"
      "   24  Uhd2160p5994      3840    2160  progressive  60000/1001  16/9                    60  "
      "yes  Uhd2160p5994\n"
      "   25  Uhd2160p5994Alt   3840    2160  progressive  60000/1001  16/9                    60  "
      "no   Uhd2160p5994\n",
      {"formats", "--width", "3840", "--rate", "60000/1001"});
  expect_printed(
      "value  name  planes  depth  stride 0  stride 1  stride 2  lines 0  lines 1  lines 2  "
      "frame bytes\n"
      "    4  V210       1     10      3456  -         -             720  -        -            "
      "2488320\n",
      {"colorspaces", "--name", "V210", "--width", "1280", "--height", "720"});
}

TEST(TableCommand, TextHasDashesWhereThereIsNoValue) {
  expect_printed(
      "value  name           width  height  scanning  edit rate  aspect ratio  rounded rate  uhd  "
      "found as\n"
      "   38  UnknownFormat  -      -       -         -          -             -             no   "
      "-\n",
      {"formats", "--value", "38"});
}

TEST(TableCommand, PrintsJson) {
  expect_printed(R"([
  {
    "value": 13,
    "name": "Hd1080i50",
    "width": 1920,
    "height": 1080,
    "scanning": "interlaced",
    "edit_rate": "25",
    "aspect_ratio": "16/9",
    "rounded_rate": 25,
    "uhd": false,
    "found_as": "Hd1080i50"
  }
]
)",
                 {"formats", "--name", "Hd1080i50", "--json"});
  expect_printed(R"([
  {
    "value": 12,
    "name": "Argb",
    "planes": 1,
    "depth": null,
    "stride_0": 7680,
    "stride_1": null,
    "stride_2": null,
    "lines_0": 1080,
    "lines_1": null,
    "lines_2": null,
    "frame_bytes": 8294400
  }
]
)",
                 {"colorspaces", "--value", "12", "--json"});
}

TEST(TableCommand, EveryFilterKeepsItsRows) {
  const std::pair<std::vector<std::string>, const char*> filters[] = {
      {{"formats", "--value", "7"}, "7 "},
      {{"formats", "--name", "Uhd2160p24"}, "31 "},
      {{"formats", "--width", "720"}, "0 1 "},
      {{"formats", "--height", "720"}, "16 17 18 "},
      {{"formats", "--scanning", "interlaced"}, "0 1 13 14 15 "},
      {{"formats", "--rate", "59.94"}, "9 10 17 24 25 "},
      {{"formats", "--rate", "60000/1001"}, "9 10 17 24 25 "},
      {{"formats", "--aspect", "4/3"}, "0 1 "},
      {{"formats", "--uhd", "yes"}, "22 24 26 28 29 30 31 32 33 34 35 "},
      {{"formats", "--uhd", "no", "--width", "3840"}, "23 25 27 "},
      {{"formats", "--width", "1921"}, ""},
      {{"colorspaces", "--planes", "3"}, "1 2 8 9 18 "},
      {{"colorspaces", "--depth", "16"}, "11 14 15 "},
      {{"colorspaces", "--name", "Uyvy", "--width", "720"}, "3 "},
      {{"colorspaces", "--value", "0"}, "0 "},
      {{"essence", "--family", "none"}, "0 4 29 "},
      {{"essence", "--family", "audio"}, "1 7 8 9 10 "},
      {{"essence", "--dnx", "yes"}, "2 23 24 25 26 27 "},
      {{"essence", "--prores", "yes"}, "16 17 18 19 20 21 "},
      {{"essence", "--name", "EssenceData"}, "28 "},
      {{"essence", "--value", "39"}, "39 "},
  };
  for (const auto& [args, expected] : filters) {
    SCOPED_TRACE(args[0] + ' ' + args[1] + ' ' + args[2]);
    EXPECT_EQ(expected, values(args));
  }
}

TEST(TableCommand, AnOddWidthHasNoLineOfSmpte2110) {
  expect_printed(
      "value,name,planes,depth,stride_0,stride_1,stride_2,lines_0,lines_1,lines_2,frame_bytes\n"
      "17,Smpte2110Yuv10,1,10,,,,,,,\n",
      {"colorspaces", "--csv", "--name", "Smpte2110Yuv10", "--width", "1921"});
}

struct BadValue {
  const char* command;
  const char* option;
  const char* value;
  const char* expected;
};

TEST(TableCommand, BadValuesAreOneLineWithWhatWasExpected) {
  const BadValue bad[] = {
      {"formats", "--width", "abc", "a whole number from 0 to 4294967295"},
      {"formats", "--width", "19.5", "a whole number from 0 to 4294967295"},
      {"formats", "--width", "-1", "a whole number from 0 to 4294967295"},
      {"formats", "--height", "4294967296", "a whole number from 0 to 4294967295"},
      {"formats", "--value", "0x10", "a whole number from 0 to 4294967295"},
      {"formats", "--scanning", "Interlaced",
       "interlaced or progressive; did you mean interlaced?"},
      {"formats", "--aspect", "16:9", "4/3 or 16/9; did you mean 16/9?"},
      {"formats", "--uhd", "true", "yes or no"},
      {"formats", "--name", "hd1080i50", "a name such as Ntsc; did you mean Hd1080i50?"},
      {"formats", "--rate", "50/2",
       "24, 25, 30, 50, 60, 23.976, 29.97, 59.94, 24000/1001, 30000/1001 or 60000/1001; did you "
       "mean 25?"},
      {"colorspaces", "--width", "0", "a whole number from 1 to 65535"},
      {"colorspaces", "--height", "65536", "a whole number from 1 to 65535"},
      {"colorspaces", "--depth", "ten", "a whole number from 0 to 4294967295"},
      {"colorspaces", "--name", "yuv", "a name such as ColorspaceUndefined"},
      {"essence", "--family", "dnx", "none, audio, video or data"},
      {"essence", "--prores", "1", "yes or no"},
  };
  for (const auto& [command, option, value, expected] : bad)
    for (const char* const form : {"--json", "--csv"})
      expect_refused(
          2,
          std::string(option) + " \"" + value + "\" is not supported (expected " + expected + ')',
          run_tool({command, form, option + std::string("=") + value}));
}

// The first filter alone would keep rows.
TEST(TableCommand, ALaterBadValuePrintsNothing) {
  expect_refused(2, "--uhd \"maybe\" is not supported (expected yes or no)",
                 run_tool({"formats", "--width", "1920", "--uhd", "maybe"}));
}

TEST(TableWriters, CsvQuotesWhatNeedsIt) {
  std::ostringstream out;
  write_csv(out, {{"a", "b", "c", "d"}, {{"x,y", "say \"so\"", "two\nlines", "plain"}}});
  EXPECT_EQ("a,b,c,d\n\"x,y\",\"say \"\"so\"\"\",\"two\nlines\",plain\n", out.str());
}

TEST(TableWriters, NumbersWithFractionsKeepTheirDigits) {
  const Table table{{"rate"}, {{Cell(0.1)}, {Cell(2.5)}}};
  std::ostringstream text;
  std::ostringstream csv;
  std::ostringstream json;
  write_text(text, table);
  write_csv(csv, table);
  write_json(json, table);
  EXPECT_EQ("rate\n 0.1\n 2.5\n", text.str());
  EXPECT_EQ("rate\n0.1\n2.5\n", csv.str());
  EXPECT_EQ("[\n  {\n    \"rate\": 0.1\n  },\n  {\n    \"rate\": 2.5\n  }\n]\n", json.str());
}

TEST(TableWriters, JsonOfNoRowsIsAnEmptyList) {
  expect_printed("[]\n", {"formats", "--width", "1", "--json"});
}

}  // namespace
}  // namespace Korvane::Tool
