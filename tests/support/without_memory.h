// Runs an operation with less memory than it needs. Only in programs that link an
// allocations_*.cpp.

#ifndef KV_ENGINE_TESTS_SUPPORT_WITHOUT_MEMORY_H
#define KV_ENGINE_TESTS_SUPPORT_WITHOUT_MEMORY_H

#include <gtest/gtest.h>

#include <new>

#include "support/allocations.h"

namespace Korvane::Allocations {

// Whether `operation` came to its end with its `failing`-th allocation and all later ones failing.
template <typename Operation>
bool done_without_memory(Operation&& operation, long failing) {
  const Failure failure(failing);
  try {
    operation();
  } catch (const std::bad_alloc&) {
    return false;
  }
  return true;
}

// Makes an object and runs `operation` on it, again and again: without any memory at first, then
// with one allocation more each time, until it comes to its end. After each run `check` sees the
// object and whether the operation was done. Nothing may leak. Returns how often memory ran out.
template <typename Make, typename Operation, typename Check>
long run_with_ever_more_memory(Make&& make, Operation&& operation, Check&& check) {
  constexpr long kMost = 1000;
  for (long failing = 1; failing < kMost; ++failing) {
    SCOPED_TRACE(failing);
    bool done = false;
    const long live = counters().live();
    {
      auto object = make();
      done = done_without_memory([&] { operation(object); }, failing);
      check(object, done);
    }
    EXPECT_EQ(live, counters().live());
    if (done) return failing - 1;
  }
  ADD_FAILURE() << "not done with " << kMost << " allocations";
  return kMost;
}

}  // namespace Korvane::Allocations
#endif  // KV_ENGINE_TESTS_SUPPORT_WITHOUT_MEMORY_H
