// What is allocated, and what happens when there is no memory.

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "core/exception.h"
#include "support/allocations.h"
#include "support/log_capture.h"
#include "timecode/timecode.h"
#include "timecode/timecode_info.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

using Allocations::made_by;

constexpr auto kSemicolon = Timecode::DropFrameSemicolon;
constexpr auto kDot = Timecode::FieldMarkDotSuffix;

TEST(Allocations, TheCountersSeeTheLibraries) {
  const Allocations::Counters before = Allocations::counters();
  {
    const Timecode timecode(25, false);
    EXPECT_EQ(before.live() + 1, Allocations::counters().live());
  }
  EXPECT_EQ(before.live(), Allocations::counters().live());
}

TEST(Allocations, OneForATimecode) {
  EXPECT_EQ(1, made_by([] { Timecode(25, 1, 2, 3, 4, false, false); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, 1, 2, 3, false); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, 0x01020304U); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, TimeData{}, false, {25, 1}); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, 1LL << 62, false); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, false); }));
  EXPECT_EQ(1, made_by([] { Timecode(25, 7LL, false).c_str(kSemicolon, kDot); }));
  EXPECT_EQ(1, made_by([] { TimecodeUtils::timecode_fixer(25, 1, 2, 3, 4, false, false); }));
  EXPECT_EQ(1, made_by([] {
              TimecodeUtils::load_timecode_from_string(30, "01:02:03;04", kSemicolon, kDot);
            }));
  EXPECT_EQ(1, made_by([] { TimecodeUtils::load_timecode_from_full_st12m(30, 0, true); }));
  const Timecode original(25, false);
  EXPECT_EQ(1, made_by([&] { const Timecode copy(original); }));
}

TEST(Allocations, NoneForWhatAHostCallsPerFrame) {
  Timecode timecode(30, 1799LL, true);
  const Timecode other(30, 1800LL, true);
  const Rational32 edit_rate = {30000, 1001};
  EXPECT_EQ(0, made_by([&] {
              ++timecode;
              --timecode;
              timecode.add(12345678);
              timecode.add_days(-3);
              TimecodeUtils::add_minutes(timecode, 7);
              TimecodeUtils::add_minutes(timecode, -7);
              timecode.to_12m();
              timecode.to_12m_full();
              timecode.to_ms(edit_rate);
              static_cast<void>(timecode == other);
              timecode.c_str(kSemicolon, kDot);
              timecode.text(kSemicolon, kDot);
            }));
  const Timecode previous(30, 1799LL, true);
  EXPECT_EQ(0, made_by([&] { TimecodeUtils::log_timecode_difference("x", previous, other); }));
}

// An operation on a timecode, made without memory again and again.
struct Operation {
  const char* name;
  std::function<void(Timecode&)> run;
};

const std::vector<Operation>& operations() {
  static const std::string long_pattern(200, 'x');
  static const std::wstring long_wide_pattern(200, L'x');
  static const Timecode other(60, 1LL, true);
  static const std::vector<Operation> list = {
      {"label", [](Timecode&) { Timecode(25, 1, 2, 3, 4, false, false); }},
      {"label without frames", [](Timecode&) { Timecode(25, 1, 2, 3, false); }},
      {"word", [](Timecode&) { Timecode(25, 0U); }},
      {"clock",
       [](Timecode&) {
         Timecode(25, TimeData{}, false, {25, 1});
       }},
      {"count", [](Timecode&) { Timecode(25, 5LL, false); }},
      {"zero", [](Timecode&) { Timecode(25, false); }},
      {"copy", [](Timecode& target) { const Timecode copy(target); }},
      {"assignment", [](Timecode& target) { target = other; }},
      {"formatter", [](Timecode& target) { target.formatter(long_pattern.c_str()); }},
      {"wide formatter", [](Timecode& target) { target.formatter(long_wide_pattern.c_str()); }},
      {"strict",
       [](Timecode&) {
         TimecodeUtils::load_timecode_from_string(25, "01:02:03:04", kSemicolon, kDot);
       }},
      {"wide strict",
       [](Timecode&) {
         TimecodeUtils::load_timecode_from_string(25, L"01:02:03:04 and a long tail", kSemicolon,
                                                  kDot);
       }},
      {"lenient", [](Timecode&) { TimecodeUtils::string_to_timecode("1:2:3:4", 25, false); }},
      {"fixer", [](Timecode&) { TimecodeUtils::timecode_fixer(25, 1, 2, 3, 4, false, false); }},
      {"full word", [](Timecode&) { TimecodeUtils::load_timecode_from_full_st12m(25, 0, true); }},
      {"difference",
       [](Timecode& target) {
         TimecodeUtils::log_timecode_difference("a label that does not fit a short buffer", target,
                                                target);
       }},
      {"bad rate",
       [](Timecode&) {
         try {
           Timecode(48, false);
         } catch (const Exception&) {
         }
       }},
      {"information",
       [](Timecode& target) {
         Media::TimecodeInfo info;
         info.initial_timecode(target);
         info.initial_timecode(target);
       }},
  };
  return list;
}

