#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kvtool/clips.h"
#include "kvtool/sei_timecodes.h"
#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

Json probe_json(const std::string& path, int expected_code) {
  const ToolResult result = run_tool({"probe", path, "--json"});
  EXPECT_EQ(expected_code, result.code) << result.err;
  return Json::parse(result.out);
}

// Frame indices and labels of the frames' own timecodes.
using Listed = std::vector<std::pair<int, std::string>>;

Listed listed(const Json& report) {
  Listed list;
  for (const Json& entry : report["frame_timecodes"]["list"])
    list.emplace_back(entry["frame"].get<int>(), entry["timecode"].get<std::string>());
  EXPECT_EQ(list.size(), report["frame_timecodes"]["count"].get<std::size_t>());
  return list;
}

// From 00:59:58;00; the minute 60 drops no numbers.
Listed labels_of_clip() {
  Listed list;
  for (int i = 0; i < 75; ++i) {
    const std::string frames = (i % 30 < 10 ? "0" : "") + std::to_string(i % 30);
    const char* const seconds[] = {"00:59:58;", "00:59:59;", "01:00:00;"};
    list.emplace_back(i, seconds[i / 30] + frames);
  }
  return list;
}

TEST(ProbeCommand, ShowsInterlacedMpeg2InMxf) {
  const Json report = probe_json(clip("clip.mxf"), 0);
  EXPECT_EQ(clip("clip.mxf"), report["file"]);
  EXPECT_EQ("mxf", report["container"]["format"]);
  EXPECT_EQ((Json{{{"stream", 0},
                   {"codec", "mpeg2video"},
                   {"profile", "4:2:2"},
                   {"width", 1920},
                   {"height", 1080},
                   {"frame_rate", "30000/1001"},
                   {"timecode_rate", 30}}}),
            report["video"]);
  EXPECT_EQ(75, report["frames"]);
  EXPECT_EQ((Json{{"text", "00:59:58;00"}, {"where", "container"}}), report["timecode"]["stored"]);
  const Json& start = report["timecode"]["start"];
  EXPECT_EQ("00:59:58;00", start["label"]);
  EXPECT_EQ("00:59:58:00", start["labels"]["dot_suffix_colon"]);
  EXPECT_EQ(107832, start["frame_count"]);
  EXPECT_EQ("0x00595840", start["st12_32"]);
  EXPECT_EQ("0x0000050905080400", start["st12_64"]);
  EXPECT_EQ("01:00:00;14", report["timecode"]["end"]["label"]);
  EXPECT_EQ(107906, report["timecode"]["end"]["frame_count"]);
  EXPECT_EQ("group_of_pictures", report["frame_timecodes"]["carrier"]);
  EXPECT_EQ(labels_of_clip(), listed(report));
  EXPECT_EQ(Json::array(), report["frame_timecodes"]["differences"]);
  EXPECT_TRUE(report["start_difference"].is_null());
}

TEST(ProbeCommand, DescribesTheTracks) {
  const Json report = probe_json(clip("clip.mxf"), 0);
  ASSERT_EQ(3U, report["tracks"].size());
  Json picture = report["tracks"][0];
  EXPECT_EQ(15U, picture["layouts"].size());
  EXPECT_EQ((Json{{"colorspace", "Argb"},
                  {"component_depth", nullptr},
                  {"planes", {{{"stride", 7680}, {"lines", 1080}}}},
                  {"frame_bytes", 8294400}}),
            picture["layouts"][8]);
  picture.erase("layouts");
  const char* const umid = "0x060A2B340101010501010D001300000000000000000000000000000000000001";
  EXPECT_EQ((Json{{"stream", 0},
                  {"kind", "picture"},
                  {"codec", "mpeg2video"},
                  {"profile", "4:2:2"},
                  {"descriptor",
                   {{"essence_kind", "EssenceMpeg2"},
                    {"track_id", 2},
                    {"sample_rate", "30000/1001"},
                    {"pre_charge", nullptr},
                    {"private_data", nullptr},
                    {"width", 1920},
                    {"height", 1080},
                    {"field_height", 540},
                    {"interlaced", true},
                    {"aspect_ratio", "16/9"},
                    {"bit_rate", 50000000},
                    {"component_depth", 8},
                    {"colorspace", "ColorspaceUndefined"},
                    {"colorimetry", "ColorimetryUnspecified"},
                    {"key_values", {{"file_package_umid", umid}}}}},
                  {"video_format", "Hd1080i5994"},
                  {"image_info",
                   {{"width", 1920},
                    {"height", 1080},
                    {"interlaced", true},
                    {"colorspace", "ColorspaceUndefined"},
                    {"colorimetry", "ColorimetryUnspecified"}}}}),
            picture);
  EXPECT_EQ((Json{{"stream", 2},
                  {"kind", "sound"},
                  {"codec", "pcm_s24le"},
                  {"profile", nullptr},
                  {"descriptor",
                   {{"essence_kind", "EssencePcm"},
                    {"track_id", 4},
                    {"sample_rate", "48000"},
                    {"pre_charge", nullptr},
                    {"private_data", nullptr},
                    {"sampling_rate", 48000},
                    {"sampling_bits", 24},
                    {"channel_count", 1},
                    {"key_values", {{"file_package_umid", umid}}}}},
                  {"audio_info",
                   {{"sampling_bits", 24},
                    {"channel_count", 1},
                    {"sampling_rate", 48000},
                    {"block_align", 3}}}}),
            report["tracks"][2]);
}

