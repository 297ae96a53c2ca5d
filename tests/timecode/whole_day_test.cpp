// Every frame of a day at every counting, 24097824 in all, against counting by hand.

#include <gtest/gtest.h>

#include <string>

#include "support/naive_timecode.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

using Naive::Counting;
using Naive::Frame;
using Naive::same;
using Naive::show;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

class WholeDay : public ::testing::TestWithParam<Counting> {};

AssertionResult differs(const char* what, const Counting& counting, const Frame& expected,
                        const Timecode& actual) {
  return AssertionFailure() << what << " gives " << show(actual) << "\nexpected "
                            << show(counting, expected);
}

AssertionResult text_differs(const Counting& counting, const Frame& frame,
                             const std::string& expected, const char* actual) {
  return AssertionFailure() << "printed \"" << actual << "\", expected \"" << expected << "\", "
                            << show(counting, frame);
}

AssertionResult word_differs(const Counting& counting, const Frame& frame,
                             unsigned long long expected, unsigned long long actual) {
  return AssertionFailure() << "packed " << Naive::show_word(actual) << ", expected "
                            << Naive::show_word(expected) << ", " << show(counting, frame);
}

// Calls `check` with the naive frame and the timecode of each frame of the day, up to the first
// that fails, and expects the label to have come round after the known number of frames.
template <typename Check>
AssertionResult each_frame(const Counting& counting, Check check) {
  Frame frame;
  Timecode timecode(counting.rate, counting.drop);
  for (; frame.days == 0; Naive::step_up(counting, frame), ++timecode)
    if (AssertionResult result = check(frame, timecode); !result) return result;
  if (frame.count == counting.frames_per_day) return AssertionSuccess();
  return AssertionFailure() << "the day ended after " << frame.count << " frames";
}

// One second into day 1, whose first minute leaves no numbers out.
Frame second_1_of_day_1(const Counting& counting) {
  Frame frame;
  frame.count = counting.frames_per_day + counting.rate;
  frame.absolute = counting.rate;
  frame.days = 1;
  frame.label.seconds = 1;
  return frame;
}

AssertionResult steps_up(const Counting& counting) {
  Frame frame;
  const Frame last = second_1_of_day_1(counting);
  for (Timecode timecode(counting.rate, counting.drop);; ++timecode) {
    if (!same(counting, frame, timecode)) return differs("++", counting, frame, timecode);
    if (frame.count == last.count) break;
    Naive::step_up(counting, frame);
  }
  if (frame.days == 1 && frame.label.seconds == 1 && frame.label.frame == 0)
    return AssertionSuccess();
  return AssertionFailure() << "the naive day has another length: " << show(counting, frame);
}

AssertionResult steps_down(const Counting& counting) {
  Frame frame = second_1_of_day_1(counting);
  for (Timecode timecode(counting.rate, frame.count, counting.drop);; --timecode) {
    if (!same(counting, frame, timecode)) return differs("--", counting, frame, timecode);
    if (frame.count == -counting.rate) break;
    Naive::step_down(counting, frame);
  }
  if (frame.days == -1 && frame.label.seconds == 59 && frame.label.frame == 0)
    return AssertionSuccess();
  return AssertionFailure() << "the naive day has another length: " << show(counting, frame);
}

AssertionResult converts(const Counting& counting, const Frame& frame) {
  const Timecode of_count(counting.rate, frame.count, counting.drop);
  if (!same(counting, frame, of_count)) return differs("the count", counting, frame, of_count);
  const Timecode of_label(counting.rate, of_count.hours(), of_count.minutes(), of_count.seconds(),
                          of_count.frames(), counting.drop, of_count.field_mark());
  if (!same(counting, frame, of_label)) return differs("the label", counting, frame, of_label);
  return AssertionSuccess();
}

constexpr Timecode::FieldMarkIndication kIndications[] = {
    Timecode::FieldMarkDotSuffix, Timecode::FieldMarkFullRateFrames, Timecode::FieldMarkOmitted};

AssertionResult prints(const Counting& counting, const Frame& frame, const Timecode& timecode,
                       Timecode::FieldMarkIndication indication) {
  const std::string expected =
      Naive::text_of(counting, frame.label, Timecode::DropFrameSemicolon, indication);
  const char* const text = timecode.c_str(Timecode::DropFrameSemicolon, indication);
  if (text != expected) return text_differs(counting, frame, expected, text);
  return AssertionSuccess();
}

