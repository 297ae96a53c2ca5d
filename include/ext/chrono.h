// Timecodes and edit rates as std::chrono durations, and back. Header-only, C++17.
//
// Exact, where the rate is known when compiling: a duration that counts frames.
//
//   using Frames2997 = Korvane::Ext::Frames<30000, 1001>;
//   const auto position = Korvane::Ext::frames_of<Frames2997>(timecode);
//   const auto seconds = std::chrono::floor<std::chrono::seconds>(position);
//
// Otherwise in nanoseconds. A frame starts at the first whole nanosecond that is not before its
// exact start (rounded up), and timecode_at gives the frame that starts last at or before a time
// (rounded down), so that timecode_at(start_time(tc)) is tc at every rate up to 1 GHz.
//
// An edit rate is the frames per second in real time: a timecode of rate 30 runs at 30/1 or
// 30000/1001. All errors are InvalidArgument: "Edit rate must be positive" where one of its fields
// is not, "Time out of range" where 64 bits do not hold the result.

#ifndef KV_ENGINE_EXT_CHRONO_H
#define KV_ENGINE_EXT_CHRONO_H

#include <chrono>
#include <limits>
#include <numeric>
#include <ratio>

#include "core/exception.h"
#include "foundation/rational32.h"
#include "timecode/timecode.h"

