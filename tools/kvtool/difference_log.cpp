#include "difference_log.h"

#include "core/logger.h"
#include "label.h"
#include "timecode/timecode_utils.h"

namespace Korvane::Tool {
namespace {

long long shorter_way(const Timecode& from, const Timecode& to) {
  Timecode day(from.frame_rate(), 0LL, from.drop_frame());
  day.add_days(1);
  const long long frames_per_day = day.frame_count();
  long long way = to.absolute_frame_count() - from.absolute_frame_count();
  if (way > frames_per_day / 2) way -= frames_per_day;
  if (way < -frames_per_day / 2) way += frames_per_day;
  return way;
}

}  // namespace

DifferenceLog::DifferenceLog() { Logging::Logger::instance().set_sink(collect, this); }

DifferenceLog::~DifferenceLog() { Logging::Logger::instance().set_sink(nullptr, nullptr); }

void DifferenceLog::collect(void* context, const char* text) {
  static_cast<DifferenceLog*>(context)->line_ = text;
}

std::optional<Difference> DifferenceLog::compare(const std::string& position,
                                                 const Timecode& previous,
                                                 const Timecode& current) {
  line_.clear();
  TimecodeUtils::log_timecode_difference(position.c_str(), previous, current);
  Timecode expected(previous);
  ++expected;
  if (line_.empty()) {
    if (previous.drop_frame() == current.drop_frame()) return std::nullopt;
    line_ = position + ": Found change of counting, expected: " + label(expected) +
            " actual: " + label(current);
  }
  return Difference{line_, label(expected), label(current), shorter_way(expected, current)};
}

std::string describe_jump(long long frames) {
  const bool one = frames == 1 || frames == -1;
  return (frames < 0 ? " (" : " (+") + std::to_string(frames) + (one ? " frame)" : " frames)");
}

}  // namespace Korvane::Tool
