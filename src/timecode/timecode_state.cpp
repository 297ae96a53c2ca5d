#include "timecode/timecode_state.h"

#include <algorithm>

#include "core/exception.h"
#include "foundation/wrapping.h"
#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

constexpr long long kFar = 1LL << 62;  // from here on steps mind the ends of 64 bits

// Derives the label from the absolute frame count, which is below 25 hours, so that 32 bits hold
// it. Of ten minutes all but the first drop numbers; without drop-frame counting none does.
template <unsigned int rate, bool drop>
void derive_label(TimecodeState& state) {
  constexpr unsigned int kDropped = drop ? dropped_per_minute(rate) : 0;
  constexpr unsigned int kPerMinute = 60 * rate - kDropped;
  constexpr unsigned int kPerTenMinutes = 10 * kPerMinute + kDropped;
  const auto frame_of_day = static_cast<unsigned int>(state.absolute_frame_count());
  const unsigned int tens = frame_of_day / kPerTenMinutes;
  const unsigned int rest = frame_of_day % kPerTenMinutes;
  const unsigned int minute = (std::max(rest, kDropped) - kDropped) / kPerMinute;
  const unsigned int number_of_minute = rest - minute * kPerMinute;
  const unsigned int number_of_second = number_of_minute % rate;
  state.hours = static_cast<unsigned char>(tens / 6);
  state.minutes = static_cast<unsigned char>(tens % 6 * 10 + minute);
  state.seconds = static_cast<unsigned char>(number_of_minute / rate);
  state.frames = static_cast<unsigned char>(number_of_second / frames_per_label_frame(rate));
  state.field_mark = is_double_rate(rate) && number_of_second % 2 != 0;
}

constexpr Stepping stepping_at(unsigned short rate) {
  return is_double_rate(rate) ? Stepping::Pairs : Stepping::Single;
}

// Finds the day of the frame count, without `wrap` the first even for an hour 24.
void enter_day(TimecodeState& state, long long frames_per_day, bool wrap) {
  const long long count = state.frame_count;
  const bool in_first_day = count >= 0 && count < frames_per_day;
  long long whole_days = 0;
  if (wrap && !in_first_day)
    whole_days = count / frames_per_day - (count % frames_per_day < 0 ? 1 : 0);
  state.to_first_day = wrapping_multiply(whole_days, -frames_per_day);
  state.days = static_cast<short>(whole_days);  // as if counted one by one in 16 bits
  const bool in_place = (wrap || in_first_day) && count >= -kFar && count < kFar;
  state.stepping = in_place ? stepping_at(state.frame_rate) : Stepping::Derived;
}

// One function for each way of counting: the compiler divides by constants.
template <unsigned int rate, bool drop>
void normalize_at(TimecodeState& state, bool wrap) {
  constexpr unsigned long long kPerDay = frames_per_day(rate, drop);
  const auto frame_of_day = static_cast<unsigned long long>(state.absolute_frame_count());
  // Most frames lie in the same day as the one before.
  if (state.stepping == Stepping::Derived || frame_of_day >= kPerDay)
    enter_day(state, kPerDay, wrap);
  derive_label<rate, drop>(state);
}

}  // namespace

void TimecodeState::validate_rate() const {
  if (!is_supported_rate(frame_rate))
    exception_throw(NotSupported, "Frame rate not supported.", true);
}

void TimecodeState::validate(bool check_drop_frame_label) const {
  validate_rate();
  if (hours > 24)  // 24 itself is the end of the day
    exception_throw(InvalidArgument, "Hours cannot be lower than 0 and higher than 24.", true);
  if (minutes > 59)
    exception_throw(InvalidArgument, "Minutes cannot be lower than 0 and higher than 59.", true);
  if (seconds > 59)
    exception_throw(InvalidArgument, "Seconds cannot be lower than 0 and higher than 59.", true);
  if (frames > last_frame)
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
  // A label of the day that counting does not leave out is what it would be derived to.
  if (check_drop_frame_label && hours < 24)
    keep_label();
  else
    normalize(wrap);
}

void TimecodeState::keep_label() {
  field_mark = field_mark && is_double_rate(frame_rate);
  stepping = stepping_at(frame_rate);
}

void TimecodeState::normalize(bool wrap) {
  switch (frame_rate) {
    case 24:
      return normalize_at<24, false>(*this, wrap);
    case 25:
      return normalize_at<25, false>(*this, wrap);
    case 30:
      return drop_frame ? normalize_at<30, true>(*this, wrap)
                        : normalize_at<30, false>(*this, wrap);
    case 50:
      return normalize_at<50, false>(*this, wrap);
    default:  // 60: validate_rate() has refused every other
      return drop_frame ? normalize_at<60, true>(*this, wrap)
                        : normalize_at<60, false>(*this, wrap);
  }
}

void TimecodeState::add(long long n) {
  frame_count = wrapping_add(frame_count, n);
  normalize(true);
}

void TimecodeState::step_further() {
  if (stepping == Stepping::Derived) return add(1);
  if (stepping == Stepping::Pairs && !field_mark) {
    field_mark = true;
  } else if (frames < last_frame) {
    ++frames;
    field_mark = false;
  } else if (seconds < 59) {
    ++seconds;
    frames = 0;
    field_mark = false;
  } else {
    return add(1);
  }
  ++frame_count;
}

void TimecodeState::step_further_back() {
  if (stepping == Stepping::Derived) return add(-1);
  const bool pairs = stepping == Stepping::Pairs;
  const int first = drop_frame && seconds == 0 ? kFirstNeverDropped : 0;
  if (pairs && field_mark) {
    field_mark = false;
  } else if (frames > first) {
    --frames;
    field_mark = pairs;
  } else if (seconds > 0) {
    --seconds;
    frames = last_frame;
    field_mark = pairs;
  } else {
    return add(-1);
  }
  --frame_count;
}

}  // namespace Korvane
