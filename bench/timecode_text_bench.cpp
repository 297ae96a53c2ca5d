// Texts of timecodes at 30 drop-frame, both ways.

#include <gst/video/video.h>
#include <ltc.h>

#include <array>
#include <cstdio>
#include <regex>
#include <string>

extern "C" {
#include <libavutil/timecode.h>
}

#include "side.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

constexpr auto kSemicolon = Timecode::DropFrameSemicolon;
constexpr auto kDot = Timecode::FieldMarkDotSuffix;
constexpr long long kSomeCount = 1234567;
constexpr int kFramesOfDay = 2589408;
constexpr const char* kSomeLabel = "11:26:33;21";

int print_label(char (&text)[32], int hours, int minutes, int seconds, int frames) {
  return std::snprintf(text, sizeof text, "%02d:%02d:%02d;%02d", hours, minutes, seconds, frames);
}

const bool kText[] = {
    measure("text/ours", [timecode = Timecode(30, kSomeCount,
                                              true)] { return timecode.c_str(kSemicolon, kDot); }),
    measure("text/snprintf",
            [label = std::array<int, 4>{11, 26, 33, 21}]() mutable {
              benchmark::DoNotOptimize(label);
              char text[32];
              print_label(text, label[0], label[1], label[2], label[3]);
              return text[10];
            }),
};

const bool kCountAndText[] = {
    measure("count_and_text/ours",
            [] { return Timecode(30, kSomeCount, true).c_str(kSemicolon, kDot)[10]; }),
    measure("count_and_text/libavutil",
            [] {
              AVTimecode timecode;
              char text[AV_TIMECODE_STR_SIZE];
              av_timecode_init(&timecode, {30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 0, nullptr);
              av_timecode_make_string(&timecode, text, static_cast<int>(kSomeCount));
              return text[10];
            }),
};

const bool kStrictParse[] = {
    measure("strict_parse/ours",
            [] {
              return TimecodeUtils::load_timecode_from_string(30, kSomeLabel, kSemicolon, kDot)
                  .frame_count();
            }),
    measure("strict_parse/sscanf",
            [] {
              int hours = 0, minutes = 0, seconds = 0, frames = 0;
              char separator = 0;
              std::sscanf(kSomeLabel, "%d:%d:%d%c%d", &hours, &minutes, &seconds, &separator,
                          &frames);
              return ((hours * 60 + minutes) * 60 + seconds) * 30 + frames;
            }),
    measure("strict_parse/libavutil",
            [] {
              AVTimecode timecode;
              av_timecode_init_from_string(&timecode, {30000, 1001}, kSomeLabel, nullptr);
              return timecode.start;
            }),
    measure("strict_parse/gstreamer",
            [] {
              GstVideoTimeCode* const timecode = gst_video_time_code_new_from_string(kSomeLabel);
              const auto frames = timecode->frames;
              gst_video_time_code_free(timecode);
              return frames;
            }),
};

const bool kFormatter[] = {
    measure("formatter/ours",
            [timecode = Timecode(30, kSomeCount, true)] {
              return timecode.formatter("%HH:%MM:%SS:%FF");
            }),
    measure("formatter/std::regex_replace",
            [hours = std::regex("%HH"), minutes = std::regex("%MM"), seconds = std::regex("%SS"),
             frames = std::regex("%FF")] {
              std::string text = "%HH:%MM:%SS:%FF";
              text = std::regex_replace(text, hours, "11");
              text = std::regex_replace(text, minutes, "26");
              text = std::regex_replace(text, seconds, "33");
              return std::regex_replace(text, frames, "21");
            }),
};

// Every frame of a day, stepped and printed.
void measure_day(const char* name, void (*day)()) {
  benchmark::RegisterBenchmark(name, [day](benchmark::State& state) {
    for (auto _ : state) day();
  })->Unit(benchmark::kMillisecond);
}

void print_day() {
  Timecode timecode(30, true);
  for (int i = 0; i < kFramesOfDay; ++i, ++timecode)
    benchmark::DoNotOptimize(timecode.c_str(kSemicolon, kDot));
}

void print_day_by_libltc() {
  LTCFrame frame;
  ltc_frame_reset(&frame);
  frame.dfbit = 1;
  char text[32];
  for (int i = 0; i < kFramesOfDay; ++i) {
    print_label(text, frame.hours_tens * 10 + frame.hours_units,
                frame.mins_tens * 10 + frame.mins_units, frame.secs_tens * 10 + frame.secs_units,
                frame.frame_tens * 10 + frame.frame_units);
    benchmark::DoNotOptimize(text);
    ltc_frame_increment(&frame, 30, LTC_TV_525_60, LTC_NO_PARITY);
  }
}

void print_day_by_libavutil() {
  AVTimecode timecode;
  char text[AV_TIMECODE_STR_SIZE];
  av_timecode_init(&timecode, {30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 0, nullptr);
  for (int i = 0; i < kFramesOfDay; ++i)
    benchmark::DoNotOptimize(av_timecode_make_string(&timecode, text, i));
}

void print_day_by_gstreamer() {
  GstVideoTimeCode* const timecode = gst_video_time_code_new(
      30000, 1001, nullptr, GST_VIDEO_TIME_CODE_FLAGS_DROP_FRAME, 0, 0, 0, 0, 0);
  for (int i = 0; i < kFramesOfDay; ++i) {
    char* const text = gst_video_time_code_to_string(timecode);
    benchmark::DoNotOptimize(text);
    g_free(text);
    gst_video_time_code_increment_frame(timecode);
  }
  gst_video_time_code_free(timecode);
}

const bool kDay = [] {
  measure_day("day/ours", print_day);
  measure_day("day/libltc + snprintf", print_day_by_libltc);
  measure_day("day/libavutil", print_day_by_libavutil);
  measure_day("day/gstreamer", print_day_by_gstreamer);
  return true;
}();

}  // namespace
}  // namespace Korvane
