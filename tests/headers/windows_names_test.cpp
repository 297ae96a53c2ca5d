// windows.h first, with all its macros: our names must survive them.

#ifdef _WIN32
#include <windows.h>
#endif

#include <gtest/gtest.h>

#include "kv_engine.h"

namespace Korvane {
namespace {

class Listener : public TimecodeListener {
 public:
  void timecode_received(unsigned long long frame_index, const Timecode& /*timecode*/) override {
    last = frame_index;
  }
  void timecode_missing(unsigned long long frame_index) override { last = frame_index; }

  unsigned long long last = 0;
};

TEST(WindowsNames, EveryPublicNameIsUsable) {
  const TimeData clock = {2026, 12, 31, 1, 0, 0, 0};
  Timecode timecode(25, clock, false, Rational32{25, 1});
  TimecodeUtils::add_minutes(timecode, 1);
  EXPECT_STREQ("01:01:00:00",
               timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix));
  Media::TimecodeInfo info;
  info.initial_timecode(timecode);
  EXPECT_EQ(91500, info.initial_timecode()->frame_count());
  Listener listener;
  listener.timecode_missing(3);
  EXPECT_EQ(3U, listener.last);
  EXPECT_EQ(InvalidArgument, Exception(InvalidArgument, "x").code());
  Logging::Logger::instance().set_sink(nullptr, nullptr);
}

}  // namespace
}  // namespace Korvane
