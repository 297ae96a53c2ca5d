#include "timecode/timecode_state.h"

#include "core/exception.h"
#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

// The number that the label of frame `count` of the day has when every number is counted, dropped
// ones too.
template <int rate>
int with_dropped_numbers(int count) {
  constexpr int kPerTenMinutes = rate * 600000 / 1001;
  constexpr int kPerMinute = rate * 60000 / 1001;
  const int tens = count / kPerTenMinutes;
  const int rest = count % kPerTenMinutes;
  const int dropping_minutes = (kPerMinute + rest - rate * 60) / kPerMinute;
  return count + (9 * tens + dropping_minutes) * dropped_per_minute(rate);
}

// Derives the label from the absolute frame count, which is below 25 hours, so that 32 bits hold
// it. One function a rate: the compiler divides by constants.
template <int rate>
void derive_label(TimecodeState& state) {
  int number = static_cast<int>(state.absolute_frame_count);
  if constexpr (can_drop_frames(rate)) {
    if (state.drop_frame) number = with_dropped_numbers<rate>(number);
  }
  const int second_of_day = number / rate;
  const int frame_of_second = number % rate;
  state.hours = static_cast<unsigned char>(second_of_day / 3600);
  state.minutes = static_cast<unsigned char>(second_of_day / 60 % 60);
  state.seconds = static_cast<unsigned char>(second_of_day % 60);
  state.frames = static_cast<unsigned char>(frame_of_second / frames_per_label_frame(rate));
  state.field_mark = is_double_rate(rate) && frame_of_second % 2 != 0;
}

}  // namespace

TimecodeState::TimecodeState(unsigned short rate, bool drop)
    : frame_rate(rate), drop_frame(drop && can_drop_frames(rate)) {}

TimecodeState::TimecodeState(unsigned short rate, long long count, bool drop)
    : TimecodeState(rate, drop) {
  frame_count = count;
}

void TimecodeState::validate(bool check_drop_frame_label) const {
  if (!is_supported_rate(frame_rate))
    exception_throw(NotSupported, "Frame rate not supported.", true);
  if (hours > 24)  // 24 itself is the end of the day
    exception_throw(InvalidArgument, "Hours cannot be lower than 0 and higher than 24.", true);
  if (minutes > 59)
    exception_throw(InvalidArgument, "Minutes cannot be lower than 0 and higher than 59.", true);
  if (seconds > 59)
    exception_throw(InvalidArgument, "Seconds cannot be lower than 0 and higher than 59.", true);
  if (frames >= frame_rate / frames_per_label_frame(frame_rate))
    exception_throw(InvalidArgument,
                    "Frames cannot be lower than 0 and higher than the frame rate value.", true);
  if (drop_frame && check_drop_frame_label && minutes % 10 != 0 && seconds == 0 && frames <= 1)
    exception_throw(
        InvalidArgument,
        "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.", true);
}

long long TimecodeState::count_of_label() const {
  // In 64 bits for the sake of rates that nothing has refused yet.
  const long long seconds_of_day = (hours * 60 + minutes) * 60 + seconds;
  const int frame_of_second = frames * frames_per_label_frame(frame_rate);
  long long count = seconds_of_day * frame_rate + frame_of_second;
  if (is_double_rate(frame_rate) && field_mark) ++count;
  if (drop_frame) count -= dropped_before(frame_rate, hours, minutes);
  return count;
}

void TimecodeState::recompute_from_fields(bool wrap, bool check_drop_frame_label) {
  validate(check_drop_frame_label);
  frame_count = count_of_label();
  normalize(wrap);
}

void TimecodeState::normalize(bool wrap) {
  absolute_frame_count = frame_count;
  days = 0;
  const long long per_day = frames_per_day(frame_rate, drop_frame);
  if (wrap && (frame_count < 0 || frame_count >= per_day)) {
    long long whole_days = frame_count / per_day;
    absolute_frame_count = frame_count % per_day;
    if (absolute_frame_count < 0) {
      absolute_frame_count += per_day;
      --whole_days;
    }
    days = static_cast<short>(whole_days);  // as if counted one by one in 16 bits
  }

  switch (frame_rate) {
    case 24:
      return derive_label<24>(*this);
    case 25:
      return derive_label<25>(*this);
    case 30:
      return derive_label<30>(*this);
    case 50:
      return derive_label<50>(*this);
    case 60:
      return derive_label<60>(*this);
    default:
      return;  // refused by validate()
  }
}

}  // namespace Korvane
