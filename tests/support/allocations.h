// Counts what operator new hands out in the whole process, our shared libraries and the C++ run
// time included, and makes it fail on demand. Only in programs that link an allocations_*.cpp.

#ifndef KV_ENGINE_TESTS_SUPPORT_ALLOCATIONS_H
#define KV_ENGINE_TESTS_SUPPORT_ALLOCATIONS_H

namespace Korvane::Allocations {

struct Counters {
  long made = 0;
  long freed = 0;
  long live() const { return made - freed; }
};

// Since the start of the program.
Counters counters();

// While it lives, every allocation of this thread from the `first_failing`-th on fails (1 is the
// next); with `only_one` just that one.
class Failure {
 public:
  explicit Failure(long first_failing, bool only_one = false);
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  ~Failure();
};

// How many allocations `operation` makes.
template <typename Operation>
long made_by(Operation&& operation) {
  const long before = counters().made;
  operation();
  return counters().made - before;
}

// For the implementations: whether the allocation that is about to be made fails.
bool next_fails();

}  // namespace Korvane::Allocations
#endif  // KV_ENGINE_TESTS_SUPPORT_ALLOCATIONS_H
