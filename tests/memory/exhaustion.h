// Runs one operation again and again, each time with another allocation that fails.

#ifndef KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H
#define KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H

#include <gtest/gtest.h>

#include <functional>
#include <memory>
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

// How often an operation was run by exhaust().
extern long runs;

// An object, and what is done with it.
class Attempt {
 public:
  Attempt() = default;
  Attempt(const Attempt&) = delete;
  Attempt& operator=(const Attempt&) = delete;
  virtual ~Attempt() = default;

  virtual void make() = 0;
  virtual void operate() = 0;
  virtual void check() = 0;
  virtual void end() = 0;  // after assigning a new object, where the class can
};

// Makes an object and runs its operation with the 1st, 2nd, ... allocation failing, and with all
// from the 1st, 2nd, ... on, until it has all that it needs. After each run without memory the
// object is checked; then it takes a new value and is destroyed. Nothing may leak.
void exhaust(Attempt& attempt, Failing as);

// One type for all operations of a subject: hundreds take the compiler long otherwise.
template <typename Subject>
class AttemptOn final : public Attempt {
 public:
  using Make = std::function<Subject()>;
  using Operation = std::function<void(Subject&)>;

  AttemptOn(const Make& make, const Operation& operation, const Operation& check)
      : make_(make), operation_(operation), check_(check) {}

  void make() override { subject_.reset(new Subject(make_())); }
  void operate() override { operation_(*subject_); }
  void check() override { check_(*subject_); }
  void end() override {
    if constexpr (std::is_copy_assignable_v<Subject>)
      *subject_ = static_cast<const Subject&>(make_());
    subject_.reset();
  }

 private:
  const Make& make_;
  const Operation& operation_;
  const Operation& check_;
  std::unique_ptr<Subject> subject_;
};

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_EXHAUSTION_H
