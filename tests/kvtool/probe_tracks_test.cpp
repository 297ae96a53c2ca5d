// The tracks of clips whose makers state them: what is expected is what make-more-clips asked for.

#include <gtest/gtest.h>

#include "kvtool/clips.h"
#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

// The paragraphs of the tracks; those of pictures without their raw layouts.
std::vector<std::string> tracks_of(const ToolResult& result) {
  std::vector<std::string> tracks;
  std::istringstream lines(result.out);
  std::string line;
  bool listed = false;
  while (std::getline(lines, line)) {
    const bool begins = line.starts_with("track of stream ");
    if (begins) tracks.emplace_back();
    listed = begins || (listed && !line.empty() && !line.starts_with("  raw layout"));
    if (listed) tracks.back() += line + '\n';
  }
  return tracks;
}

void expect_tracks(const std::string& name, const std::vector<std::string>& expected) {
  const ToolResult result = run_tool({"probe", clip(name)});
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_EQ(expected, tracks_of(result));
}

// Of clips that are made without unique identifiers: the UMID label, then a material number of
// zeros.
const std::string kUmid =
    "  \"file_package_umid\"  "
    "\"0x060A2B340101010501010D001300000000000000000000000000000000000001\"\n";

TEST(ProbeTracks, XdcamMpeg2InMxf) {
  const std::string sound =
      "  essence kind      EssencePcm\n"
      "  track id          @\n"
      "  sample rate       48000\n"
      "  sampling rate     48000\n"
      "  sampling bits     24\n"
      "  channel count     1\n" +
      kUmid + "  audio             24 bits, 1 channel, 48000 per second, block align 3\n";
  const auto sound_of = [&](const std::string& stream, char id) {
    std::string text = "track of stream " + stream + ": sound, pcm_s24le\n" + sound;
    text[text.find('@')] = id;
    return text;
  };
  expect_tracks("xdcam.mxf", {"track of stream 0: picture, mpeg2video (4:2:2)\n"
                              "  essence kind      EssenceMpeg2\n"
                              "  track id          2\n"
                              "  sample rate       25\n"
                              "  width             1920\n"
                              "  height            1080\n"
                              "  field height      540\n"
                              "  interlaced        yes\n"
                              "  aspect ratio      16/9\n"
                              "  bit rate          50000000\n"
                              "  component depth   8\n"
                              "  colorspace        ColorspaceUndefined\n"
                              "  colorimetry       ColorimetryUnspecified\n" +
                                  kUmid +
                                  "  video format      Hd1080i50\n"
                                  "  image             1920x1080 interlaced, ColorspaceUndefined, "
                                  "ColorimetryUnspecified\n",
                              sound_of("1", '3'), sound_of("2", '4')});
}

// The stream states no bit rate.
TEST(ProbeTracks, Dnxhd145InMxf) {
  expect_tracks("dnxhd.mxf", {"track of stream 0: picture, dnxhd (DNXHD)\n"
                              "  essence kind      EssenceDnxhd\n"
                              "  track id          2\n"
                              "  sample rate       30000/1001\n"
                              "  width             1920\n"
                              "  height            1080\n"
                              "  field height      540\n"
                              "  interlaced        yes\n"
                              "  aspect ratio      16/9\n"
                              "  component depth   8\n"
                              "  colorspace        ColorspaceUndefined\n"
                              "  colorimetry       ColorimetryUnspecified\n" +
                              kUmid +
                              "  video format      Hd1080i5994\n"
                              "  image             1920x1080 interlaced, ColorspaceUndefined, "
                              "ColorimetryUnspecified\n"});
}

TEST(ProbeTracks, AvcIntraInMxf) {
  expect_tracks("avcintra.mxf", {"track of stream 0: picture, h264 (High 4:2:2 Intra)\n"
                                 "  essence kind      EssenceAvcIntra\n"
                                 "  track id          2\n"
                                 "  sample rate       25\n"
                                 "  width             1920\n"
                                 "  height            1080\n"
                                 "  field height      540\n"
                                 "  interlaced        yes\n"
                                 "  aspect ratio      16/9\n"
                                 "  component depth   10\n"
                                 "  colorspace        ColorspaceUndefined\n"
                                 "  colorimetry       ColorimetryUnspecified\n" +
                                 kUmid +
                                 "  video format      Hd1080i50\n"
                                 "  image             1920x1080 interlaced, ColorspaceUndefined, "
                                 "ColorimetryUnspecified\n"});
}