namespace Korvane::Ext {

// A duration in frames, `Numerator` of them in `Denominator` seconds.
template <int Numerator, int Denominator = 1>
using Frames = std::chrono::duration<long long, std::ratio<Denominator, Numerator>>;

namespace Detail {

inline constexpr long long kNanoseconds = 1000000000;

struct Division {
  long long quotient;
  long long rest;  // never negative
};

// Rounded down; `divisor` is positive.
constexpr Division divided(long long value, long long divisor) {
  const long long rest = (value % divisor + divisor) % divisor;
  const long long whole = value / divisor - (value % divisor < 0 ? 1 : 0);
  return {whole, rest};
}

inline void enforce_edit_rate(const Rational32& rate) {
  exception_enforce(rate.numerator > 0 && rate.denominator > 0, InvalidArgument,
                    "Edit rate must be positive", true);
}

// a * factor + b, where `factor` and `b` are not negative.
inline long long multiply_and_add(long long a, long long factor, long long b) {
  constexpr long long kMost = std::numeric_limits<long long>::max();
  exception_enforce(
      a <= (kMost - b) / factor && a >= std::numeric_limits<long long>::min() / factor,
      InvalidArgument, "Time out of range", true);
  return a * factor + b;
}

// count * denominator / numerator seconds. Each product stays below 2^62.
inline std::chrono::nanoseconds start_of_frame(long long count, const Rational32& rate) {
  enforce_edit_rate(rate);
  const Division turns = divided(count, rate.numerator);
  const Division seconds = divided(turns.rest * rate.denominator, rate.numerator);
  const Division part = divided(seconds.rest * kNanoseconds, rate.numerator);
  const long long whole = multiply_and_add(turns.quotient, rate.denominator, seconds.quotient);
  const long long rounded = part.quotient + (part.rest == 0 ? 0 : 1);
  return std::chrono::nanoseconds(multiply_and_add(whole, kNanoseconds, rounded));
}

// time * numerator / denominator, rounded down.
inline long long frame_at(std::chrono::nanoseconds time, const Rational32& rate) {
  enforce_edit_rate(rate);
  const Division seconds = divided(time.count(), kNanoseconds);
  const Division turns = divided(seconds.quotient, rate.denominator);
  const long long part = seconds.rest * rate.numerator / kNanoseconds;
  const long long frames = (turns.rest * rate.numerator + part) / rate.denominator;
  return multiply_and_add(turns.quotient, rate.numerator, frames);
}

// The nearest whole number of frames per second.
template <typename Duration>
constexpr long long nominal_rate() {
  return (2 * Duration::period::den + Duration::period::num) / (2 * Duration::period::num);
}

}  // namespace Detail

// The frames per second of a duration that counts frames: {30000, 1001} of Frames<30000, 1001>.
template <typename Duration>
constexpr Rational32 edit_rate() {
  static_assert(Duration::period::num <= std::numeric_limits<int>::max() &&
                    Duration::period::den <= std::numeric_limits<int>::max(),
                "an edit rate has 32 bits");
  return {static_cast<int>(Duration::period::den), static_cast<int>(Duration::period::num)};
}

// The frame count, days included, as a duration of the Frames above. Raises InvalidArgument "Frame
// rates differ" when the timecode counts at another rate than Duration, rounded.
template <typename Duration>
Duration frames_of(const Timecode& timecode) {
  exception_enforce(timecode.frame_rate() == Detail::nominal_rate<Duration>(), InvalidArgument,
                    "Frame rates differ", true);
  return Duration(timecode.frame_count());
}

// The timecode of a frame count, at the rate of Duration, rounded. Raises the errors of
// construction of Timecode.
template <typename Rep, typename Period>
Timecode to_timecode(std::chrono::duration<Rep, Period> frames, bool drop_frame) {
  using Duration = std::chrono::duration<Rep, Period>;
  static_assert(Detail::nominal_rate<Duration>() <= std::numeric_limits<unsigned short>::max(),
                "no frame rate");
  return Timecode(static_cast<unsigned short>(Detail::nominal_rate<Duration>()),
                  static_cast<long long>(frames.count()), drop_frame);
}

// From 00:00:00:00 of day 0 to the start of the frame, negative before it.
inline std::chrono::nanoseconds start_time(const Timecode& timecode, const Rational32& edit_rate) {
  return Detail::start_of_frame(timecode.frame_count(), edit_rate);
}

// Likewise from 00:00:00:00 of its own day. A day of labels is as long as its frames: 86400 seconds
// only where counting keeps up with real time.
inline std::chrono::nanoseconds start_time_in_day(const Timecode& timecode,
                                                  const Rational32& edit_rate) {
  return Detail::start_of_frame(timecode.absolute_frame_count(), edit_rate);
}

// The frame that is shown at `time` after 00:00:00:00 of day 0. Raises also the errors of
// construction of Timecode.
inline Timecode timecode_at(unsigned short rate, std::chrono::nanoseconds time, bool drop_frame,
                            const Rational32& edit_rate) {
  return Timecode(rate, Detail::frame_at(time, edit_rate), drop_frame);
}

// How long a frame lasts, to the nearest nanosecond, halves up.
inline std::chrono::nanoseconds frame_duration(const Rational32& edit_rate) {
  Detail::enforce_edit_rate(edit_rate);
  const long long two_seconds = 2 * Detail::kNanoseconds * edit_rate.denominator;
  return std::chrono::nanoseconds((two_seconds + edit_rate.numerator) /
                                  (2LL * edit_rate.numerator));
}

// The edit rate of frames that last so long: 24000/1001, 24/1, 25/1, 30000/1001, 30/1, 48/1, 50/1,
// 60000/1001 or 60/1 where that rate's duration lies within a microsecond, so that times which were
// rounded are recognised; otherwise the exact fraction, reduced. Raises InvalidArgument "Edit rate
// must be positive", and "Time out of range" from 2^31 nanoseconds on.
inline Rational32 edit_rate_of(std::chrono::nanoseconds frame) {
  exception_enforce(frame.count() > 0, InvalidArgument, "Edit rate must be positive", true);
  exception_enforce(frame.count() <= std::numeric_limits<int>::max(), InvalidArgument,
                    "Time out of range", true);
  constexpr Rational32 kRates[] = {{24000, 1001}, {24, 1}, {25, 1},       {30000, 1001}, {30, 1},
                                   {48, 1},       {50, 1}, {60000, 1001}, {60, 1}};
  for (const Rational32& rate : kRates) {
    const std::chrono::nanoseconds difference = frame - frame_duration(rate);
    if (difference <= std::chrono::microseconds(1) && difference >= std::chrono::microseconds(-1))
      return rate;
  }
  const long long common = std::gcd(Detail::kNanoseconds, static_cast<long long>(frame.count()));
  return {static_cast<int>(Detail::kNanoseconds / common),
          static_cast<int>(frame.count() / common)};
}

}  // namespace Korvane::Ext
#endif  // KV_ENGINE_EXT_CHRONO_H
