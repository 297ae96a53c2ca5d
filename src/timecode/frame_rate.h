// The supported frame rates and the constants of counting at each, worked out by the compiler.

#ifndef KV_ENGINE_SRC_TIMECODE_FRAME_RATE_H
#define KV_ENGINE_SRC_TIMECODE_FRAME_RATE_H

namespace Korvane {

// 48 takes part in all double-rate arithmetic, although no timecode can be built at 48.
constexpr bool is_double_rate(unsigned short rate) {
  return rate == 48 || rate == 50 || rate == 60;
}

constexpr bool can_drop_frames(unsigned short rate) { return rate == 30 || rate == 60; }

// What a label's `frames` field counts: single frames, or pairs at double rates.
constexpr unsigned int frames_per_label_frame(unsigned short rate) {
  return is_double_rate(rate) ? 2 : 1;
}

// The last value of a label's `frames` field.
constexpr unsigned char last_label_frame(unsigned short rate) {
  return static_cast<unsigned char>(rate / frames_per_label_frame(rate) - 1);
}

// Drop-frame counting leaves out this many frame numbers each minute but the tenth.
constexpr unsigned int dropped_per_minute(unsigned short rate) {
  return is_double_rate(rate) ? 4 : 2;
}

// The numbers that drop-frame counting has left out before the minute.
constexpr unsigned int dropped_before(unsigned short rate, unsigned int minute_of_day) {
  return (minute_of_day - minute_of_day / 10) * dropped_per_minute(rate);
}

constexpr long long frames_per_day(unsigned short rate, bool drop_frame) {
  return 24LL * 3600 * rate - (drop_frame ? dropped_before(rate, 24 * 60) : 0);
}

static_assert(frames_per_day(24, false) == 2073600);
static_assert(frames_per_day(25, false) == 2160000);
static_assert(frames_per_day(30, false) == 2592000);
static_assert(frames_per_day(30, true) == 2589408);
static_assert(frames_per_day(50, false) == 4320000);
static_assert(frames_per_day(60, false) == 5184000);
static_assert(frames_per_day(60, true) == 5178816);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_FRAME_RATE_H
