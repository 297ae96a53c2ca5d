// Every frame of a day against libltc, which packs the same 64 bits in front of its sync word.
//
// One bit differs: libltc evens out the parity of all 80 bits, the library only that of bits 0
// to 15. Both write it to bit 59 at 25 and to bit 27 at 24 and 30; it is left out of the
// comparison.

#include <ltc.h>

#include <cstring>

#include "oracles/oracle.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

struct LinearCounting {
  Counting counting;
  LTC_TV_STANDARD standard;
  int parity_bit;
};

// 24, 25, 30 and 30 drop-frame: linear timecode goes no faster.
constexpr LinearCounting kLinearCountings[] = {
    {Naive::kCountings[0], LTC_TV_FILM_24, 27},
    {Naive::kCountings[1], LTC_TV_625_50, 59},
    {Naive::kCountings[2], LTC_TV_525_60, 27},
    {Naive::kCountings[3], LTC_TV_525_60, 27},
};

void PrintTo(const LinearCounting& linear, std::ostream* out) { *out << linear.counting.name; }

// Bit 0 is the first that is sent.
unsigned long long word_of(const LTCFrame& frame) {
  unsigned char bytes[8];
  std::memcpy(bytes, &frame, sizeof bytes);
  unsigned long long word = 0;
  for (int i = 7; i >= 0; --i) word = word << 8 | bytes[i];
  return word;
}

LTCFrame first_frame(const LinearCounting& linear) {
  LTCFrame frame;
  ltc_frame_reset(&frame);
  frame.dfbit = linear.counting.drop ? 1 : 0;
  SMPTETimecode zero = {};
  ltc_time_to_frame(&frame, &zero, linear.standard, 0);
  return frame;
}

LTCFrame frame_of_label(const LinearCounting& linear, const Timecode& timecode) {
  SMPTETimecode label = {};
  label.hours = timecode.hours();
  label.mins = timecode.minutes();
  label.secs = timecode.seconds();
  label.frame = timecode.frames();
  LTCFrame frame = first_frame(linear);
  ltc_time_to_frame(&frame, &label, linear.standard, 0);
  return frame;
}

AssertionResult packs_as(const LinearCounting& linear, const LTCFrame& frame,
                         const Timecode& timecode) {
  const unsigned long long compared = ~(1ULL << linear.parity_bit);
  const unsigned long long expected = word_of(frame) & compared;
  const unsigned long long word = timecode.to_12m_full() & compared;
  if (word != expected)
    return differs("packing", timecode, Naive::show_word(expected), Naive::show_word(word));
  return AssertionSuccess();
}

class LibltcDay : public ::testing::TestWithParam<LinearCounting> {
 protected:
  const LinearCounting linear_ = GetParam();
};

TEST_P(LibltcDay, StepsUp) {
  LTCFrame frame = first_frame(linear_);
  bool day_over = false;
  EXPECT_TRUE(each_frame(linear_.counting, [&](const Timecode& timecode) {
    AssertionResult result = packs_as(linear_, frame, timecode);
    day_over = ltc_frame_increment(&frame, linear_.counting.rate, linear_.standard, 0) != 0;
    return result;
  }));
  EXPECT_TRUE(day_over);
}

TEST_P(LibltcDay, PacksLabel) {
  EXPECT_TRUE(each_frame(linear_.counting, [&](const Timecode& timecode) {
    return packs_as(linear_, frame_of_label(linear_, timecode), timecode);
  }));
}

TEST_P(LibltcDay, Unpacks) {
  LTCFrame frame = first_frame(linear_);
  EXPECT_TRUE(each_frame(linear_.counting, [&](const Timecode& timecode) {
    const Timecode unpacked =
        TimecodeUtils::load_timecode_from_full_st12m(linear_.counting.rate, word_of(frame), true);
    ltc_frame_increment(&frame, linear_.counting.rate, linear_.standard, 0);
    if (unpacked.frame_count() != timecode.frame_count() ||
        unpacked.drop_frame() != timecode.drop_frame())
      return differs("unpacking", timecode, Naive::show(timecode), Naive::show(unpacked));
    return AssertionSuccess();
  }));
}

INSTANTIATE_TEST_SUITE_P(, LibltcDay, ::testing::ValuesIn(kLinearCountings),
                         [](const auto& tested) { return tested.param.counting.name; });

}  // namespace
}  // namespace Korvane
