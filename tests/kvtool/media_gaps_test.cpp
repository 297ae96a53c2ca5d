#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kvtool/clips.h"
#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

TEST(MediaGaps, AContinuousClipIsDone) {
  const ToolResult result = run_tool({"gaps", clip("clip.mxf"), "--input", "media"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(clip("clip.mxf") + ": 75 timecodes, 0 gaps, first 00:59:58;00, last 01:00:00;14\n",
            result.out);
  EXPECT_EQ("", result.err);
}

TEST(MediaGaps, FindsThePlantedGapByItsFrame) {
  const ToolResult text = run_tool({"gaps", clip("clip-with-gap.mxf"), "--input", "media"});
  EXPECT_EQ(1, text.code);
  EXPECT_EQ(clip("clip-with-gap.mxf") +
                ": frame 40: Found timecode difference, expected: 00:59:59;10 actual: 01:00:02;20 "
                "(+100 frames)\n" +
                clip("clip-with-gap.mxf") +
                ": 75 timecodes, 1 gap, first 00:59:58;00, last 01:00:03;24\n",
            text.out);
  const ToolResult json = run_tool({"gaps", clip("clip-with-gap.mxf"), "--input", "media", "--rate",
                                    "29.97", "--drop", "--json"});
  EXPECT_EQ(1, json.code);
  EXPECT_EQ((Json{{{"frame", 40},
                   {"expected", "00:59:59;10"},
                   {"actual", "01:00:02;20"},
                   {"frames", 100}}}),
            Json::parse(json.out)["gaps"]);
}

TEST(MediaGaps, StepsOverFramesWithoutTimecode) {
  const ToolResult open = run_tool({"gaps", clip("open-gop.mxf"), "--input", "media"});
  EXPECT_EQ(0, open.code);
  EXPECT_EQ(clip("open-gop.mxf") + ": 4 timecodes, 0 gaps, first 10:00:00:00, last 10:00:01:09\n",
            open.out);
  const ToolResult gap = run_tool({"gaps", clip("gap.m2v"), "--input", "media"});
  EXPECT_EQ(1, gap.code);
  EXPECT_EQ(clip("gap.m2v") +
                ": frame 24: Found timecode difference, expected: 10:00:00:24 actual: 10:00:10:00 "
                "(+226 frames)\n" +
                clip("gap.m2v") + ": 4 timecodes, 1 gap, first 10:00:00:00, last 10:00:10:12\n",
            gap.out);
}

TEST(MediaGaps, ReadsStandardInput) {
  const ToolResult result =
      run_tool({"gaps", "-", "--input", "media"}, read_file(clip("clip-with-gap.mxf")));
  EXPECT_EQ(1, result.code);
  EXPECT_EQ(
      "standard input: frame 40: Found timecode difference, expected: 00:59:59;10 actual: "
      "01:00:02;20 (+100 frames)\n"
      "standard input: 75 timecodes, 1 gap, first 00:59:58;00, last 01:00:03;24\n",
      result.out);
}

TEST(MediaGaps, RefusesAnotherRateThanTheFiles) {
  expect_refused(1, clip("clip.mxf") + ": has timecode rate 30 (expected 25, which --rate gives)",
                 run_tool({"gaps", clip("clip.mxf"), "--input", "media", "--rate", "25"}));
}

TEST(MediaGaps, FramesWithoutTimecodeAreBad) {
  expect_refused(1, clip("tmcd.mov") + ": no timecode (expected at least one)",
                 run_tool({"gaps", clip("tmcd.mov"), "--input", "media"}));
  expect_refused(1, clip("audio-only.wav") + ": no video stream (expected a media file with video)",
                 run_tool({"gaps", clip("audio-only.wav"), "--input", "media"}));
  expect_refused(1,
                 "standard input: Invalid data found when processing input (expected a media file)",
                 run_tool({"gaps", "--input", "media"}, "no film"));
}

}  // namespace
}  // namespace Korvane::Tool
