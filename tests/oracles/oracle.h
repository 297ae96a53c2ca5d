// What the comparisons with other libraries share.

#ifndef KV_ENGINE_TESTS_ORACLES_ORACLE_H
#define KV_ENGINE_TESTS_ORACLES_ORACLE_H

#include <gtest/gtest.h>

#include "support/naive_timecode.h"

namespace Korvane {

using Naive::Counting;

// The rate in real time: drop-frame keeps up with rates that are slower by 1001 to 1000.
template <typename Rational>
Rational real_rate(const Counting& counting) {
  return counting.drop ? Rational{counting.rate * 1000, 1001} : Rational{counting.rate, 1};
}

// Calls `check` with the timecode of each frame of the day, up to the first that fails.
template <typename Check>
::testing::AssertionResult each_frame(const Counting& counting, Check check) {
  Timecode timecode(counting.rate, counting.drop);
  for (long long count = 0; count < counting.frames_per_day; ++count, ++timecode)
    if (::testing::AssertionResult result = check(timecode); !result) return result;
  return ::testing::AssertionSuccess();
}

template <typename Expected, typename Actual>
::testing::AssertionResult differs(const char* what, const Timecode& timecode,
                                   const Expected& expected, const Actual& actual) {
  return ::testing::AssertionFailure() << what << " gives " << actual << ", expected " << expected
                                       << ", " << Naive::show(timecode);
}

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_ORACLES_ORACLE_H
