#include "support/allocations.h"

namespace Korvane::Allocations {
namespace {

// Allocations until the failing one; 0 when none fails.
thread_local long countdown = 0;
thread_local bool single = false;

}  // namespace

Failure::Failure(long first_failing, bool only_one) {
  countdown = first_failing;
  single = only_one;
}

Failure::~Failure() { countdown = 0; }

bool next_fails() {
  if (countdown == 0) return false;
  if (countdown > 1) {
    --countdown;
    return false;
  }
  if (single) countdown = 0;
  return true;
}

}  // namespace Korvane::Allocations