TEST(ProbeCommand, ShowsThePlantedGap) {
  const Json report = probe_json(clip("clip-with-gap.mxf"), 1);
  EXPECT_EQ((Json{{{"frame", 40},
                   {"expected", "00:59:59;10"},
                   {"actual", "01:00:02;20"},
                   {"frames", 100}}}),
            report["frame_timecodes"]["differences"]);
  EXPECT_EQ(75U, listed(report).size());
}

TEST(ProbeCommand, TextListsEveryTimecodeOnFewLines) {
  const ToolResult result = run_tool({"probe", clip("clip-with-gap.mxf")});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.err);
  const std::string parts[] = {
      clip("clip-with-gap.mxf") +
          "\n"
          "container       MXF (Material eXchange Format)\n"
          "video stream 0  mpeg2video (4:2:2), 1920x1080, 30000/1001 frames per second, timecode "
          "rate 30\n"
          "frames          75\n"
          "\n"
          "source\n"
          "  master mob id     060a2b340101010501010d0013000000",
      ("\n\ntrack of stream 0: picture, mpeg2video (4:2:2)\n"
       "  essence kind      EssenceMpeg2\n"),
      ("\n\nstart timecode, stored as \"00:59:58;00\" (container)\n"
       "  label                 00:59:58;00\n"),
      "\nend timecode, of the last frame\n  label                 01:00:00;14\n",
      "\ntimecodes of 75 frames, in the headers of their groups of pictures\n",
      "\n       0  00:59:58;00  00:59:58;01  00:59:58;02  00:59:58;03  00:59:58;04  00:59:58;05\n",
      "      36  00:59:59;06  00:59:59;07  00:59:59;08  00:59:59;09  01:00:02;20  01:00:02;21\n",
      "      72  01:00:03;22  01:00:03;23  01:00:03;24\n\nframe 40: Found timecode difference",
      "difference, expected: 00:59:59;10 actual: 01:00:02;20 (+100 frames)\n"};
  for (const std::string& part : parts)
    EXPECT_NE(std::string::npos, result.out.find(part)) << part << "is missing from\n"
                                                        << result.out;
}

// The header of a group of pictures counts for its first picture in display order. With two B
// pictures before each reference an open group begins two pictures before its I picture.
TEST(ProbeCommand, PlacesTheTimecodesOfLongGroupsOfPictures) {
  const Listed open = {
      {0, "10:00:00:00"}, {10, "10:00:00:10"}, {22, "10:00:00:22"}, {34, "10:00:01:09"}};
  const Listed closed = {
      {0, "10:00:00:00"}, {10, "10:00:00:10"}, {20, "10:00:00:20"}, {30, "10:00:01:05"}};
  for (const auto& [name, expected] :
       {std::pair{"open-gop.mxf", open}, {"closed-gop.mxf", closed}, {"open-gop.mpg", open}}) {
    SCOPED_TRACE(name);
    const Json report = probe_json(clip(name), 0);
    EXPECT_EQ(40, report["frames"]);
    EXPECT_EQ(expected, listed(report));
    EXPECT_EQ(Json::array(), report["frame_timecodes"]["differences"]);
    EXPECT_EQ("10:00:01:14", report["timecode"]["end"]["label"]);
  }
}

