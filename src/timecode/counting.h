// How labels and frame counts follow from each other, instantiated for each way of counting so that
// the compiler divides by constants.

#ifndef KV_ENGINE_SRC_TIMECODE_COUNTING_H
#define KV_ENGINE_SRC_TIMECODE_COUNTING_H

#include <algorithm>

#include "core/exception.h"
#include "foundation/wrapping.h"
#include "timecode/frame_rate.h"
#include "timecode/timecode_state.h"

namespace Korvane {

// A way of counting.
template <unsigned short rate, bool drop>
struct Counting {
  static constexpr unsigned short kRate = rate;
  static constexpr bool kDrop = drop;
  static constexpr Stepping kStepping = is_double_rate(rate) ? Stepping::Pairs : Stepping::Single;
  static constexpr unsigned char kLastFrame = last_label_frame(rate);
};

// Calls `work` with the way of counting at `rate`; `drop` plays no part at rates that drop nothing.
// Raises that the rate is not supported. Always inline, as what makes timecodes is: that takes
// a twelfth off their instructions.
template <typename Work>
[[gnu::always_inline]] inline auto with_counting(unsigned short rate, bool drop, const Work& work) {
  switch (rate) {
    case 24:
      return work(Counting<24, false>());
    case 25:
      return work(Counting<25, false>());
    case 30:
      return drop ? work(Counting<30, true>()) : work(Counting<30, false>());
    case 50:
      return work(Counting<50, false>());
    case 60:
      return drop ? work(Counting<60, true>()) : work(Counting<60, false>());
    default:
      exception_throw(NotSupported, "Frame rate not supported.", true);
  }
}

// What is first found wrong with a label; null when nothing is.
inline const char* fault_of(const Label& label, unsigned char last_frame, bool drops_checked) {
  if (label.hours > 24)  // 24 itself is the end of the day
    return "Hours cannot be lower than 0 and higher than 24.";
  if (label.minutes > 59) return "Minutes cannot be lower than 0 and higher than 59.";
  if (label.seconds > 59) return "Seconds cannot be lower than 0 and higher than 59.";
  if (label.frames > last_frame)
    return "Frames cannot be lower than 0 and higher than the frame rate value.";
  if (drops_checked && label.seconds == 0 && label.frames <= 1 && label.minutes % 10 != 0)
    return "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.";
  return nullptr;
}

// The frame count of the label, which may be one that drop-frame counting leaves out.
inline long long count_of(const Label& label, unsigned short rate, bool drop) {
  // In 64 bits for the sake of rates that nothing has refused yet.
  const unsigned int minute_of_day = label.hours * 60U + label.minutes;
  unsigned long long count = 1ULL * (minute_of_day * 60U + label.seconds) * rate;
  count += 1ULL * label.frames * frames_per_label_frame(rate);
  if (is_double_rate(rate) && label.field_mark) ++count;
  if (drop) count -= dropped_before(rate, minute_of_day);
  return static_cast<long long>(count);
}

// Derives the label from the absolute frame count, which is below 25 hours, so that 32 bits hold
// it. Of ten minutes all but the first drop numbers; without drop-frame counting none does.
template <typename Counting>
void derive_label(TimecodeState& state) {
  constexpr unsigned int kRate = Counting::kRate;
  constexpr unsigned int kDropped = Counting::kDrop ? dropped_per_minute(kRate) : 0;
  constexpr unsigned int kPerMinute = 60 * kRate - kDropped;
  constexpr unsigned int kPerTenMinutes = 10 * kPerMinute + kDropped;
  const auto frame_of_day = static_cast<unsigned int>(state.absolute_frame_count());
  const unsigned int tens = frame_of_day / kPerTenMinutes;
  const unsigned int rest = frame_of_day % kPerTenMinutes;
  const unsigned int minute = (std::max(rest, kDropped) - kDropped) / kPerMinute;
  const unsigned int number_of_minute = rest - minute * kPerMinute;
  const unsigned int number_of_second = number_of_minute % kRate;
  state.hours = static_cast<unsigned char>(tens / 6);
  state.minutes = static_cast<unsigned char>(tens % 6 * 10 + minute);
  state.seconds = static_cast<unsigned char>(number_of_minute / kRate);
  state.frames = static_cast<unsigned char>(number_of_second / frames_per_label_frame(kRate));
  state.field_mark = is_double_rate(kRate) && number_of_second % 2 != 0;
}

constexpr long long kFarCount = 1LL << 62;  // from here on steps mind the ends of 64 bits

// Finds the day of the frame count. Without `wrap` it is the first, even for an hour 24, in which
// steps are derived.
template <typename Counting>
void enter_day(TimecodeState& state, bool wrap) {
  constexpr long long kPerDay = frames_per_day(Counting::kRate, Counting::kDrop);
  const long long count = state.frame_count;
  const bool in_first_day = count >= 0 && count < kPerDay;
  long long whole_days = 0;
  if (wrap && !in_first_day) whole_days = count / kPerDay - (count % kPerDay < 0 ? 1 : 0);
  state.to_first_day = wrapping_multiply(whole_days, -kPerDay);
  state.days = static_cast<short>(whole_days);  // as if counted one by one in 16 bits
  const bool in_place = wrap && count >= -kFarCount && count < kFarCount;
  state.last_frame = Counting::kLastFrame;
  state.stepping = Stepping::Derived;
  if (in_place) state.stepping = Counting::kStepping;
}

// Derives everything from the frame count; with `wrap` the label is brought into one day.
template <typename Counting>
void normalize_by(TimecodeState& state, bool wrap) {
  constexpr unsigned long long kPerDay = frames_per_day(Counting::kRate, Counting::kDrop);
  const auto frame_of_day = static_cast<unsigned long long>(state.absolute_frame_count());
  // Most frames lie in the same day as the one before.
  if (state.stepping == Stepping::Derived || frame_of_day >= kPerDay)
    enter_day<Counting>(state, wrap);
  derive_label<Counting>(state);
}

// Everything that follows from the count; with `wrap` the label is brought into one day.
template <typename Counting>
TimecodeState state_of_count(long long count, bool wrap) {
  TimecodeState state(Counting::kRate, Counting::kDrop, count);
  normalize_by<Counting>(state, wrap);
  return state;
}

// Everything that follows from a label of the day that counting does not leave out, which is what
// it would be derived to.
template <typename Counting>
[[gnu::always_inline]] inline TimecodeState state_of_day_label(const Label& label) {
  TimecodeState state(Counting::kRate, Counting::kDrop,
                      count_of(label, Counting::kRate, Counting::kDrop), label);
  if constexpr (!is_double_rate(Counting::kRate)) state.field_mark = false;
  state.stepping = Counting::kStepping;
  state.last_frame = Counting::kLastFrame;
  return state;
}

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_COUNTING_H
