#include "timecode/timecode.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>

#include "support/raises.h"
#include "timecode/expected_labels.h"

namespace Korvane {
namespace {

static_assert(sizeof(Timecode) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<Timecode>);
static_assert(!std::is_nothrow_move_constructible_v<Timecode>, "moving copies");
static_assert(sizeof(TimeData) == 14 && std::is_aggregate_v<TimeData>);
static_assert(sizeof(Rational32) == 8 && std::is_aggregate_v<Rational32>);
static_assert(std::is_same_v<std::underlying_type_t<Timecode::DropFrameIndication>, unsigned int>);
static_assert(std::is_same_v<std::underlying_type_t<Timecode::FieldMarkIndication>, unsigned int>);

constexpr TimeData kNoon = {2026, 1, 1, 12, 0, 0, 0};

TEST(TimecodeConstruction, FromALabel) {
  const Timecode timecode(30, 1, 2, 3, 4, false, false);
  EXPECT_EQ(30, timecode.frame_rate());
  EXPECT_EQ(1, timecode.hours());
  EXPECT_EQ(2, timecode.minutes());
  EXPECT_EQ(3, timecode.seconds());
  EXPECT_EQ(4, timecode.frames());
  EXPECT_FALSE(timecode.drop_frame());
  EXPECT_FALSE(timecode.field_mark());
  EXPECT_EQ(0, timecode.days());
  EXPECT_EQ(111694, timecode.frame_count());  // 3723 s x 30 + 4
  EXPECT_EQ(111694, timecode.absolute_frame_count());
}

TEST(TimecodeConstruction, FromAFrameCount) {
  const Timecode timecode(25, 90001LL, false);
  EXPECT_EQ("01:00:00:01", label(timecode));
  EXPECT_EQ(90001, timecode.frame_count());
}

TEST(TimecodeConstruction, AtZero) {
  for (const unsigned short rate : std::initializer_list<unsigned short>{24, 25, 30, 50, 60}) {
    const Timecode timecode(rate, true);
    EXPECT_EQ(0, timecode.frame_count());
    EXPECT_EQ(rate, timecode.frame_rate());
    EXPECT_EQ(rate == 30 || rate == 60, timecode.drop_frame()) << rate;
  }
}

struct DropFrameEdge {
  unsigned short rate;
  long long count;
  const char* label;
};

constexpr DropFrameEdge kDropFrameEdges[] = {
    {30, 0, "00:00:00;00"},         {30, 1799, "00:00:59;29"},    {30, 1800, "00:01:00;02"},
    {30, 3597, "00:01:59;29"},      {30, 3598, "00:02:00;02"},    {30, 17981, "00:09:59;29"},
    {30, 17982, "00:10:00;00"},     {30, 107891, "00:59:59;29"},  {30, 107892, "01:00:00;00"},
    {30, 2589407, "23:59:59;29"},   {60, 0, "00:00:00;00.0"},     {60, 3599, "00:00:59;29.1"},
    {60, 3600, "00:01:00;02.0"},    {60, 7195, "00:01:59;29.1"},  {60, 7196, "00:02:00;02.0"},
    {60, 35963, "00:09:59;29.1"},   {60, 35964, "00:10:00;00.0"}, {60, 215784, "01:00:00;00.0"},
    {60, 5178815, "23:59:59;29.1"},
};

TEST(TimecodeConstruction, DropFrameEdgesInBothDirections) {
  for (const DropFrameEdge& edge : kDropFrameEdges) {
    SCOPED_TRACE(edge.label);
    const Timecode timecode(edge.rate, edge.count, true);
    EXPECT_EQ(edge.label, label(timecode));
    const Timecode again(edge.rate, timecode.hours(), timecode.minutes(), timecode.seconds(),
                         timecode.frames(), true, timecode.field_mark());
    EXPECT_EQ(edge.count, again.frame_count());
  }
}

TEST(TimecodeConstruction, EveryConstructorCountsAtEveryRate) {
  // 01:02:03 is second 3723; drop-frame counting left out numbers in 56 of 62 minutes.
  const struct {
    unsigned short rate;
    bool drop;
    long long count;
  } ways[] = {{24, false, 89352},  {25, false, 93075},  {30, false, 111690}, {30, true, 111578},
              {50, false, 186150}, {60, false, 223380}, {60, true, 223156}};
  for (const auto& [rate, drop, count] : ways) {
    const Timecode same[] = {Timecode(rate, 1, 2, 3, 0, drop, false), Timecode(rate, 1, 2, 3, drop),
                             Timecode(rate, drop ? 0x01020340U : 0x01020300U),
                             Timecode(rate, count, drop)};
    for (const Timecode& timecode : same) {
      EXPECT_EQ(count, timecode.frame_count());
      EXPECT_STREQ(drop ? "01:02:03;00" : "01:02:03:00",
                   timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkOmitted));
    }
  }
}

TEST(TimecodeConstruction, FiveArgumentsSkipTheDropFrameLabelRule) {
  const Timecode timecode(30, 0, 1, 0, true);
  EXPECT_EQ("00:00:59;28", label(timecode));
  EXPECT_EQ(1798, timecode.frame_count());
  EXPECT_TRUE(
      raises(InvalidArgument, kDropFrameMessage, [] { Timecode(30, 0, 1, 0, 0, true, false); }));
}

TEST(TimecodeConstruction, Hour24IsTheNextDay) {
  const Timecode timecode(25, 24, 0, 0, 0, false, false);
  EXPECT_EQ("00:00:00:00", label(timecode));
  EXPECT_EQ(1, timecode.days());
  EXPECT_EQ(2160000, timecode.frame_count());
  EXPECT_EQ(0, timecode.absolute_frame_count());
  EXPECT_EQ(1, Timecode(60, 24, 59, 59, true).days());
}

TEST(TimecodeConstruction, NegativeCountIsTheDayBefore) {
  const Timecode timecode(30, -1LL, false);
  EXPECT_EQ(2591999, timecode.absolute_frame_count());
  EXPECT_EQ(-1, timecode.frame_count());
  EXPECT_EQ("23:59:59:29", label(timecode));
  EXPECT_EQ(-1, timecode.days());
  EXPECT_EQ(-1, Timecode(30, -2592000LL, false).days()) << "exactly one day back";
  EXPECT_EQ(-2, Timecode(30, -2592001LL, false).days());
}

TEST(TimecodeConstruction, FieldMarkCountsAtDoubleRatesOnly) {
  EXPECT_EQ(49, Timecode(50, 0, 0, 0, 24, false, true).frame_count());
  EXPECT_EQ(59, Timecode(60, 0, 0, 0, 29, false, true).frame_count());
  for (const unsigned short rate : std::initializer_list<unsigned short>{24, 25, 30}) {
    const Timecode timecode(rate, 0, 0, 0, 1, false, true);
    EXPECT_EQ(1, timecode.frame_count());
    EXPECT_FALSE(timecode.field_mark());
  }
}

TEST(TimecodeConstruction, DropFrameIsOffWhereItDoesNotExist) {
  for (const unsigned short rate : std::initializer_list<unsigned short>{24, 25, 50}) {
    EXPECT_FALSE(Timecode(rate, 0, 1, 0, 0, true, false).drop_frame());
    EXPECT_FALSE(Timecode(rate, 0x00000040U).drop_frame());
  }
}

struct DayLength {
  unsigned short rate;
  bool drop_frame;
  long long frames;
};

constexpr DayLength kDayLengths[] = {
    {24, false, 2073600}, {25, false, 2160000}, {30, false, 2592000}, {30, true, 2589408},
    {50, false, 4320000}, {60, false, 5184000}, {60, true, 5178816},
};

TEST(TimecodeConstruction, ADayHasItsFramesAtEveryRate) {
  for (const DayLength& day : kDayLengths) {
    SCOPED_TRACE(day.frames);
    const Timecode last(day.rate, day.frames - 1, day.drop_frame);
    EXPECT_EQ(0, last.days());
    EXPECT_EQ(23, last.hours());
    EXPECT_EQ(59, last.minutes());
    EXPECT_EQ(59, last.seconds());
    EXPECT_EQ(day.rate - 1, last.frames_ignore_field_mark());
    const Timecode next(day.rate, day.frames, day.drop_frame);
    EXPECT_EQ(1, next.days());
    EXPECT_EQ(0, next.absolute_frame_count());
    Timecode stepped(day.rate, day.drop_frame);
    stepped.add_days(3);
    EXPECT_EQ(3 * day.frames, stepped.frame_count());
    EXPECT_EQ(3, stepped.days());
  }
}

TEST(TimecodeConstruction, AnyFrameCountIsTakenAtOnce) {
  struct Case {
    long long count;
    long long absolute;
    short days;
  };
  // Divided by hand in arbitrary precision: days = floor(count / 2160000), kept in 16 bits.
  constexpr Case kCases[] = {
      {1LL << 62, 27904, 19954},
      {LLONG_MAX, 55807, -25628},
      {LLONG_MIN, 2104192, 25627},
  };
  for (const Case& one : kCases) {
    SCOPED_TRACE(one.count);
    const Timecode timecode(25, one.count, false);
    EXPECT_EQ(one.count, timecode.frame_count());
    EXPECT_EQ(one.absolute, timecode.absolute_frame_count());
    EXPECT_EQ(one.days, timecode.days());
  }
}

TEST(TimecodeConstruction, DaysAreCountedIn16Bits) {
  EXPECT_EQ(32767, Timecode(25, 2160000LL * 32767, false).days());
  EXPECT_EQ(-32768, Timecode(25, 2160000LL * 32768, false).days());
  EXPECT_EQ(0, Timecode(25, 2160000LL * 65536, false).days());
  EXPECT_EQ(-32768, Timecode(25, 2160000LL * -32768, false).days());
  EXPECT_EQ(32767, Timecode(25, 2160000LL * -32769, false).days());
}

struct ClockCase {
  unsigned short rate;
  TimeData clock;
  bool drop_frame;
  Rational32 edit_rate;
  long long count;
};

TEST(TimecodeConstruction, FromAClock) {
  const ClockCase cases[] = {
      {25, {0, 0, 0, 1, 2, 3, 40}, false, {25, 1}, 93076},       // 3723.040 s x 25
      {25, {0, 0, 0, 0, 0, 0, 39}, false, {25, 1}, 0},           // rounded down
      {30, {0, 0, 0, 1, 0, 0, 0}, true, {30000, 1001}, 107892},  // 107892.1
      {60, {0, 0, 0, 23, 59, 59, 999}, true, {60000, 1001}, 5178821},
      {24, {9999, 99, 99, 0, 0, 1, 0}, false, {24000, 1001}, 23},  // the date is not read
      {25, {0, 0, 0, 0, 0, 1, 0}, false, {25, 0}, 0},              // no division by zero
  };
  for (const ClockCase& one : cases) {
    SCOPED_TRACE(one.count);
    EXPECT_EQ(one.count,
              Timecode(one.rate, one.clock, one.drop_frame, one.edit_rate).frame_count());
  }
}

TEST(TimecodeConstruction, AClockPastItsRangeIsCountedIn32Bits) {
  // 1000 h are 3,600,000,000 ms: as 32 bits -694,967,296, times 25, divided unsigned by 1000.
  const TimeData clock = {0, 0, 0, 1000, 0, 0, 0};
  EXPECT_EQ(18446744056335369LL, Timecode(25, clock, false, {25, 1}).frame_count());
}

TEST(TimecodeConstruction, ANegativeEditRateIsDividedUnsigned) {
  // -25 x 1000 ms in 64 bits, divided unsigned by 1000.
  const TimeData clock = {0, 0, 0, 0, 0, 1, 0};
  EXPECT_EQ(18446744073709526LL, Timecode(25, clock, false, {-25, 1}).frame_count());
}

TEST(TimecodeErrors, EveryConstructorRefusesOtherRates) {
  for (const unsigned int value : {0U, 1U, 23U, 26U, 29U, 48U, 49U, 59U, 61U, 100U, 120U, 65535U}) {
    SCOPED_TRACE(value);
    const auto rate = static_cast<unsigned short>(value);
    EXPECT_TRUE(
        raises(NotSupported, kRateMessage, [&] { Timecode(rate, 0, 0, 0, 0, false, false); }));
    EXPECT_TRUE(raises(NotSupported, kRateMessage, [&] { Timecode(rate, 0, 0, 0, false); }));
    EXPECT_TRUE(raises(NotSupported, kRateMessage, [&] { Timecode(rate, 0U); }));
    EXPECT_TRUE(raises(NotSupported, kRateMessage, [&] { Timecode(rate, kNoon, false, {25, 1}); }));
    EXPECT_TRUE(raises(NotSupported, kRateMessage, [&] { Timecode(rate, 1LL, false); }));
    EXPECT_TRUE(raises(NotSupported, kRateMessage, [&] { Timecode(rate, false); }));
  }
}

struct LabelError {
  unsigned short rate;
  unsigned char hours, minutes, seconds, frames;
  ExceptionCode code;
  const char* message;
};

constexpr LabelError kLabelErrors[] = {
    {30, 25, 0, 0, 0, InvalidArgument, kHoursMessage},
    {30, 255, 0, 0, 0, InvalidArgument, kHoursMessage},
    {30, 0, 60, 0, 0, InvalidArgument, kMinutesMessage},
    {30, 0, 0, 60, 0, InvalidArgument, kSecondsMessage},
    {30, 0, 0, 0, 30, InvalidArgument, kFramesMessage},
    {24, 0, 0, 0, 24, InvalidArgument, kFramesMessage},
    {25, 0, 0, 0, 25, InvalidArgument, kFramesMessage},
    {50, 0, 0, 0, 25, InvalidArgument, kFramesMessage},
    {60, 0, 0, 0, 30, InvalidArgument, kFramesMessage},
    {30, 0, 1, 0, 0, InvalidArgument, kDropFrameMessage},
    {30, 0, 59, 0, 1, InvalidArgument, kDropFrameMessage},
    {60, 23, 11, 0, 1, InvalidArgument, kDropFrameMessage},
    // Two faults at once: the first check wins.
    {48, 25, 0, 0, 0, NotSupported, kRateMessage},
    {30, 25, 60, 0, 0, InvalidArgument, kHoursMessage},
    {30, 0, 60, 60, 0, InvalidArgument, kMinutesMessage},
    {30, 0, 0, 60, 30, InvalidArgument, kSecondsMessage},
    {30, 0, 61, 0, 30, InvalidArgument, kMinutesMessage},
    {30, 24, 1, 0, 0, InvalidArgument, kDropFrameMessage},
};

TEST(TimecodeErrors, LabelsOutOfRangeInTheOrderOfTheChecks) {
  for (const LabelError& error : kLabelErrors) {
    SCOPED_TRACE(error.message);
    EXPECT_TRUE(raises(error.code, error.message, [&] {
      Timecode(error.rate, error.hours, error.minutes, error.seconds, error.frames, true, false);
    }));
  }
}

TEST(TimecodeErrors, FiveArgumentsCheckTheRest) {
  EXPECT_TRUE(raises(InvalidArgument, kHoursMessage, [] { Timecode(30, 25, 60, 60, true); }));
  EXPECT_TRUE(raises(InvalidArgument, kMinutesMessage, [] { Timecode(30, 24, 60, 60, true); }));
  EXPECT_TRUE(raises(InvalidArgument, kSecondsMessage, [] { Timecode(30, 24, 59, 60, true); }));
}

TEST(TimecodeErrors, ValidLabelsNextToTheLimits) {
  EXPECT_NO_THROW(Timecode(30, 24, 59, 59, 29, true, false));
  EXPECT_NO_THROW(Timecode(30, 0, 1, 0, 2, true, false));
  EXPECT_NO_THROW(Timecode(30, 0, 10, 0, 0, true, false));
  EXPECT_NO_THROW(Timecode(30, 0, 1, 1, 0, true, false));
  EXPECT_NO_THROW(Timecode(30, 0, 1, 0, 0, false, false));
}

TEST(TimecodeArithmetic, StepsOverThePair) {
  Timecode timecode(50, 0, 0, 0, 24, false, true);
  EXPECT_EQ(49, timecode.frame_count());
  EXPECT_EQ(49, timecode.frames_ignore_field_mark());
  ++timecode;
  EXPECT_EQ("00:00:01:00.0", label(timecode));
  EXPECT_FALSE(timecode.field_mark());
  --timecode;
  EXPECT_EQ("00:00:00:24.1", label(timecode));
}

TEST(TimecodeArithmetic, AddsInBothDirections) {
  Timecode timecode(30, 1799LL, true);
  timecode.add(1);
  EXPECT_EQ("00:01:00;02", label(timecode));
  timecode.add(-1801);
  EXPECT_EQ("23:59:59;29", label(timecode));
  EXPECT_EQ(-1, timecode.days());
  EXPECT_EQ(-1, timecode.frame_count());
  timecode.add_days(2);
  EXPECT_EQ(1, timecode.days());
  EXPECT_EQ(2LL * 2589408 - 1, timecode.frame_count());
  EXPECT_EQ("23:59:59;29", label(timecode));
}

TEST(TimecodeArithmetic, WrapsAtTheLimitsOf64Bits) {
  Timecode timecode(25, LLONG_MAX, false);
  ++timecode;
  EXPECT_EQ(LLONG_MIN, timecode.frame_count());
  --timecode;
  EXPECT_EQ(LLONG_MAX, timecode.frame_count());
  timecode.add(LLONG_MAX);
  EXPECT_EQ(-2, timecode.frame_count());
  Timecode days(25, false);
  days.add_days(LLONG_MAX);  // 2160000 x (2^63 - 1) is -2160000 in 64 bits
  EXPECT_EQ(-2160000, days.frame_count());
}

TEST(TimecodeArithmetic, HourTwentyFourWrapsWhenStepped) {
  Timecode timecode(25, 0x24000000U);
  EXPECT_EQ(24, timecode.hours());
  EXPECT_EQ(0, timecode.days());
  ++timecode;
  EXPECT_EQ("00:00:00:01", label(timecode));
  EXPECT_EQ(1, timecode.days());
}

TEST(TimecodeArithmetic, Milliseconds) {
  EXPECT_EQ(1001U, Timecode(30, 30LL, false).to_ms({30000, 1001}));
  EXPECT_EQ(33U, Timecode(30, 1LL, false).to_ms({30000, 1001}));  // 33.37
  EXPECT_EQ(86399960U, Timecode(25, -1LL, false).to_ms({25, 1})) << "of the day";
  EXPECT_EQ(0U, Timecode(25, 0LL, false).to_ms({25, 1}));
}

TEST(TimecodeArithmetic, MillisecondsOfOddEditRates) {
  const Timecode timecode(25, 1LL, false);
  EXPECT_EQ(static_cast<unsigned long long>(-40), timecode.to_ms({-25, 1}));
  EXPECT_EQ(static_cast<unsigned long long>(-1000), timecode.to_ms({-1, 1}));
  EXPECT_EQ(0U, timecode.to_ms({0, 1})) << "no division by zero";
  EXPECT_EQ(0U, timecode.to_ms({1, 0}));
  // 5183999 x -2147483648 x 1000 is 7314190989961199616 in 64 bits; a seventh of that.
  EXPECT_EQ(1044884427137314230U, Timecode(60, 5183999LL, false).to_ms({7, INT_MIN}));
}

// Two objects that C++20 does not also compare the other way round, for the operators are not
// const.
bool equal(Timecode& a, const Timecode& b) { return a == b; }
bool unequal(Timecode& a, const Timecode& b) { return a != b; }

TEST(TimecodeEquality, ComparesRateDropFrameAndFramesOnly) {
  Timecode timecode(50, 0, 0, 0, 12, false, true);
  EXPECT_TRUE(equal(timecode, Timecode(50, 7, 8, 9, 12, false, false)));
  EXPECT_FALSE(unequal(timecode, Timecode(50, 7, 8, 9, 12, false, false)));
  EXPECT_TRUE(unequal(timecode, Timecode(50, 0, 0, 0, 13, false, true)));
  EXPECT_TRUE(unequal(timecode, Timecode(60, 0, 0, 0, 12, false, true)));
  Timecode drop(30, 0, 0, 0, 12, true, false);
  EXPECT_TRUE(unequal(drop, Timecode(30, 0, 0, 0, 12, false, false)));
  EXPECT_FALSE(equal(drop, Timecode(30, 0, 0, 0, 12, false, false)));
}

TEST(TimecodeCopy, DropsTheDaysAndNothingElse) {
  const Timecode original(30, 2LL * 2589408 + 1800, true);
  EXPECT_EQ(2, original.days());
  const Timecode copy(original);
  EXPECT_EQ(0, copy.days());
  EXPECT_EQ(original.frame_count(), copy.frame_count());
  EXPECT_EQ(1800, copy.absolute_frame_count());
  EXPECT_EQ("00:01:00;02", label(copy));
  EXPECT_EQ(30, copy.frame_rate());
  EXPECT_TRUE(copy.drop_frame());
  EXPECT_EQ(2, original.days());
}

TEST(TimecodeCopy, FindsTheDaysAgainWhenStepped) {
  Timecode copy = Timecode(25, 2160000LL * 2, false);
  Timecode again(copy);
  ++again;
  EXPECT_EQ(2, again.days());
}

TEST(TimecodeCopy, AssignmentDropsTheDaysToo) {
  Timecode target(25, false);
  const Timecode source(60, 5178816LL + 1, true);
  target = source;
  EXPECT_EQ(60, target.frame_rate());
  EXPECT_EQ(5178817, target.frame_count());
  EXPECT_EQ(0, target.days());
  EXPECT_TRUE(target.field_mark());
}

TEST(TimecodeCopy, SelfAssignmentKeepsTheDays) {
  Timecode timecode(25, 2160000LL, false);
  const Timecode& same = timecode;
  timecode = same;
  EXPECT_EQ(1, timecode.days());
}

TEST(TimecodeCopy, IsIndependent) {
  Timecode original(25, 10LL, false);
  Timecode copy(original);
  ++copy;
  EXPECT_EQ(10, original.frame_count());
  EXPECT_EQ(11, copy.frame_count());
  const char* const text = original.c_str(Timecode::DropFrameColon, Timecode::FieldMarkOmitted);
  copy.c_str(Timecode::DropFrameColon, Timecode::FieldMarkOmitted);
  EXPECT_STREQ("00:00:00:10", text);
}

TEST(TimecodeCopy, MovingCopies) {
  Timecode source(25, 10LL, false);
  const Timecode target(std::move(source));
  EXPECT_EQ(10, target.frame_count());
  EXPECT_EQ(10, source.frame_count());  // NOLINT(bugprone-use-after-move): that is the promise
}

TEST(Timecode, FramesWithoutFieldMarkCountTwoOfALabelAtDoubleRates) {
  EXPECT_EQ(10, Timecode(25, 0, 0, 0, 10, false, false).frames_ignore_field_mark());
  EXPECT_EQ(20, Timecode(50, 0, 0, 0, 10, false, false).frames_ignore_field_mark());
  EXPECT_EQ(21, Timecode(50, 0, 0, 0, 10, false, true).frames_ignore_field_mark());
  EXPECT_EQ(58, Timecode(60, 0, 0, 0, 29, false, false).frames_ignore_field_mark());
}

}  // namespace
}  // namespace Korvane
