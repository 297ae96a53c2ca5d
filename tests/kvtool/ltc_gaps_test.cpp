#include <gtest/gtest.h>
#include <ltc.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr unsigned int kSampleRate = 48000;

void append_number(std::string& bytes, unsigned int value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFFU);
}

// Mono, 8 bits unsigned.
std::string wav(const std::string& samples) {
  std::string bytes = "RIFF";
  append_number(bytes, static_cast<unsigned int>(36 + samples.size()), 4);
  bytes += "WAVEfmt ";
  append_number(bytes, 16, 4);
  append_number(bytes, 1, 2);  // PCM
  append_number(bytes, 1, 2);
  append_number(bytes, kSampleRate, 4);
  append_number(bytes, kSampleRate, 4);
  append_number(bytes, 1, 2);
  append_number(bytes, 8, 2);
  bytes += "data";
  append_number(bytes, static_cast<unsigned int>(samples.size()), 4);
  return bytes + samples;
}

class LtcRecording {
 public:
  LtcRecording(double rate, LTC_TV_STANDARD standard)
      : encoder_(ltc_encoder_create(kSampleRate, rate, standard, 0), ltc_encoder_free) {}

  void record(unsigned char hours, unsigned char minutes, unsigned char seconds,
              unsigned char frame, int count) {
    SMPTETimecode start = {};
    start.hours = hours;
    start.mins = minutes;
    start.secs = seconds;
    start.frame = frame;
    ltc_encoder_set_timecode(encoder_.get(), &start);
    for (int i = 0; i < count; ++i) {
      ltc_encoder_encode_frame(encoder_.get());
      take_samples();
      ltc_encoder_inc_timecode(encoder_.get());
    }
  }

  void record_in_reverse(int count) {
    for (int i = 0; i < count; ++i) {
      ltc_encoder_encode_reversed_frame(encoder_.get());
      take_samples();
      ltc_encoder_dec_timecode(encoder_.get());
    }
  }

  std::string file() {
    ltc_encoder_end_encode(encoder_.get());
    take_samples();
    return wav(samples_);
  }

 private:
  void take_samples() {
    ltcsnd_sample_t* samples = nullptr;
    const int size = ltc_encoder_get_bufferptr(encoder_.get(), &samples, 1);
    samples_.append(reinterpret_cast<const char*>(samples), static_cast<std::size_t>(size));
  }

  std::unique_ptr<LTCEncoder, void (*)(LTCEncoder*)> encoder_;
  std::string samples_;
};

ToolResult ltc_gaps(const std::string& path, std::vector<std::string> options) {
  options.insert(options.begin(), {"gaps", path, "--input", "ltc"});
  return run_tool(options);
}

TEST(LtcGaps, AContinuousRecordingIsDone) {
  LtcRecording recording(25, LTC_TV_625_50);
  recording.record(10, 0, 0, 20, 50);
  const ScratchFile file(recording.file(), ".wav");
  const ToolResult result = ltc_gaps(file.path(), {"--rate", "25"});
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_EQ(file.path() + ": 50 timecodes, 0 gaps, first 10:00:00:20, last 10:00:02:19\n",
            result.out);
}

TEST(LtcGaps, FindsAGapBySample) {
  LtcRecording recording(25, LTC_TV_625_50);
  recording.record(10, 0, 0, 0, 30);
  recording.record(10, 0, 5, 0, 20);
  const ScratchFile file(recording.file(), ".wav");
  const ToolResult result = ltc_gaps(file.path(), {"--rate", "25", "--json"});
  EXPECT_EQ(1, result.code);
  const Json json = Json::parse(result.out);
  EXPECT_EQ("ltc", json["kind"]);
  EXPECT_EQ(50, json["count"]);
  ASSERT_EQ(1U, json["gaps"].size());
  const Json& gap = json["gaps"][0];
  EXPECT_EQ("10:00:01:05", gap["expected"]);
  EXPECT_EQ("10:00:05:00", gap["actual"]);
  EXPECT_EQ(95, gap["frames"]);
  EXPECT_NEAR(30 * 1920, gap["sample"].get<int>(), 48);
}

TEST(LtcGaps, ReadsDropFrameFromTheRecording) {
  LtcRecording recording(30000.0 / 1001, LTC_TV_525_60);
  recording.record(0, 0, 59, 20, 20);
  const ScratchFile file(recording.file(), ".wav");
  const ToolResult result = ltc_gaps(file.path(), {"--rate", "29.97", "--drop"});
  EXPECT_EQ(0, result.code) << result.out << result.err;
  EXPECT_EQ(file.path() + ": 20 timecodes, 0 gaps, first 00:00:59;20, last 00:01:00;11\n",
            result.out);
}

TEST(LtcGaps, ReadsStandardInput) {
  LtcRecording recording(24, LTC_TV_FILM_24);
  recording.record(1, 2, 3, 4, 10);
  const ToolResult result = run_tool({"gaps", "--input", "ltc", "--rate", "24"}, recording.file());
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_EQ("standard input: 10 timecodes, 0 gaps, first 01:02:03:04, last 01:02:03:13\n",
            result.out);
}

TEST(LtcGaps, ReverseIsSaidClearly) {
  LtcRecording recording(25, LTC_TV_625_50);
  recording.record(10, 0, 0, 0, 10);
  recording.record_in_reverse(10);
  const ScratchFile file(recording.file(), ".wav");
  const ToolResult result = ltc_gaps(file.path(), {"--rate", "25", "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.out);
  EXPECT_EQ(0U, result.err.find("kvtool: " + file.path() + ": sample "));
  EXPECT_NE(std::string::npos,
            result.err.find(": longitudinal timecode runs in reverse (expected forward play)\n"));
}

TEST(LtcGaps, AnotherRateIsNoticed) {
  LtcRecording recording(30, LTC_TV_525_60);
  recording.record(10, 0, 0, 20, 10);
  const ScratchFile file(recording.file(), ".wav");
  const ToolResult result = ltc_gaps(file.path(), {"--rate", "24", "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.out);
  EXPECT_NE(std::string::npos,
            result.err.find(": no timecode at rate 24 (Frames cannot be lower than 0 and higher "
                            "than the frame rate value.)\n"));
}

TEST(LtcGaps, SilenceHoldsNoTimecode) {
  const ScratchFile file(wav(std::string(kSampleRate, '\x80')), ".wav");
  expect_refused(1, file.path() + ": no timecode (expected at least one)",
                 ltc_gaps(file.path(), {"--rate", "25"}));
}

TEST(LtcGaps, DoubleRatesAreWrongUsage) {
  const ScratchFile file(wav(std::string(kSampleRate, '\x80')), ".wav");
  for (const std::string rate : {"50", "60"})
    expect_refused(2, "longitudinal timecode has no rate " + rate + " (expected 24, 25 or 30)",
                   ltc_gaps(file.path(), {"--rate", rate}));
}

}  // namespace
}  // namespace Korvane::Tool