TEST(ProbeCommand, TimecodesFarApartStandOnTheirOwnLines) {
  const ToolResult result = run_tool({"probe", clip("open-gop.mxf")});
  EXPECT_NE(std::string::npos, result.out.find("\n       0  10:00:00:00\n"
                                               "      10  10:00:00:10\n"
                                               "      22  10:00:00:22\n"
                                               "      34  10:00:01:09\n"
                                               "\n"
                                               "continuous: every timecode follows from the "
                                               "former\n"));
}

TEST(ProbeCommand, WithoutContainerTimecodeTheFramesTellTheStart) {
  const Json report = probe_json(clip("open-gop-50.m2v"), 0);
  EXPECT_EQ((Json{{"text", "10:00:00:24.1"}, {"where", "frames"}}), report["timecode"]["stored"]);
  EXPECT_EQ("10:00:00:49", report["timecode"]["start"]["labels"]["full_rate"]);
  EXPECT_EQ("0x90000024", report["timecode"]["start"]["st12_32"]);
  EXPECT_EQ((Listed{{0, "10:00:00:24.1"}, {10, "10:00:01:04.1"}, {22, "10:00:01:10.1"}}),
            listed(report));
}

TEST(ProbeCommand, ReadsDropFrameAt60) {
  const Json report = probe_json(clip("drop-60.mxf"), 0);
  EXPECT_EQ("60000/1001", report["video"][0]["frame_rate"]);
  EXPECT_EQ(60, report["video"][0]["timecode_rate"]);
  EXPECT_EQ("00:00:59;28.0", report["timecode"]["start"]["label"]);
  EXPECT_EQ("00:01:00;14.1", report["timecode"]["end"]["label"]);
  const Listed list = listed(report);
  ASSERT_EQ(30U, list.size());
  EXPECT_EQ("00:00:59;29.1", list[3].second);
  EXPECT_EQ("00:01:00;02.0", list[4].second);
}

TEST(ProbeCommand, ReadsTheTimecodeTrackOfMov) {
  const Json report = probe_json(clip("tmcd.mov"), 0);
  EXPECT_EQ("01:02:03:04", report["timecode"]["stored"]["text"]);
  EXPECT_EQ("01:02:04:08", report["timecode"]["end"]["label"]);
  EXPECT_TRUE(report["frame_timecodes"].is_null());
  const Json film = probe_json(clip("film.mov"), 0);
  EXPECT_EQ("24000/1001", film["video"][0]["frame_rate"]);
  EXPECT_EQ(24, film["video"][0]["timecode_rate"]);
  EXPECT_EQ("01:02:03:15", film["timecode"]["end"]["label"]);
}

TEST(ProbeCommand, ReadsTheTimecodesOfH264Pictures) {
  const std::string stream = read_file(clip("sei.h264"));
  const ScratchFile file(with_sei_timecodes(stream, {{10, 0, 0, 48},
                                                     {10, 0, 0, 49},
                                                     {10, 0, 1, 0},
                                                     {10, 0, 1, 1},
                                                     {10, 0, 1, 4},
                                                     {10, 0, 1, 5}}),
                         ".h264");
  const Json report = probe_json(file.path(), 1);
  EXPECT_EQ("h264", report["video"][0]["codec"]);
  EXPECT_EQ(50, report["video"][0]["timecode_rate"]);
  EXPECT_EQ("frame", report["frame_timecodes"]["carrier"]);
  EXPECT_EQ((Listed{{0, "10:00:00:24.0"},
                    {1, "10:00:00:24.1"},
                    {2, "10:00:01:00.0"},
                    {3, "10:00:01:00.1"},
                    {4, "10:00:01:02.0"},
                    {5, "10:00:01:02.1"}}),
            listed(report));
  EXPECT_EQ((Json{{{"frame", 4},
                   {"expected", "10:00:01:01.0"},
                   {"actual", "10:00:01:02.0"},
                   {"frames", 2}}}),
            report["frame_timecodes"]["differences"]);
}