// What can be seen of a timecode.
std::string state_of(const Timecode& timecode) {
  return std::to_string(timecode.frame_rate()) + ' ' + std::to_string(timecode.frame_count()) +
         ' ' + std::to_string(timecode.days()) + ' ' + timecode.c_str(kSemicolon, kDot);
}

enum class Outcome { Done, NoMemory, Refused };

Outcome run_without_memory(const Operation& operation, Timecode& target, long failing,
                           bool only_one) {
  const Allocations::Failure failure(failing, only_one);
  try {
    operation.run(target);
  } catch (const std::bad_alloc&) {
    return Outcome::NoMemory;
  } catch (const Exception&) {
    return Outcome::Refused;
  }
  return Outcome::Done;
}

void ignore_line(void* /*context*/, const char* /*text*/) {}

// Fails the 1st, 2nd, ... allocation until the operation no longer meets a failure.
void exhaust(const Operation& operation, bool only_one) {
  Timecode measured(25, false);
  const long needed = made_by([&] { operation.run(measured); });
  for (long failing = 1; failing <= needed + 1; ++failing) {
    SCOPED_TRACE(std::string(operation.name) + ", allocation " + std::to_string(failing));
    const long live = Allocations::counters().live();
    {
      Timecode target(25, 2160000LL + 7, false);
      const std::string before = state_of(target);
      const Outcome outcome = run_without_memory(operation, target, failing, only_one);
      if (outcome != Outcome::Done) {
        EXPECT_EQ(before, state_of(target));
      }
      if (failing > needed) {
        EXPECT_EQ(Outcome::Done, outcome);
      }
    }
    EXPECT_EQ(live, Allocations::counters().live());
  }
}

TEST(Allocations, WithoutMemoryNothingLeaksAndTheTargetIsAsBefore) {
  Logging::Logger::instance().set_sink(ignore_line, nullptr);
  for (const Operation& operation : operations()) {
    exhaust(operation, true);
    exhaust(operation, false);
  }
  Logging::Logger::instance().set_sink(nullptr, nullptr);
}

TEST(Allocations, RaisingWithoutMemoryIsBadAllocAndEndsNothing) {
  bool raised = false;
  try {
    const Allocations::Failure failure(1);
    exception_throw(InvalidArgument, "x", true);
  } catch (const std::bad_alloc&) {
    raised = true;
  }
  EXPECT_TRUE(raised);
}

TEST(Allocations, CaughtExceptionsAreCopiedWithoutMemory) {
  try {
    exception_throw(InvalidArgument, "x", true);
  } catch (const Exception& exception) {
    EXPECT_EQ(0, made_by([&] {
                Exception copy(exception);
                copy = exception;
              }));
  }
}

TEST(Allocations, TheLineOfADifferenceIsWholeOrNotWritten) {
  const Timecode previous(25, false);
  const Timecode current(25, 9LL, false);
  const std::string label(300, 'x');
  constexpr int kAttempts = 40;
  int written = 0;
  for (int failing = 1; failing <= kAttempts; ++failing) {
    std::optional<std::string> line;
    Logging::Logger::instance().set_sink(
        [](void* context, const char* text) {
          *static_cast<std::optional<std::string>*>(context) = text;
        },
        &line);
    try {
      const Allocations::Failure failure(failing, true);
      TimecodeUtils::log_timecode_difference(label.c_str(), previous, current);
    } catch (const std::bad_alloc&) {
    }
    Logging::Logger::instance().set_sink(nullptr, nullptr);
    if (line) {
      ++written;
      EXPECT_EQ(label + ": Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:09",
                *line);
    }
  }
  EXPECT_GT(written, 0) << "no attempt had memory enough";
  EXPECT_LT(written, kAttempts) << "no attempt ran out of memory";
}

}  // namespace
}  // namespace Korvane
