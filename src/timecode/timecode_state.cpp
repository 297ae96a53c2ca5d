#include "timecode/timecode_state.h"

#include <algorithm>

#include "core/exception.h"
#include "foundation/wrapping.h"
#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

constexpr long long kFar = 1LL << 62;  // from here on steps mind the ends of 64 bits

// A way of counting. All work below is instantiated for each: the compiler divides by constants.
template <unsigned short rate, bool drop>
struct Counting {
  static constexpr unsigned short kRate = rate;
  static constexpr bool kDrop = drop;
  static constexpr Stepping kStepping = is_double_rate(rate) ? Stepping::Pairs : Stepping::Single;
};

// Calls `work` with the way in which `state` counts. Raises that the rate is not supported.
template <typename Work>
void with_counting_of(const TimecodeState& state, Work work) {
  switch (state.frame_rate) {
    case 24:
      return work(Counting<24, false>());
    case 25:
      return work(Counting<25, false>());
    case 30:
      return state.drop_frame ? work(Counting<30, true>()) : work(Counting<30, false>());
    case 50:
      return work(Counting<50, false>());
    case 60:
      return state.drop_frame ? work(Counting<60, true>()) : work(Counting<60, false>());
    default:
      exception_throw(NotSupported, "Frame rate not supported.", true);
  }
}

// What is first found wrong with a label; null when nothing is.
inline const char* fault_of(const TimecodeState& label, unsigned char last_frame,
                            bool drops_checked) {
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

inline long long count_of(const TimecodeState& label, unsigned short rate, bool drop) {
  // In 64 bits for the sake of rates that nothing has refused yet.
  const unsigned int seconds_of_day = (label.hours * 60U + label.minutes) * 60U + label.seconds;
  unsigned long long count = 1ULL * seconds_of_day * rate;
  count += 1ULL * label.frames * frames_per_label_frame(rate);
  if (is_double_rate(rate) && label.field_mark) ++count;
  if (drop) count -= dropped_before(rate, label.hours, label.minutes);
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
  const bool in_place = wrap && count >= -kFar && count < kFar;
  state.last_frame = last_label_frame(Counting::kRate);
  state.stepping = in_place ? Counting::kStepping : Stepping::Derived;
}

template <typename Counting>
void normalize_by(TimecodeState& state, bool wrap) {
  constexpr unsigned long long kPerDay = frames_per_day(Counting::kRate, Counting::kDrop);
  const auto frame_of_day = static_cast<unsigned long long>(state.absolute_frame_count());
  // Most frames lie in the same day as the one before.
  if (state.stepping == Stepping::Derived || frame_of_day >= kPerDay)
    enter_day<Counting>(state, wrap);
  derive_label<Counting>(state);
}

}  // namespace

long long TimecodeState::count_of_label() const { return count_of(*this, frame_rate, drop_frame); }

void TimecodeState::recompute_from_fields(bool wrap, bool check_drop_frame_label) {
  with_counting_of(*this, [=, this]<typename Counting>(Counting) {
    const bool drops_checked = Counting::kDrop && check_drop_frame_label;
    if (const char* const fault = fault_of(*this, last_label_frame(Counting::kRate), drops_checked))
      return exception_throw(InvalidArgument, fault, true);
    frame_count = count_of(*this, Counting::kRate, Counting::kDrop);
    // A label of the day that counting does not leave out is what it would be derived to.
    if (!check_drop_frame_label || hours == 24) return normalize_by<Counting>(*this, wrap);
    field_mark = field_mark && is_double_rate(Counting::kRate);
    stepping = Counting::kStepping;
    last_frame = last_label_frame(Counting::kRate);
  });
}

void TimecodeState::normalize(bool wrap) {
  with_counting_of(*this,
                   [=, this]<typename Counting>(Counting) { normalize_by<Counting>(*this, wrap); });
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
