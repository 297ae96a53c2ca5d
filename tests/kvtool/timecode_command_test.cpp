#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

ToolResult timecode(std::vector<std::string> args) {
  args.insert(args.begin(), "timecode");
  return run_tool(args);
}

Json timecode_json(std::vector<std::string> args) {
  args.insert(args.begin(), "--json");
  const ToolResult result = timecode(args);
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_EQ("", result.err);
  return Json::parse(result.out);
}

// 59 minutes and 58 seconds are 3598 * 30 frames less two for each of 54 minutes.
TEST(TimecodeCommand, ShowsEveryFormOfADropFrameLabel) {
  const ToolResult result = timecode({"00:59:58;00", "--rate", "30", "--drop"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(
      "label                 00:59:58;00\n"
      "  with colon          00:59:58:00\n"
      "rate                  30 drop-frame, 30000/1001 frames per second\n"
      "frame in the second   0\n"
      "field mark            0\n"
      "frame count           107832\n"
      "  within the day      107832\n"
      "day                   0\n"
      "milliseconds          3597994\n"
      "ST 12 word, 32 bits   0x00595840\n"
      "ST 12 word, 64 bits   0x0000050905080400\n",
      result.out);
}

TEST(TimecodeCommand, ShowsTheLabelsThatDifferAtADoubleRate) {
  const ToolResult result = timecode({"10:00:00:25", "--rate", "50"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(
      "label                 10:00:00:12.1\n"
      "  at full rate        10:00:00:25\n"
      "  without field mark  10:00:00:12\n"
      "rate                  50 non-drop-frame, 50 frames per second\n"
      "frame in the second   25\n"
      "field mark            1\n"
      "frame count           1800025\n"
      "  within the day      1800025\n"
      "day                   0\n"
      "milliseconds          36000500\n"
      "ST 12 word, 32 bits   0x90000012\n"
      "ST 12 word, 64 bits   0x0900000000000102\n",
      result.out);
}

// 59 * 60 + 4 * 2 + 1 = 3549 frames of 1001/60 milliseconds.
TEST(TimecodeCommand, JsonHoldsEveryFormAlways) {
  const Json expected = {{"label", "00:00:59;04.1"},
                         {"labels",
                          {{"dot_suffix", "00:00:59;04.1"},
                           {"dot_suffix_colon", "00:00:59:04.1"},
                           {"full_rate", "00:00:59;09"},
                           {"full_rate_colon", "00:00:59:09"},
                           {"omitted", "00:00:59;04"},
                           {"omitted_colon", "00:00:59:04"}}},
                         {"frame_rate", 60},
                         {"edit_rate", "60000/1001"},
                         {"drop_frame", true},
                         {"frame_number", 9},
                         {"field_mark", true},
                         {"frame_count", 3549},
                         {"absolute_frame_count", 3549},
                         {"day", 0},
                         {"milliseconds", 59209},
                         {"st12_32", "0x0000D944"},
                         {"st12_64", "0x000000000D090404"}};
  EXPECT_EQ(expected.dump(2) + '\n',
            timecode({"00:00:59;04.1", "--rate", "60", "--drop", "--json"}).out);
}

struct Reading {
  std::vector<std::string> args;
  const char* label;
  long long frame_count;
};

TEST(TimecodeCommand, ReadsLabelsCountsWordsAndClockTimes) {
  const Reading readings[] = {
      {{"00:00:01:00", "--rate", "24"}, "00:00:01:00", 24},
      {{"1:2:3:4", "--rate", "25"}, "01:02:03:04", 93079},
      {{"00:00:59;29", "--rate", "29.97"}, "00:00:59;29", 1799},
      {{"00:00:59:29", "--rate", "29.97"}, "00:00:59:29", 1799},
      {{"00:01:00:02", "--rate", "29.97", "--drop"}, "00:01:00;02", 1800},
      {{"00:00:00:49", "--rate", "50"}, "00:00:00:24.1", 49},
      {{"00:00:00:24.1", "--rate", "50"}, "00:00:00:24.1", 49},
      {{"00:01:00;04", "--rate", "59.94"}, "00:01:00;02.0", 3600},
      {{"24:00:00:00", "--rate", "25"}, "00:00:00:00", 2160000},
      {{"90000", "--rate", "25"}, "01:00:00:00", 90000},
      {{"+1", "--rate", "25"}, "00:00:00:01", 1},
      {{"-1", "--rate", "25"}, "23:59:59:24", -1},
      {{"--rate", "25", "--", "-1"}, "23:59:59:24", -1},
      {{"1800", "--rate", "30", "--drop"}, "00:01:00;02", 1800},
      {{"0x01020304", "--rate", "25"}, "01:02:03:04", 93079},
      {{"0X00010042", "--rate", "30"}, "00:01:00;02", 1800},
      {{"0x5", "--rate", "25"}, "00:00:00:05", 5},
      {{"0x80000000", "--rate", "50"}, "00:00:00:00.1", 1},
      {{"0x0001000200030004", "--rate", "25"}, "01:02:03:04", 93079},
      {{"0x000000001", "--rate", "25"}, "00:00:00:01", 1},
      {{"10:00:00", "--rate", "25"}, "10:00:00:00", 900000},
      {{"00:00:00.500", "--rate", "25"}, "00:00:00:12", 12},
      {{"01:00:00.000", "--rate", "30", "--drop"}, "01:00:00;00", 107892},
  };
  for (const Reading& reading : readings) {
    SCOPED_TRACE(reading.args.front());
    const Json json = timecode_json(reading.args);
    EXPECT_EQ(reading.label, json["label"]);
    EXPECT_EQ(reading.frame_count, json["frame_count"]);
  }
}

TEST(TimecodeCommand, DropFrameLabelsImplyTheEditRate) {
  EXPECT_EQ("30000/1001", timecode_json({"00:59:58;00", "--rate", "30"})["edit_rate"]);
  EXPECT_EQ("30", timecode_json({"00:59:58:00", "--rate", "30"})["edit_rate"]);
}

TEST(TimecodeCommand, Steps) {
  const Reading readings[] = {
      {{"00:00:59;29", "--rate", "30", "--add", "1"}, "00:01:00;02", 1800},
      {{"00:00:00:00", "--rate", "25", "--add", "-1"}, "23:59:59:24", -1},
      {{"00:10:00;00", "--rate", "30", "--add-minutes", "10"}, "00:20:00;00", 35964},
      {{"00:10:00:00", "--rate", "25", "--add-minutes", "-10"}, "00:00:00:00", 0},
      {{"00:00:00:01", "--rate", "25", "--days", "2"}, "00:00:00:01", 4320001},
      {{"0", "--rate", "25", "--days", "1", "--add-minutes", "1", "--add", "1"},
       "00:01:00:01",
       2161501},
  };
  for (const Reading& reading : readings) {
    SCOPED_TRACE(reading.label);
    const Json json = timecode_json(reading.args);
    EXPECT_EQ(reading.label, json["label"]);
    EXPECT_EQ(reading.frame_count, json["frame_count"]);
  }
}

TEST(TimecodeCommand, TellsTheDay) {
  EXPECT_EQ(0, timecode_json({"23:59:59:24", "--rate", "25"})["day"]);
  EXPECT_EQ(1, timecode_json({"23:59:59:24", "--rate", "25", "--add", "1"})["day"]);
  EXPECT_EQ(-1, timecode_json({"-1", "--rate", "25"})["day"]);
  EXPECT_EQ(1, timecode_json({"24:00:00:00", "--rate", "25"})["day"]);
  const Json hour_24 = timecode_json({"0x24000000", "--rate", "25"});
  EXPECT_EQ("24:00:00:00", hour_24["label"]);
  EXPECT_EQ(0, hour_24["day"]);
}

TEST(TimecodeCommand, FormatPrintsOnlyThePattern) {
  const ToolResult result =
      timecode({"01:02:03:04", "--rate", "25", "--format", "%HHh %MMm %SSs, %FF of 25"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("01h 02m 03s, 04 of 25\n", result.out);
  EXPECT_EQ("", result.err);
}

struct BadExpression {
  std::vector<std::string> args;
  const char* line;
};

constexpr const char* kExpected25 =
    " is no timecode at rate 25 "
    "(expected HH:MM:SS:FF with frames 00 to 24)";

TEST(TimecodeCommand, RefusesWhatIsNoLabel) {
  for (const std::string text : {"abc",
                                 "00:00:00:25",
                                 "25:00:00:00",
                                 "00:60:00:00",
                                 "00:00:60:00",
                                 "00:00:00:00x",
                                 "00:00:00:00 ",
                                 " 00:00:00:00",
                                 "00:00:00-00",
                                 "00;00:00:00",
                                 "0:0:0:0:0",
                                 "00:00:00:256",
                                 "00:00:00:0.1",
                                 "00:00",
                                 "00:00:00:",
                                 ":::",
                                 "+1:00:00:00",
                                 "00:00:00:-1",
                                 "",
                                 "--1"}) {
    SCOPED_TRACE(text);
    const ToolResult result = run_tool({"timecode", "--rate", "25", "--", text});
    expect_refused(1, '"' + text + '"' + kExpected25, result);
  }
}

TEST(TimecodeCommand, RefusalsTellWhatTheRateExpects) {
  const BadExpression bad[] = {
      {{"00:01:00:00", "--rate", "30", "--drop"},
       "\"00:01:00:00\" is no timecode at rate 30 drop-frame (expected HH:MM:SS;FF with frames 00 "
       "to 29, the first two frame numbers of a minute only where that is divisible by 10)"},
      {{"00:01:00;01", "--rate", "30"},
       "\"00:01:00;01\" is no timecode at rate 30 drop-frame (expected HH:MM:SS;FF with frames 00 "
       "to 29, the first two frame numbers of a minute only where that is divisible by 10)"},
      {{"00:00:00:50", "--rate", "50"},
       "\"00:00:00:50\" is no timecode at rate 50 (expected HH:MM:SS:FF with frames 00 to 49 or "
       "HH:MM:SS:FF.f with frames 00 to 24)"},
      {{"00:00:00:24.2", "--rate", "50"},
       "\"00:00:00:24.2\" is no timecode at rate 50 (expected HH:MM:SS:FF with frames 00 to 49 or "
       "HH:MM:SS:FF.f with frames 00 to 24)"},
      {{"00:01:00:03", "--rate", "60", "--drop"},
       "\"00:01:00:03\" is no timecode at rate 60 drop-frame (expected HH:MM:SS;FF with frames 00 "
       "to 59 or HH:MM:SS;FF.f with frames 00 to 29, the first four frame numbers of a minute only "
       "where that is divisible by 10)"},
      {{"0x25000000", "--rate", "25"},
       "\"0x25000000\" is no timecode at rate 25 (expected a 32-bit word of up to 8 hexadecimal "
       "digits, its fields in range)"},
      {{"0xg", "--rate", "25"},
       "\"0xg\" is no timecode at rate 25 (expected a 32-bit word of up to 8 hexadecimal digits, "
       "its fields in range)"},
      {{"0x", "--rate", "25"},
       "\"0x\" is no timecode at rate 25 (expected a 32-bit word of up to 8 hexadecimal digits, "
       "its fields in range)"},
      {{"0x10000000000000000", "--rate", "25"},
       "\"0x10000000000000000\" is no timecode at rate 25 (expected a 64-bit word of up to 16 "
       "hexadecimal digits, its fields in range)"},
      {{"9223372036854775808", "--rate", "25"},
       "\"9223372036854775808\" is no frame count (expected a number of 64 bits)"},
      {{"10:00:60", "--rate", "25"},
       "\"10:00:60\" is no time of day (expected HH:MM:SS or HH:MM:SS.mmm from 00:00:00 to "
       "23:59:59.999)"},
      {{"24:00:00", "--rate", "25"},
       "\"24:00:00\" is no time of day (expected HH:MM:SS or HH:MM:SS.mmm from 00:00:00 to "
       "23:59:59.999)"},
      {{"10:00:00.5", "--rate", "25"},
       "\"10:00:00.5\" is no time of day (expected HH:MM:SS or HH:MM:SS.mmm from 00:00:00 to "
       "23:59:59.999)"},
  };
  for (const BadExpression& expression : bad) {
    SCOPED_TRACE(expression.line);
    expect_refused(1, expression.line, timecode(expression.args));
    auto with_json = expression.args;
    with_json.emplace_back("--json");
    expect_refused(1, expression.line, timecode(with_json));
  }
}

TEST(TimecodeCommand, RefusalsEscapeAndCutTheValue) {
  expect_refused(1, std::string("\"a\\x1b\\x0a\\xc3\\xa4\\x7f\"") + kExpected25,
                 timecode({"a\x1b\n\xC3\xA4\x7F", "--rate", "25"}));
  expect_refused(1, '"' + std::string(60, 'a') + "...\"" + kExpected25,
                 timecode({std::string(61, 'a'), "--rate", "25"}));
}

struct Repair {
  std::vector<std::string> args;
  const char* label;
  const char* note;
};

TEST(TimecodeCommand, RepairReadsLenientlyAndTellsTheDifference) {
  const Repair repairs[] = {
      {{"00:00:75:00", "--rate", "25"},
       "00:01:15:00",
       "kvtool: \"00:00:75:00\" is repaired to 00:01:15:00; read strictly it is no timecode at "
       "rate 25\n"},
      {{"10,00,00,05", "--rate", "25"},
       "10:00:00:05",
       "kvtool: \"10,00,00,05\" is repaired to 10:00:00:05; read strictly it is no timecode at "
       "rate 25\n"},
      {{"00:01:00;00", "--rate", "30"},
       "00:00:59;28",
       "kvtool: \"00:01:00;00\" is repaired to 00:00:59;28; read strictly it is no timecode at "
       "rate 30\n"},
      {{"00:00:00:10", "--rate", "50"},
       "00:00:00:10.0",
       "kvtool: \"00:00:00:10\" is repaired to 00:00:00:10.0; read strictly it is "
       "00:00:00:05.0\n"},
      {{"10:00:00:05", "--rate", "25"}, "10:00:00:05", ""},
      {{"10:00:00:05", "--rate", "30", "--drop"}, "10:00:00;05", ""},
  };
  for (const Repair& repair : repairs) {
    SCOPED_TRACE(repair.args.front());
    auto args = repair.args;
    args.insert(args.end(), {"--repair", "--json"});
    const ToolResult result = timecode(args);
    EXPECT_EQ(0, result.code);
    EXPECT_EQ(repair.note, result.err);
    EXPECT_EQ(repair.label, Json::parse(result.out)["label"]);
  }
}

TEST(TimecodeCommand, RefusesWhatCannotBeRepaired) {
  expect_refused(1,
                 "\"10:00\" cannot be repaired to a timecode at rate 25 (expected four fields "
                 "parted by \":\", \";\" or \",\")",
                 timecode({"10:00", "--rate", "25", "--repair"}));
}

}  // namespace
}  // namespace Korvane::Tool
