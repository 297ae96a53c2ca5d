#include "memory/exhaustion.h"

namespace Korvane::MemoryTests {
namespace {

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

Need need_of(Attempt& attempt) {
  attempt.make();
  Need need;
  need.allocations =
      Allocations::made_by([&] { need.outcome = outcome_of([&] { attempt.operate(); }); });
  attempt.end();
  return need;
}

Outcome run_without_memory(Attempt& attempt, long failing, bool only_one) {
  ++runs;
  const Allocations::Failure failure(failing, only_one);
  return outcome_of([&] { attempt.operate(); });
}

}  // namespace

long runs = 0;

void exhaust(Attempt& attempt, Failing as) {
  const Need need = need_of(attempt);
  for (const bool only_one : {true, false}) {
    for (long failing = 1; failing <= need.allocations + 1; ++failing) {
      SCOPED_TRACE("without allocation " + std::to_string(failing) + (only_one ? " only" : " on"));
      const long live = Allocations::counters().live();
      attempt.make();
      const Outcome outcome = run_without_memory(attempt, failing, only_one);
      EXPECT_TRUE(need.allows(outcome, failing, as)) << outcome;
      if (outcome == Outcome::NoMemory) attempt.check();
      attempt.end();
      EXPECT_EQ(live, Allocations::counters().live());
    }
  }
}

}  // namespace Korvane::MemoryTests