TEST(ProbeCommand, TellsWhenFramesContradictTheContainer) {
  const Json report = probe_json(clip("other-start.mxf"), 1);
  EXPECT_EQ("11:00:00:00", report["timecode"]["start"]["label"]);
  EXPECT_EQ((Json{{"container", "11:00:00:00"}, {"first_frame", "10:00:00:00"}}),
            report["start_difference"]);
  const ToolResult text = run_tool({"probe", clip("other-start.mxf")});
  EXPECT_NE(std::string::npos,
            text.out.find("\nthe container starts at 11:00:00:00, the frames at 10:00:00:00\n"));
}

// 24 frames from 10:00:00:00, of which frame 12 carries the last timecode, then 10:00:10:00.
TEST(ProbeCommand, StepsOverFramesWithoutTimecode) {
  const Json report = probe_json(clip("gap.m2v"), 1);
  EXPECT_EQ((Json{{{"frame", 24},
                   {"expected", "10:00:00:24"},
                   {"actual", "10:00:10:00"},
                   {"frames", 226}}}),
            report["frame_timecodes"]["differences"]);
}

TEST(ProbeCommand, AFileWithoutTimecodeIsReportedAndBad) {
  const ToolResult result = run_tool({"probe", clip("no-timecode.mp4"), "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("kvtool: " + clip("no-timecode.mp4") +
                ": no timecode (expected one in the container or in a frame)\n",
            result.err);
  const Json report = Json::parse(result.out);
  EXPECT_TRUE(report["timecode"].is_null());
  EXPECT_TRUE(report["frame_timecodes"].is_null());
  EXPECT_EQ(30, report["frames"]);
}

TEST(ProbeCommand, BadFilesAreOneLine) {
  const std::pair<const char*, const char*> bad[] = {
      {"no-such-file.mxf", "no such file (expected a readable file)"},
      {"text.mxf", "Invalid data found when processing input (expected a media file)"},
  };
  for (const auto& [name, reason] : bad) {
    SCOPED_TRACE(name);
    expect_refused(1, clip(name) + ": " + reason, run_tool({"probe", clip(name)}));
    expect_refused(1, clip(name) + ": " + reason, run_tool({"probe", clip(name), "--json"}));
  }
}

// A frame with its sound takes some 212 kilobytes, so that nine million bytes hold about 42.
TEST(ProbeCommand, ATruncatedFileIsOneLineWithBothNumbers) {
  const ToolResult result = run_tool({"probe", clip("truncated.mxf"), "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.out);
  const std::string start = "kvtool: " + clip("truncated.mxf") + ": ";
  ASSERT_EQ(0U, result.err.find(start)) << result.err;
  const int frames = std::stoi(result.err.substr(start.size()));
  EXPECT_EQ(start + std::to_string(frames) +
                " frames can be read (expected 75, which the container states)\n",
            result.err);
  EXPECT_NEAR(42, frames, 2);
}

TEST(ProbeCommand, ProgressIsErased) {
  const ToolResult result = run_slowly({"probe", clip("clip.mxf")}, "", true);
  EXPECT_EQ(0, result.code);
  EXPECT_NE(std::string::npos, result.err.find("clip.mxf [###############...............] 5"));
  ASSERT_FALSE(result.err.empty());
  EXPECT_EQ('\r', result.err.back());
  EXPECT_EQ("", run_slowly({"probe", clip("clip.mxf")}, "", false).err);
}

// The hours stand in bits 2 to 6 of the first byte behind the start code of a group.
TEST(ProbeCommand, AnImpossibleTimecodeOfAFrameIsBad) {
  std::string stream = read_file(clip("early.m2v"));
  const std::size_t group = stream.find(std::string("\0\0\1\xB8", 4));
  ASSERT_NE(std::string::npos, group);
  stream[group + 4] = '\x7C';
  const ScratchFile file(stream, ".m2v");
  expect_refused(1,
                 file.path() +
                     ": frame 0 carries no valid timecode (Hours cannot be lower than 0 and higher "
                     "than 24.)",
                 run_tool({"probe", file.path()}));
}

}  // namespace
}  // namespace Korvane::Tool
