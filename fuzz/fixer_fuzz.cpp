// Arithmetic with any numbers: labels stay in range, and a difference is told when there is one.

#include "core/exception.h"
#include "core/logger.h"
#include "input.h"
#include "timecode/timecode_utils.h"

namespace {

void check(const Korvane::Timecode& timecode) {
  Korvane::expect(timecode.hours() < 24 && timecode.minutes() < 60 && timecode.seconds() < 60 &&
                  timecode.frames_ignore_field_mark() < timecode.frame_rate() &&
                  timecode.absolute_frame_count() >= 0);
}

// The lines that tell of a difference between a frame and the one that should follow.
int lines_told(const Korvane::Timecode& previous, const Korvane::Timecode& current) {
  int lines = 0;
  Korvane::Logging::Logger& logger = Korvane::Logging::Logger::instance();
  logger.set_sink([](void* count, const char*) { ++*static_cast<int*>(count); }, &lines);
  Korvane::TimecodeUtils::log_timecode_difference("fuzz", previous, current);
  logger.set_sink(nullptr, nullptr);
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using Number = unsigned long long;
  Korvane::Input input(data, size);
  const unsigned short rate = input.take_rate();
  const bool drop_frame = input.take_bool();
  const bool full_rate = input.take_bool();
  const Number hours = input.take<Number>(), minutes = input.take<Number>();
  const Number seconds = input.take<Number>(), frames = input.take<Number>();
  try {
    Korvane::Timecode timecode = Korvane::TimecodeUtils::timecode_fixer(
        rate, hours, minutes, seconds, frames, drop_frame, full_rate);
    check(timecode);
    using Korvane::TimecodeUtils::frame_rate_drop_frame_filter;
    Korvane::expect(timecode.drop_frame() == frame_rate_drop_frame_filter(rate, drop_frame));
    Korvane::Timecode next = timecode;
    ++next;
    Korvane::expect(lines_told(timecode, next) == 0 && lines_told(next, next) == 1);
    Korvane::TimecodeUtils::add_minutes(timecode, input.take<int>());
    check(timecode);
    timecode.add(input.take<long long>());
    check(timecode);
    timecode.add_days(input.take<long long>());
    check(timecode);
    timecode.to_ms({input.take<int>(), input.take<int>()});
    const auto clock = input.take<Korvane::TimeData>();
    check(Korvane::Timecode(rate, clock, drop_frame, {input.take<int>(), input.take<int>()}));
  } catch (const Korvane::Exception& exception) {
    Korvane::expect(exception.code() == Korvane::NotSupported);
  }
  return 0;
}
