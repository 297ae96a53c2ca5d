// Making timecodes at 30 drop-frame, and stepping them.

#include <gst/video/video.h>
#include <ltc.h>

#include <new>

extern "C" {
#include <libavutil/timecode.h>
}

#include "side.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

constexpr long long kSomeCount = 1234567;

// What a timecode cannot do without: one call that allocates its record, and one that frees it.
struct FloorRecord {
  long long counts[2];
  unsigned char label[16];
};
[[gnu::noinline]] void* make_floor_record(long long count) {
  return new FloorRecord{{count, count}, {}};
}
[[gnu::noinline]] void free_floor_record(void* record) { delete static_cast<FloorRecord*>(record); }

long long floor_of_construction() {
  void* const record = make_floor_record(kSomeCount);
  benchmark::DoNotOptimize(record);
  free_floor_record(record);
  return 0;
}

unsigned long long with_gstreamer(unsigned int hours, unsigned int minutes, unsigned int seconds,
                                  unsigned int frames) {
  GstVideoTimeCode* const timecode =
      gst_video_time_code_new(30000, 1001, nullptr, GST_VIDEO_TIME_CODE_FLAGS_DROP_FRAME, hours,
                              minutes, seconds, frames, 0);
  const auto count = gst_video_time_code_frames_since_daily_jam(timecode);
  gst_video_time_code_free(timecode);
  return count;
}

const bool kLabelToTimecode[] = {
    measure("label_to_timecode/ours",
            [] { return Timecode(30, 11, 26, 33, 21, true, false).frame_count(); }),
    measure("label_to_timecode/gstreamer", [] { return with_gstreamer(11, 26, 33, 21); }),
    measure("label_to_timecode/floor", floor_of_construction),
};

const bool kCountToTimecode[] = {
    measure("count_to_timecode/ours",
            [count = kSomeCount]() mutable {
              benchmark::DoNotOptimize(count);
              return Timecode(30, count, true).frame_count();
            }),
    measure("count_to_timecode/gstreamer", [] { return with_gstreamer(11, 26, 33, 21); }),
    measure("count_to_timecode/floor", floor_of_construction),
};

// A frame of longitudinal timecode that steps.
class LtcCounter {
 public:
  LtcCounter() {
    SMPTETimecode label{};
    label.hours = 11;
    label.mins = 26;
    label.secs = 33;
    label.frame = 21;
    ltc_frame_reset(&frame_);
    frame_.dfbit = 1;
    ltc_time_to_frame(&frame_, &label, LTC_TV_525_60, LTC_NO_PARITY);
  }
  int step() { return ltc_frame_increment(&frame_, 30, LTC_TV_525_60, LTC_NO_PARITY); }
  int step_back() { return ltc_frame_decrement(&frame_, 30, LTC_TV_525_60, LTC_NO_PARITY); }

 private:
  LTCFrame frame_{};
};

// What a step cannot do without: a call, and one more on the count behind a pointer.
struct FloorCounter {
  long long* count = new long long(kSomeCount);
  [[gnu::noinline]] void add(long long n) { *count += n; }
};

const bool kStep[] = {
    measure("step/ours",
            [timecode = Timecode(30, kSomeCount, true)]() mutable {
              ++timecode;
              return &timecode;
            }),
    measure("step/libltc", [counter = LtcCounter()]() mutable { return counter.step(); }),
    measure("step/floor",
            [counter = FloorCounter()]() mutable {
              counter.add(1);
              return *counter.count;
            }),
};

const bool kStepBack[] = {
    measure("step_back/ours",
            [timecode = Timecode(30, kSomeCount, true)]() mutable {
              --timecode;
              return &timecode;
            }),
    measure("step_back/libltc", [counter = LtcCounter()]() mutable { return counter.step_back(); }),
    measure("step_back/floor",
            [counter = FloorCounter()]() mutable {
              counter.add(-1);
              return *counter.count;
            }),
};

// The label of a frame number, as av_timecode_make_string derives it before it prints.
struct AvLabel {
  int hours, minutes, seconds, frames;
};
[[gnu::noinline]] AvLabel av_label(const AVTimecode& timecode, int number) {
  const int fps = static_cast<int>(timecode.fps);
  const int adjusted = av_timecode_adjust_ntsc_framenum2(number, fps);
  return {adjusted / (fps * 3600) % 24, adjusted / (fps * 60) % 60, adjusted / fps % 60,
          adjusted % fps};
}

AVTimecode av_timecode() {
  AVTimecode timecode;
  av_timecode_init(&timecode, {30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 0, nullptr);
  return timecode;
}

const bool kAdd[] = {
    measure("add/ours",
            [timecode = Timecode(30, kSomeCount, true)]() mutable {
              timecode.add(1001);
              return &timecode;
            }),
    measure("add/libavutil",
            [timecode = av_timecode(), number = static_cast<int>(kSomeCount)]() mutable {
              number = (number + 1001) % 2589408;
              return av_label(timecode, number);
            }),
    measure("add/floor",
            [counter = FloorCounter()]() mutable {
              counter.add(1001);
              return *counter.count;
            }),
};

}  // namespace
}  // namespace Korvane
