// Runs one operation again and again, each time with another allocation that fails.

#ifndef KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H
#define KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H

#include <gtest/gtest.h>

#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "core/exception.h"
#include "support/allocations.h"

namespace Korvane::MemoryTests {

enum class Outcome { Done, NoMemory, Refused };

inline std::ostream& operator<<(std::ostream& out, Outcome outcome) {
  constexpr const char* kNames[] = {"done", "no memory", "refused"};
  return out << kNames[static_cast<int>(outcome)];
}

template <typename Operation>
Outcome outcome_of(Operation&& operation) {
  try {
    operation();
  } catch (const std::bad_alloc&) {
    return Outcome::NoMemory;
  } catch (const Exception&) {
    return Outcome::Refused;
  } catch (const std::out_of_range&) {
    return Outcome::Refused;
  }
  return Outcome::Done;
}

// What the lack of memory looks like: std::bad_alloc; or a refusal, from an operation that has one
// failure for all causes; or nothing, from one that then leaves out what it was to write.
enum class Failing { AsBadAlloc, AsRefusal, AsNothing };

struct Need {
  long allocations = 0;
  Outcome outcome = Outcome::Done;

  // Raising an exception needs memory of its own on some systems, and does without it.
  bool allows(Outcome actual, long failing, Failing as) const {
    if (failing > allocations) return actual == outcome;
    if (actual == Outcome::Refused) return outcome == Outcome::Refused || as == Failing::AsRefusal;
    return (actual == Outcome::Done) == (as == Failing::AsNothing);
  }
};

// How often an operation was run by exhaust().
inline long runs = 0;

template <typename Make, typename Operation>
Need need_of(const Make& make, const Operation& operation) {
  auto subject = make();
  Need need;
  need.allocations =
      Allocations::made_by([&] { need.outcome = outcome_of([&] { operation(subject); }); });
  return need;
}

// Makes a subject and runs `operation` on it with the 1st, 2nd, ... allocation failing, and with
// all from the 1st, 2nd, ... on, until it has all that it needs. After each run without memory
// `check` sees the subject; then it is assigned a new one, where its class can be, and destroyed.
// Nothing may leak.
template <typename Make, typename Operation, typename Check>
void exhaust(const Make& make, const Operation& operation, const Check& check,
             Failing as = Failing::AsBadAlloc) {
  const Need need = need_of(make, operation);
  for (const bool only_one : {true, false}) {
    for (long failing = 1; failing <= need.allocations + 1; ++failing) {
      SCOPED_TRACE("without allocation " + std::to_string(failing) + (only_one ? " only" : " on"));
      const long live = Allocations::counters().live();
      {
        auto subject = make();
        Outcome outcome = Outcome::Done;
        ++runs;
        {
          const Allocations::Failure failure(failing, only_one);
          outcome = outcome_of([&] { operation(subject); });
        }
        EXPECT_TRUE(need.allows(outcome, failing, as)) << outcome;
        if (outcome == Outcome::NoMemory) check(subject);
        if constexpr (std::is_copy_assignable_v<decltype(subject)>)
          subject = static_cast<const decltype(subject)&>(make());
      }
      EXPECT_EQ(live, Allocations::counters().live());
    }
  }
}

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H