TEST(ProbeTracks, ImxInMxf) {
  expect_tracks(
      "imx.mxf",
      {"track of stream 0: picture, mpeg2video (4:2:2)\n"
       "  essence kind      EssenceMpeg2\n"
       "  track id          2\n"
       "  sample rate       25\n"
       "  width             720\n"
       "  height            576\n"
       "  field height      288\n"
       "  interlaced        yes\n"
       "  aspect ratio      4/3\n"
       "  bit rate          50000000\n"
       "  component depth   8\n"
       "  colorspace        ColorspaceUndefined\n"
       "  colorimetry       ColorimetryUnspecified\n" +
           kUmid +
           "  video format      Pal\n"
           "  image             720x576 interlaced, ColorspaceUndefined, "
           "ColorimetryUnspecified\n",
       "track of stream 1: sound, pcm_s16le\n"
       "  essence kind      EssencePcm\n"
       "  track id          3\n"
       "  sample rate       48000\n"
       "  sampling rate     48000\n"
       "  sampling bits     16\n"
       "  channel count     2\n" +
           kUmid + "  audio             16 bits, 2 channels, 48000 per second, block align 4\n"});
}

const std::string kTimecodeTrackOfMov =
    "track of stream 1: data, tmcd\n"
    "  essence kind      EssenceData\n"
    "  track id          2\n"
    "  sample rate       25\n"
    "  \"language\"        \"eng\"\n"
    "  \"handler_name\"    \"TimeCodeHandler\"\n"
    "  \"timecode\"        \"10:00:00:00\"\n";

// Which kind stands for which ProRes is not known, so none is stated.
TEST(ProbeTracks, ProresInMovWithItsTimecodeAsData) {
  expect_tracks("prores.mov", {"track of stream 0: picture, prores (HQ)\n"
                               "  essence kind      EssenceNone\n"
                               "  track id          1\n"
                               "  sample rate       25\n"
                               "  width             1920\n"
                               "  height            1080\n"
                               "  field height      540\n"
                               "  interlaced        yes\n"
                               "  aspect ratio      16/9\n"
                               "  component depth   10\n"
                               "  colorspace        ColorspaceUndefined\n"
                               "  colorimetry       ColorimetryUnspecified\n"
                               "  \"handler_name\"    \"VideoHandler\"\n"
                               "  \"vendor_id\"       \"FFMP\"\n"
                               "  \"encoder\"         \"Lavc prores_ks\"\n"
                               "  \"timecode\"        \"10:00:00:00\"\n"
                               "  video format      Hd1080i50\n"
                               "  image             1920x1080 interlaced, ColorspaceUndefined, "
                               "ColorimetryUnspecified\n",
                               kTimecodeTrackOfMov});
}

TEST(ProbeTracks, UncompressedV210InMovWithItsMetadata) {
  std::string data = kTimecodeTrackOfMov;
  data.replace(data.find("TimeCodeHandler"), 15, "Camera 1");
  expect_tracks("v210.mov",
                {"track of stream 0: picture, v210\n"
                 "  essence kind      EssenceUncompressed\n"
                 "  track id          1\n"
                 "  sample rate       25\n"
                 "  width             1920\n"
                 "  height            1080\n"
                 "  field height      540\n"
                 "  interlaced        yes\n"
                 "  aspect ratio      16/9\n"
                 "  component depth   10\n"
                 "  colorspace        V210\n"
                 "  colorimetry       ColorimetryUnspecified\n"
                 "  \"handler_name\"    \"Camera 1\"\n"
                 "  \"vendor_id\"       \"FFMP\"\n"
                 "  \"encoder\"         \"Lavc v210\"\n"
                 "  \"timecode\"        \"10:00:00:00\"\n"
                 "  video format      Hd1080i50\n"
                 "  image             1920x1080 interlaced, V210, ColorimetryUnspecified\n",
                 data});
}

TEST(ProbeTracks, UncompressedUyvyInMov) {
  const ToolResult result = run_tool({"probe", clip("uyvy.mov")});
  EXPECT_EQ(0, result.code) << result.err;
  const std::vector<std::string> tracks = tracks_of(result);
  ASSERT_EQ(2U, tracks.size());
  EXPECT_EQ(
      "track of stream 0: picture, rawvideo\n"
      "  essence kind      EssenceUncompressed\n"
      "  track id          1\n"
      "  sample rate       60000/1001\n"
      "  width             1280\n"
      "  height            720\n"
      "  field height      720\n"
      "  interlaced        no\n"
      "  aspect ratio      16/9\n"
      "  component depth   8\n"
      "  colorspace        Uyvy\n"
      "  colorimetry       ColorimetryUnspecified\n"
      "  \"handler_name\"    \"VideoHandler\"\n"
      "  \"vendor_id\"       \"FFMP\"\n"
      "  \"encoder\"         \"Lavc rawvideo\"\n"
      "  \"timecode\"        \"10:00:00;00\"\n"
      "  video format      Hd720p5994\n"
      "  image             1280x720 progressive, Uyvy, ColorimetryUnspecified\n",
      tracks[0]);
}

