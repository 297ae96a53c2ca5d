#include "ext/chrono.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "support/raises.h"

namespace Korvane::ChronoTests {
namespace {

using namespace std::chrono_literals;

using Frames25 = Ext::Frames<25>;
using Frames2997 = Ext::Frames<30000, 1001>;

constexpr Rational32 kPal{25, 1};
constexpr Rational32 kNtsc{30000, 1001};
constexpr long long kMost = std::numeric_limits<long long>::max();

static_assert(std::is_same_v<Frames2997::period, std::ratio<1001, 30000>>);
static_assert(Frames25(25) == 1s);
static_assert(Ext::edit_rate<Frames2997>().numerator == 30000);
static_assert(Ext::edit_rate<Frames2997>().denominator == 1001);
static_assert(Ext::edit_rate<Frames25>().numerator == 25);
static_assert(Ext::edit_rate<std::chrono::minutes>().denominator == 60);

TEST(ExtChrono, FramesAreExact) {
  const auto hour = Ext::frames_of<Frames2997>(Timecode(30, 1, 0, 0, 0, true, false));
  EXPECT_EQ(107892, hour.count());
  EXPECT_EQ(3599996400us, std::chrono::duration_cast<std::chrono::microseconds>(hour));
  EXPECT_EQ(1001s, Frames2997(30000));
  EXPECT_EQ(-1, Ext::frames_of<Frames25>(Timecode(25, -1LL, false)).count());
  EXPECT_EQ(48, Ext::frames_of<Ext::Frames<50>>(Timecode(50, 48LL, false)).count());
}

TEST(ExtChrono, FramesAreNotTakenForThoseOfAnotherRate) {
  EXPECT_TRUE(raises(InvalidArgument, "Frame rates differ",
                     [] { Ext::frames_of<Frames25>(Timecode(30, false)); }));
  EXPECT_EQ(5, (Ext::frames_of<Ext::Frames<24000, 1001>>(Timecode(24, 5LL, false)).count()));
  EXPECT_EQ(5, (Ext::frames_of<Ext::Frames<60000, 1001>>(Timecode(60, 5LL, true)).count()));
}

TEST(ExtChrono, FramesBecomeATimecode) {
  const Timecode timecode = Ext::to_timecode(Frames2997(107892), true);
  EXPECT_EQ(30, timecode.frame_rate());
  EXPECT_TRUE(timecode.drop_frame());
  EXPECT_EQ(107892, timecode.frame_count());
  EXPECT_EQ(25, Ext::to_timecode(std::chrono::duration_cast<Frames25>(1s), false).frame_count());
  EXPECT_TRUE(raises(NotSupported, "Frame rate not supported.",
                     [] { Ext::to_timecode(Ext::Frames<48>(1), false); }));
}

TEST(ExtChrono, AFrameStartsAtTheFirstWholeNanosecond) {
  const auto start = [](long long count) {
    return Ext::start_time(Timecode(30, count, true), kNtsc).count();
  };
  EXPECT_EQ(0, start(0));
  EXPECT_EQ(33366667, start(1));  // 33366666 2/3
  EXPECT_EQ(66733334, start(2));  // 66733333 1/3
  EXPECT_EQ(100100000, start(3));
  EXPECT_EQ(-33366666, start(-1));  // -33366666 2/3
  EXPECT_EQ(3599996400000, start(107892));
  EXPECT_EQ(40ms, Ext::start_time(Timecode(25, 1LL, false), kPal));
}

TEST(ExtChrono, DaysCountOrNot) {
  const Timecode next_day(25, 2160001LL, false);
  EXPECT_EQ(24h + 40ms, Ext::start_time(next_day, kPal));
  EXPECT_EQ(40ms, Ext::start_time_in_day(next_day, kPal));
  EXPECT_EQ(24h - 40ms, Ext::start_time_in_day(Timecode(25, -1LL, false), kPal));
}

TEST(ExtChrono, AtATimeIsTheFrameThatStartedLast) {
  const auto count = [](std::chrono::nanoseconds time) {
    return Ext::timecode_at(30, time, true, kNtsc).frame_count();
  };
  EXPECT_EQ(0, count(0ns));
  EXPECT_EQ(0, count(33366666ns));
  EXPECT_EQ(1, count(33366667ns));
  EXPECT_EQ(-1, count(-1ns));
  EXPECT_EQ(-1, count(-33366666ns));
  EXPECT_EQ(-2, count(-33366667ns));
  EXPECT_EQ(29970, count(1000s));  // 1000 * 30000 / 1001 = 29970.03
}

TEST(ExtChrono, StartsAndFramesAreEachOthersInverse) {
  const Rational32 rates[] = {{24000, 1001}, {24, 1},       {25, 1},         {30000, 1001},
                              {50, 1},       {60000, 1001}, {2147483647, 3}, {1, 2147483647},
                              {7, 3},        {5994, 100}};
  for (const Rational32& rate : rates) {
    for (const long long from : {-100000LL, -3LL, 0LL, 1000000000LL}) {
      // Of the slowest rate, 64 bits hold four frames only.
      if (rate.numerator == 1 && from != -3) continue;
      for (long long count = from; count < from + 5; ++count) {
        const auto start = Ext::start_time(Timecode(25, count, false), rate);
        EXPECT_EQ(count, Ext::timecode_at(25, start, false, rate).frame_count())
            << rate.numerator << '/' << rate.denominator;
        EXPECT_EQ(count - 1, Ext::timecode_at(25, start - 1ns, false, rate).frame_count())
            << rate.numerator << '/' << rate.denominator;
      }
    }
  }
}

TEST(ExtChrono, RefusesWhat64BitsDoNotHold) {
  const char* const out_of_range = "Time out of range";
  // 2^63 nanoseconds are 9223372036.854775807 seconds, or 230584300921 frames and a bit.
  EXPECT_EQ(9223372036840000000,
            Ext::start_time(Timecode(25, 230584300921LL, false), kPal).count());
  EXPECT_TRUE(raises(InvalidArgument, out_of_range,
                     [] { Ext::start_time(Timecode(25, 230584300922LL, false), kPal); }));
  EXPECT_TRUE(raises(InvalidArgument, out_of_range,
                     [] { Ext::start_time(Timecode(25, kMost, false), kPal); }));
  EXPECT_TRUE(raises(InvalidArgument, out_of_range, [] {
    Ext::start_time(Timecode(25, -kMost, false), {1, 2147483647});
  }));
  EXPECT_TRUE(raises(InvalidArgument, out_of_range, [] {
    Ext::timecode_at(25, std::chrono::nanoseconds::max(), false, {2147483647, 1});
  }));
  EXPECT_TRUE(raises(InvalidArgument, out_of_range, [] {
    Ext::timecode_at(25, std::chrono::nanoseconds::min(), false, {2147483647, 1});
  }));
}

TEST(ExtChrono, RefusesEditRatesThatAreNotPositive) {
  for (const Rational32& rate : {Rational32{0, 1}, {25, 0}, {-25, 1}, {25, -1}}) {
    const char* const text = "Edit rate must be positive";
    EXPECT_TRUE(raises(InvalidArgument, text, [&] { Ext::start_time(Timecode(25, false), rate); }));
    EXPECT_TRUE(raises(InvalidArgument, text, [&] { Ext::timecode_at(25, 0s, false, rate); }));
    EXPECT_TRUE(raises(InvalidArgument, text, [&] { Ext::frame_duration(rate); }));
  }
}

TEST(ExtChrono, FrameDurationsAreRoundedToTheNearest) {
  EXPECT_EQ(40ms, Ext::frame_duration(kPal));
  EXPECT_EQ(33366667ns, Ext::frame_duration(kNtsc));          // ...666 2/3
  EXPECT_EQ(41708333ns, Ext::frame_duration({24000, 1001}));  // ...333 1/3
  EXPECT_EQ(2147483647s, Ext::frame_duration({1, 2147483647}));
  EXPECT_EQ(1ns, Ext::frame_duration({2000000000, 1}));  // half a nanosecond
}

void expect_rate(int numerator, int denominator, std::chrono::nanoseconds frame) {
  const Rational32 rate = Ext::edit_rate_of(frame);
  EXPECT_EQ(numerator, rate.numerator) << frame.count();
  EXPECT_EQ(denominator, rate.denominator) << frame.count();
}

TEST(ExtChrono, RatesOfDurationsThatWereRounded) {
  expect_rate(24000, 1001, 41708333ns);
  expect_rate(24, 1, 41666667ns);
  expect_rate(25, 1, 40ms);
  expect_rate(30000, 1001, 33366666ns);
  expect_rate(30000, 1001, 33366us);
  expect_rate(30, 1, 33333us);
  expect_rate(50, 1, 20ms);
  expect_rate(60000, 1001, 16683333ns);
  expect_rate(60, 1, 16667us);
  expect_rate(48, 1, 20833us);
  expect_rate(1000, 33, 33ms);
  expect_rate(25, 1, 40001us);
  expect_rate(1000000000, 40001001, 40001001ns);
  expect_rate(1000000000, 2147483647, 2147483647ns);
}

TEST(ExtChrono, RefusesDurationsWithoutARate) {
  EXPECT_TRUE(raises(InvalidArgument, "Edit rate must be positive", [] { Ext::edit_rate_of(0s); }));
  EXPECT_TRUE(raises(InvalidArgument, "Edit rate must be positive",
                     [] { Ext::edit_rate_of(std::chrono::nanoseconds::min()); }));
  EXPECT_TRUE(
      raises(InvalidArgument, "Time out of range", [] { Ext::edit_rate_of(2147483648ns); }));
}

}  // namespace
}  // namespace Korvane::ChronoTests
