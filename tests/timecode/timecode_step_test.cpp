// ++ and -- derive little anew. Each step must give what a timecode made from the count has.

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "timecode/expected_labels.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

struct Counting {
  unsigned short rate;
  bool drop_frame;
  long long frames_per_day;
};
constexpr Counting kCountings[] = {{24, false, 2073600}, {25, false, 2160000}, {30, false, 2592000},
                                   {30, true, 2589408},  {50, false, 4320000}, {60, false, 5184000},
                                   {60, true, 5178816}};

void expect_same(const Timecode& expected, const Timecode& actual) {
  ASSERT_EQ(expected.frame_count(), actual.frame_count());
  ASSERT_EQ(expected.absolute_frame_count(), actual.absolute_frame_count());
  ASSERT_EQ(expected.days(), actual.days());
  ASSERT_EQ(expected.field_mark(), actual.field_mark());
  ASSERT_EQ(label(expected), label(actual));
}

// Both ways over `steps` frames from `start` on; counts wrap at the ends of 64 bits.
void expect_steps(const Counting& counting, long long start, int steps) {
  SCOPED_TRACE(std::to_string(counting.rate) + " from " + std::to_string(start));
  const auto fresh = [&](int step) {
    const auto count = static_cast<unsigned long long>(start) + static_cast<unsigned int>(step);
    return Timecode(counting.rate, static_cast<long long>(count), counting.drop_frame);
  };
  Timecode timecode = fresh(0);
  for (int step = 1; step <= steps; ++step) {
    ++timecode;
    ASSERT_NO_FATAL_FAILURE(expect_same(fresh(step), timecode));
  }
  for (int step = steps - 1; step >= 0; --step) {
    --timecode;
    ASSERT_NO_FATAL_FAILURE(expect_same(fresh(step), timecode));
  }
}

TEST(TimecodeStep, EqualsTheCountAroundDaysAndTheEndsOf64Bits) {
  using Limits = std::numeric_limits<long long>;
  for (const Counting& counting : kCountings) {
    const int around = 10 * counting.rate;
    const long long centres[] = {0,
                                 counting.frames_per_day,
                                 -counting.frames_per_day,
                                 40000 * counting.frames_per_day,  // more days than 16 bits count
                                 1LL << 62,
                                 -(1LL << 62),
                                 Limits::max() - around,
                                 Limits::min() + around};
    for (const long long centre : centres) expect_steps(counting, centre - around, 2 * around);
    expect_steps(counting, Limits::max() - around, 2 * around);  // over the end, and back
  }
}

TEST(TimecodeStep, EqualsTheCountOverElevenMinutes) {
  for (const Counting& counting : kCountings) expect_steps(counting, 0, 11 * 60 * counting.rate);
}

TEST(TimecodeStep, LabelsAndWordsStepAsTheirCounts) {
  for (const Counting& counting : kCountings) {
    Timecode of_label(counting.rate, 23, 59, 59, 5, counting.drop_frame, true);
    Timecode of_word(counting.rate, of_label.to_12m());
    for (int step = 0; step < 3 * counting.rate; ++step) {
      ++of_label;
      ++of_word;
      const Timecode fresh(counting.rate, of_label.frame_count(), counting.drop_frame);
      ASSERT_NO_FATAL_FAILURE(expect_same(fresh, of_label));
      ASSERT_NO_FATAL_FAILURE(expect_same(fresh, of_word));
    }
  }
}

TEST(TimecodeStep, ALabelStepsOverTheEndOf64BitsOnceAddingBroughtItThere) {
  using Limits = std::numeric_limits<long long>;
  for (const Counting& counting : kCountings) {
    Timecode timecode(counting.rate, 0, 0, 0, 0, counting.drop_frame, false);
    timecode.add(Limits::max());
    ++timecode;
    const Timecode fresh(counting.rate, Limits::min(), counting.drop_frame);
    ASSERT_NO_FATAL_FAILURE(expect_same(fresh, timecode));
  }
}

TEST(TimecodeStep, LeavesHour24OfAWord) {
  Timecode forth(25, 0x24000000U);
  ++forth;
  EXPECT_EQ("00:00:00:01", label(forth));
  EXPECT_EQ(1, forth.days());
  Timecode back(25, 0x24000005U);
  --back;
  EXPECT_EQ("00:00:00:04", label(back));
  EXPECT_EQ(1, back.days());
}

TEST(TimecodeStep, GivesACopyItsDays) {
  const Timecode original(25, 3 * 2160000LL + 7, false);
  Timecode forth(original);
  EXPECT_EQ(0, forth.days());
  ++forth;
  EXPECT_EQ(3, forth.days());
  Timecode back(original);
  --back;
  EXPECT_EQ(3, back.days());
}

}  // namespace
}  // namespace Korvane