// The layouts of 1280x720: V210 pads its lines to multiples of 128 bytes.
TEST(ProbeTracks, ListsTheRawLayoutsOfAPicture) {
  const ToolResult result = run_tool({"probe", clip("uyvy.mov")});
  EXPECT_NE(
      std::string::npos,
      result.out.find("\n"
                      "  raw layout      planes  depth  stride          lines        frame bytes\n"
                      "  Yuv420p              3      8  1280 640 640    720 360 360      1382400\n"
                      "  Yuv422p              3      8  1280 640 640    720 720 720      1843200\n"
                      "  Uyvy                 1      8  2560            720              1843200\n"
                      "  V210                 1     10  3456            720              2488320\n"
                      "  V216                 1     10  5120            720              3686400\n"
                      "  Yuv422p10le          3     10  2560 1280 1280  720 720 720      3686400\n"
                      "  Yuv422p10leAlt       3     10  2560 1280 1280  720 720 720      3686400\n"
                      "  Rgb24                1     16  3840            720              2764800\n"
                      "  Argb                 1      -  5120            720              3686400\n"
                      "  Rgba                 1      8  5120            720              3686400\n"
                      "  Rgba64               1     16  10240           720              7372800\n"
                      "  Rgba64Alt            1     16  10240           720              7372800\n"
                      "  Dpx10                1     10  5120            720              3686400\n"
                      "  Smpte2110Yuv10       1     10  3200            720              2304000\n"
                      "  Yuv420pAlt           3      8  1280 640 640    720 360 360      1382400\n"
                      "\n"))
      << result.out;
}

// Compressed sound states no bits of a sample; its information says 0 for that.
TEST(ProbeTracks, AacIsDescribedAlone) {
  expect_tracks("aac.m4a", {"track of stream 0: sound, aac (LC)\n"
                            "  essence kind      EssenceNone\n"
                            "  track id          1\n"
                            "  sample rate       48000\n"
                            "  sampling rate     48000\n"
                            "  channel count     1\n"
                            "  \"language\"        \"und\"\n"
                            "  \"handler_name\"    \"SoundHandler\"\n"
                            "  \"vendor_id\"       \"[0][0][0][0]\"\n"
                            "  audio             0 bits, 1 channel, 48000 per second, block align "
                            "0\n"});
}

// Neither of these numbers its tracks.
TEST(ProbeTracks, PcmIsPcmInWavAndAiffInAiff) {
  expect_tracks("audio-only.wav",
                {"track of stream 0: sound, pcm_s16le\n"
                 "  essence kind      EssencePcm\n"
                 "  sample rate       44100\n"
                 "  sampling rate     44100\n"
                 "  sampling bits     16\n"
                 "  channel count     1\n"
                 "  audio             16 bits, 1 channel, 44100 per second, block align 2\n"});
  expect_tracks("pcm.aiff",
                {"track of stream 0: sound, pcm_s16be\n"
                 "  essence kind      EssenceAiff\n"
                 "  sample rate       48000\n"
                 "  sampling rate     48000\n"
                 "  sampling bits     16\n"
                 "  channel count     2\n"
                 "  audio             16 bits, 2 channels, 48000 per second, block align 4\n"});
}

TEST(ProbeTracks, AFileOfSoundAloneHasNoTimecodeToMiss) {
  const ToolResult result = run_tool({"probe", clip("audio-only.wav")});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(0U,
            result.out.find(clip("audio-only.wav") + "\n"
                                                     "container       WAV / WAVE (Waveform Audio)\n"
                                                     "\n"
                                                     "track of stream 0: sound, pcm_s16le\n"))
      << result.out;
  EXPECT_EQ(std::string::npos, result.out.find("timecode"));
}

// Any MPEG-4 of 320x240: no broadcast format, and a rate at which no timecode counts.
TEST(ProbeTracks, AVideoWithoutTimecodeRateShowsItsTracksAndIsBad) {
  for (const std::string rate : {"48", "120"}) {
    const ToolResult result = run_tool({"probe", clip(rate + ".mp4")});
    EXPECT_EQ(1, result.code);
    EXPECT_EQ("kvtool: " + clip(rate + ".mp4") + ": video of " + rate +
                  " frames per second has no timecode rate (expected 24, 25, 30, 50, 60, "
                  "24000/1001, 30000/1001 or 60000/1001)\n",
              result.err);
    const std::vector<std::string> tracks = tracks_of(result);
    ASSERT_EQ(1U, tracks.size());
    EXPECT_NE(std::string::npos, tracks[0].find("\n  sample rate       " + rate + "\n"));
    EXPECT_NE(std::string::npos, tracks[0].find("\n  essence kind      EssenceNone\n"));
    EXPECT_EQ(std::string::npos, result.out.find("\nframes"));
  }
}

TEST(ProbeTracks, AFileWithoutTimecodeStillShowsItsTracks) {
  const ToolResult result = run_tool({"probe", clip("no-timecode.mp4")});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("kvtool: " + clip("no-timecode.mp4") +
                ": no timecode (expected one in the container or in a frame)\n",
            result.err);
  EXPECT_EQ(1U, tracks_of(result).size());
  EXPECT_TRUE(result.out.ends_with("\n\ntimecode        none\n"));
}

}  // namespace
}  // namespace Korvane::Tool