AssertionResult parses(const Counting& counting, const Frame& frame,
                       Timecode::FieldMarkIndication indication) {
  const std::string text =
      Naive::text_of(counting, frame.label, Timecode::DropFrameSemicolon, indication);
  // Text without field mark reads as the first frame of the pair.
  const Frame expected = indication == Timecode::FieldMarkOmitted
                             ? Naive::with_field_mark(counting, frame, false)
                             : frame;
  const Timecode parsed = TimecodeUtils::load_timecode_from_string(
      counting.rate, text.c_str(), Timecode::DropFrameSemicolon, indication);
  if (!same(counting, expected, parsed)) return differs(text.c_str(), counting, expected, parsed);
  return AssertionSuccess();
}

AssertionResult packs_32_bits(const Counting& counting, const Frame& frame,
                              const Timecode& timecode) {
  const unsigned int expected = Naive::word32_of(counting, frame.label);
  const unsigned int word = timecode.to_12m();
  if (word != expected) return word_differs(counting, frame, expected, word);
  const Timecode unpacked(counting.rate, word);
  if (!same(counting, frame, unpacked)) return differs("the word", counting, frame, unpacked);
  return AssertionSuccess();
}

AssertionResult unpacks_64_bits(const Counting& counting, const Frame& expected,
                                unsigned long long word, bool ignore_field_mark) {
  const Timecode unpacked =
      TimecodeUtils::load_timecode_from_full_st12m(counting.rate, word, ignore_field_mark);
  if (same(counting, expected, unpacked)) return AssertionSuccess();
  return differs(ignore_field_mark ? "the word without field mark" : "the word", counting, expected,
                 unpacked);
}

AssertionResult packs_64_bits(const Counting& counting, const Frame& frame,
                              const Timecode& timecode) {
  const unsigned long long expected = Naive::word64_of(counting, frame.label);
  const unsigned long long word = timecode.to_12m_full();
  if (word != expected) return word_differs(counting, frame, expected, word);

  const Frame first_of_pair = Naive::with_field_mark(counting, frame, false);
  // The parity stands where the field mark is read.
  const Frame marked_by_parity =
      Naive::with_field_mark(counting, frame, Naive::parity_of(expected));
  if (AssertionResult result = unpacks_64_bits(counting, first_of_pair, word, true); !result)
    return result;
  if (!Naive::counts_pairs(counting)) return AssertionSuccess();
  return unpacks_64_bits(counting, marked_by_parity, word, false);
}

TEST_P(WholeDay, StepsUp) { EXPECT_TRUE(steps_up(GetParam())); }

TEST_P(WholeDay, StepsDown) { EXPECT_TRUE(steps_down(GetParam())); }

TEST_P(WholeDay, ConvertsCountAndLabel) {
  const Counting& counting = GetParam();
  EXPECT_TRUE(each_frame(
      counting, [&](const Frame& frame, const Timecode&) { return converts(counting, frame); }));
}

TEST_P(WholeDay, Prints) {
  const Counting& counting = GetParam();
  EXPECT_TRUE(each_frame(counting, [&](const Frame& frame, const Timecode& timecode) {
    for (const Timecode::FieldMarkIndication indication : kIndications)
      if (AssertionResult result = prints(counting, frame, timecode, indication); !result)
        return result;
    return AssertionSuccess();
  }));
}

// At single rates the three texts are one; the indications take turns there.
TEST_P(WholeDay, Parses) {
  const Counting& counting = GetParam();
  EXPECT_TRUE(each_frame(counting, [&](const Frame& frame, const Timecode&) {
    if (!Naive::counts_pairs(counting))
      return parses(counting, frame, kIndications[frame.count % 3]);
    for (const Timecode::FieldMarkIndication indication : kIndications)
      if (AssertionResult result = parses(counting, frame, indication); !result) return result;
    return AssertionSuccess();
  }));
}

TEST_P(WholeDay, PacksIn32Bits) {
  const Counting& counting = GetParam();
  EXPECT_TRUE(each_frame(counting, [&](const Frame& frame, const Timecode& timecode) {
    return packs_32_bits(counting, frame, timecode);
  }));
}

TEST_P(WholeDay, PacksIn64Bits) {
  const Counting& counting = GetParam();
  EXPECT_TRUE(each_frame(counting, [&](const Frame& frame, const Timecode& timecode) {
    return packs_64_bits(counting, frame, timecode);
  }));
}

INSTANTIATE_TEST_SUITE_P(, WholeDay, ::testing::ValuesIn(Naive::kCountings),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace Korvane
