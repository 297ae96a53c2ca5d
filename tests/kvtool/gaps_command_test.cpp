#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

ToolResult gaps(const std::string& input, std::vector<std::string> options) {
  options.insert(options.begin(), "gaps");
  return run_tool(options, input);
}

TEST(GapsCommand, ContinuousTextIsDone) {
  const ToolResult result = gaps("10:00:00:23\n10:00:00:24\n10:00:01:00\n", {"--rate", "25"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("standard input: 3 timecodes, 0 gaps, first 10:00:00:23, last 10:00:01:00\n",
            result.out);
  EXPECT_EQ("", result.err);
}

TEST(GapsCommand, EveryGapIsALineWithItsPlace) {
  const ScratchFile list(
      "10:00:00:00\n10:00:00:01\n10:00:00:04\n10:00:00:05\n10:00:00:05\n10:00:00:00\n");
  const ToolResult result = run_tool({"gaps", list.path(), "--rate", "25"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ(list.path() +
                ":3: Found timecode difference, expected: 10:00:00:02 actual: 10:00:00:04 (+2 "
                "frames)\n" +
                list.path() +
                ":5: Found timecode difference, expected: 10:00:00:06 actual: 10:00:00:05 (-1 "
                "frame)\n" +
                list.path() +
                ":6: Found timecode difference, expected: 10:00:00:06 actual: 10:00:00:00 (-6 "
                "frames)\n" +
                list.path() + ": 6 timecodes, 3 gaps, first 10:00:00:00, last 10:00:00:00\n",
            result.out);
  EXPECT_EQ("", result.err);
}

TEST(GapsCommand, BlankLinesAndWhiteSpaceAtTheEndDoNotCount) {
  const ToolResult result =
      gaps("\n10:00:00:00\r\n   \r\n\n10:00:00:01 \t\r\n10:00:00:02", {"-", "--rate", "25"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("standard input: 3 timecodes, 0 gaps, first 10:00:00:00, last 10:00:00:02\n",
            result.out);
}

TEST(GapsCommand, MidnightAndDroppedNumbersAreNoGaps) {
  EXPECT_EQ(0, gaps("23:59:59:24\n00:00:00:00\n", {"--rate", "25"}).code);
  EXPECT_EQ(0, gaps("00:00:59;29\n00:01:00;02\n", {"--rate", "29.97"}).code);
  EXPECT_EQ(0, gaps("00:00:59:29\n00:01:00:02\n", {"--rate", "30", "--drop"}).code);
  EXPECT_EQ(0, gaps("00:00:59;59\n00:01:00;04\n", {"--rate", "59.94"}).code);
  EXPECT_EQ(1, gaps("00:00:59:29\n00:01:00:02\n", {"--rate", "30"}).code);
}

TEST(GapsCommand, DoubleRatesReadBothWaysOfWritingFrames) {
  const ToolResult result = gaps(
      "10:00:00:48\n10:00:00:49\n10:00:01:00.0\n10:00:01:00.1\n10:00:01:02\n", {"--rate", "50"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("standard input: 5 timecodes, 0 gaps, first 10:00:00:24.0, last 10:00:01:01.0\n",
            result.out);
}

TEST(GapsCommand, AChangeOfCountingIsAGap) {
  const ToolResult result = gaps("00:00:10:00\n00:00:10;01\n", {"--rate", "29.97"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ(
      "standard input:2: Found change of counting, expected: 00:00:10:01 actual: 00:00:10;01 (+0 "
      "frames)\n"
      "standard input: 2 timecodes, 1 gap, first 00:00:10:00, last 00:00:10;01\n",
      result.out);
}

TEST(GapsCommand, JumpsAreCountedTheShorterWayRoundTheDay) {
  const ToolResult result = gaps("23:59:59:23\n00:00:00:00\n23:59:59:24\n", {"--rate", "25"});
  EXPECT_EQ(
      "standard input:2: Found timecode difference, expected: 23:59:59:24 actual: 00:00:00:00 (+1 "
      "frame)\n"
      "standard input:3: Found timecode difference, expected: 00:00:00:01 actual: 23:59:59:24 (-2 "
      "frames)\n"
      "standard input: 3 timecodes, 2 gaps, first 23:59:59:23, last 23:59:59:24\n",
      result.out);
}

TEST(GapsCommand, Reads32BitWords) {
  const ToolResult result =
      gaps("0x10000024\n10000100\n0X10000102\n", {"--input", "st12", "--rate", "25"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ(
      "standard input:3: Found timecode difference, expected: 10:00:01:01 actual: 10:00:01:02 (+1 "
      "frame)\n"
      "standard input: 3 timecodes, 1 gap, first 10:00:00:24, last 10:00:01:02\n",
      result.out);
  // 00:00:59;29 and 00:01:00;02; the field mark of 50 is bit 31.
  EXPECT_EQ(0, gaps("00005969\n00010042\n", {"--input", "st12", "--rate", "29.97"}).code);
  EXPECT_EQ(0, gaps("00000000\n80000000\n00000001\n", {"--input", "st12", "--rate", "50"}).code);
}

// Bit 59 is parity at 25: set when an even number of the low 16 bits is.
TEST(GapsCommand, Reads64BitWordsWithoutTheFieldMarkUnlessAsked) {
  const ToolResult parity = gaps("0x0900000000000000\n0x0100000000000001\n0100000000000002\n",
                                 {"--input", "st12-64", "--rate", "25"});
  EXPECT_EQ(0, parity.code);
  EXPECT_EQ("standard input: 3 timecodes, 0 gaps, first 10:00:00:00, last 10:00:00:02\n",
            parity.out);

  const std::string fields = "0100000000000000\n0900000000000000\n0100000000000001\n";
  EXPECT_EQ(0, gaps(fields, {"--input", "st12-64", "--rate", "50", "--field-mark"}).code);
  EXPECT_EQ(
      "standard input:2: Found timecode difference, expected: 10:00:00:00.1 actual: "
      "10:00:00:00.0 (-1 frame)\n"
      "standard input:3: Found timecode difference, expected: 10:00:00:00.1 actual: "
      "10:00:00:01.0 (+1 frame)\n"
      "standard input: 3 timecodes, 2 gaps, first 10:00:00:00.0, last 10:00:00:01.0\n",
      gaps(fields, {"--input", "st12-64", "--rate", "50"}).out);
}

TEST(GapsCommand, JsonIsOneDocument) {
  const ToolResult result =
      gaps("10:00:00:00\n10:00:00:02\n\n10:00:00:03\n09:59:59:24\n", {"--rate", "25", "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(R"({
  "input": "standard input",
  "kind": "text",
  "rate": 25,
  "count": 4,
  "gap_count": 2,
  "first": "10:00:00:00",
  "last": "09:59:59:24",
  "gaps": [
    {
      "line": 2,
      "expected": "10:00:00:01",
      "actual": "10:00:00:02",
      "frames": 1
    },
    {
      "line": 5,
      "expected": "10:00:00:04",
      "actual": "09:59:59:24",
      "frames": -5
    }
  ]
}
)",
            result.out);
  EXPECT_EQ(2U, Json::parse(result.out)["gaps"].size());
}

TEST(GapsCommand, JsonWithoutGapsHasAnEmptyList) {
  const ToolResult result = gaps("10:00:00:00\n", {"--rate", "25", "--json"});
  EXPECT_EQ(0, result.code);
  const Json json = Json::parse(result.out);
  EXPECT_EQ(Json::array(), json["gaps"]);
  EXPECT_EQ(1, json["count"]);
  EXPECT_EQ("10:00:00:00", json["last"]);
}

TEST(GapsCommand, JsonKeepsAnyNumberOfGaps) {
  std::string input;
  for (int i = 0; i < 5000; ++i) input += i % 2 == 0 ? "00:00:00:00\n" : "12:00:00:00\n";
  const Json json = Json::parse(gaps(input, {"--rate", "25", "--json"}).out);
  ASSERT_EQ(4999U, json["gaps"].size());
  EXPECT_EQ(4999, json["gap_count"]);
  EXPECT_EQ(5000, json["gaps"][4998]["line"]);
  EXPECT_EQ("00:00:00:01", json["gaps"][4998]["expected"]);
}

TEST(GapsCommand, ALineThatIsNoTimecodeEndsTheReading) {
  expect_refused(1,
                 "standard input:3: \"10:00:00:25\" is no timecode at rate 25 (expected "
                 "HH:MM:SS:FF with frames 00 to 24)",
                 gaps("10:00:00:00\n\n10:00:00:25\nabc\n", {"--rate", "25"}));
  expect_refused(1,
                 "standard input:1: \"1000002x\" is no timecode at rate 25 (expected a 32-bit word "
                 "of up to 8 hexadecimal digits, its fields in range)",
                 gaps("1000002x\n", {"--input", "st12", "--rate", "25"}));
  expect_refused(1,
                 "standard input:2: \"0x10000000000000000\" is no timecode at rate 25 (expected a "
                 "64-bit word of up to 16 hexadecimal digits, its fields in range)",
                 gaps("0\n0x10000000000000000\n", {"--input", "st12-64", "--rate", "25"}));
  expect_refused(1,
                 "standard input:1: \"\\x00\\x01\\xff\" is no timecode at rate 25 (expected "
                 "HH:MM:SS:FF with frames 00 to 24)",
                 gaps(std::string("\0\1\xFF\n", 4), {"--rate", "25"}));
}

TEST(GapsCommand, ABadLineAfterAGapLeavesNoHalfDocument) {
  expect_refused(1,
                 "standard input:3: \"abc\" is no timecode at rate 25 (expected HH:MM:SS:FF with "
                 "frames 00 to 24)",
                 gaps("10:00:00:00\n10:00:00:05\nabc\n", {"--rate", "25", "--json"}));
}

TEST(GapsCommand, AVeryLongLineIsRefusedWhateverItBeginsWith) {
  const std::string timecode = "10:00:00:00";
  expect_refused(1,
                 "standard input:1: \"" + timecode + std::string(49, ' ') +
                     "...\" is no timecode at rate 25 (expected HH:MM:SS:FF with frames 00 to 24)",
                 gaps(timecode + std::string(100000, ' ') + "x\n", {"--rate", "25"}));
  EXPECT_EQ(0, gaps(timecode + std::string(100000, ' ') + "\n", {"--rate", "25"}).code);
}

TEST(GapsCommand, InputWithoutTimecodeIsBad) {
  for (const std::string input : {"", "\n", " \r\n\r\n"}) {
    expect_refused(1, "standard input: no timecode (expected at least one)",
                   gaps(input, {"--rate", "25"}));
    expect_refused(1, "standard input: no timecode (expected at least one)",
                   gaps(input, {"--rate", "25", "--json"}));
  }
}

TEST(GapsCommand, FilesThatCannotBeReadAreBad) {
  expect_refused(1, "no-such-list.txt: no such file (expected a readable file)",
                 run_tool({"gaps", "no-such-list.txt", "--rate", "25"}));
  const std::string folder = std::filesystem::temp_directory_path().string();
  expect_refused(1, folder + ": is a folder (expected a readable file)",
                 run_tool({"gaps", folder, "--rate", "25"}));
}

// Consecutive labels, parted by empty lines, for which each is looked at by itself.
std::string labels_read_one_by_one(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += "\n00:00:00:0" + std::to_string(i) + "\n";
  return lines;
}

TEST(GapsCommand, ProgressAppearsAfterASecondAndIsErased) {
  const ScratchFile list(labels_read_one_by_one(4));
  const ToolResult result = run_slowly({"gaps", list.path(), "--rate", "25"}, "", true);
  const std::string line = "kvtool: " + list.path() + " [##############################] 100%";
  EXPECT_EQ(line + '\r' + std::string(line.size(), ' ') + '\r', result.err);
  EXPECT_EQ(list.path() + ": 4 timecodes, 0 gaps, first 00:00:00:00, last 00:00:00:03\n",
            result.out);
}

TEST(GapsCommand, ProgressTellsThePercentageOfAFile) {
  const ScratchFile list(labels_read_one_by_one(8));
  const ToolResult result = run_slowly({"gaps", list.path(), "--rate", "25"}, "", true);
  EXPECT_NE(std::string::npos, result.err.find(" [###############...............] 50%\r"));
}

TEST(GapsCommand, ProgressCountsWhereTheSizeIsUnknown) {
  const ToolResult result = run_slowly({"gaps", "--rate", "25"}, labels_read_one_by_one(4), true);
  const std::string line = "kvtool: standard input 4 timecodes";
  EXPECT_EQ(line + '\r' + std::string(line.size(), ' ') + '\r', result.err);
}

TEST(GapsCommand, ProgressShowsOnTerminalsOnly) {
  const ToolResult result = run_slowly({"gaps", "--rate", "25"}, labels_read_one_by_one(4), false);
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
}

}  // namespace
}  // namespace Korvane::Tool
