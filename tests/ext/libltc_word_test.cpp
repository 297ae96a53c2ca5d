// All 80 bits of a word against libltc, which sends them from sound cards.

#include <ltc.h>

#include <cstring>
#include <ostream>
#include <random>

#include "ext/ltc.h"
#include "oracles/oracle.h"

namespace Korvane {
namespace {

struct SentCounting {
  Counting counting;
  LTC_TV_STANDARD standard;
};

constexpr SentCounting kSentCountings[] = {
    {Naive::kCountings[0], LTC_TV_FILM_24},
    {Naive::kCountings[1], LTC_TV_625_50},
    {Naive::kCountings[2], LTC_TV_525_60},
    {Naive::kCountings[3], LTC_TV_525_60},
};

void PrintTo(const SentCounting& sent, std::ostream* out) { *out << sent.counting.name; }

Ext::LtcExtras drawn_extras(std::mt19937& generator) {
  Ext::LtcExtras extras;
  extras.user_bits = static_cast<std::uint32_t>(generator());
  extras.color_frame = generator() % 2 != 0;
  extras.bgf0 = generator() % 2 != 0;
  extras.bgf1 = generator() % 2 != 0;
  extras.bgf2 = generator() % 2 != 0;
  return extras;
}

// libltc names the flags as at 30; those of 25 have other places.
LTCFrame sent_frame(const SentCounting& sent, const Timecode& timecode,
                    const Ext::LtcExtras& extras) {
  LTCFrame frame;
  ltc_frame_reset(&frame);
  frame.dfbit = timecode.drop_frame() ? 1 : 0;
  SMPTETimecode label = {};
  label.hours = timecode.hours();
  label.mins = timecode.minutes();
  label.secs = timecode.seconds();
  label.frame = timecode.frames();
  ltc_time_to_frame(&frame, &label, sent.standard, 0);

  const bool is_25 = sent.standard == LTC_TV_625_50;
  frame.col_frame = extras.color_frame;
  frame.biphase_mark_phase_correction = is_25 && extras.bgf0;
  frame.binary_group_flag_bit0 = is_25 ? extras.bgf2 : extras.bgf0;
  frame.binary_group_flag_bit1 = extras.bgf1;
  frame.binary_group_flag_bit2 = !is_25 && extras.bgf2;
  const auto group = [&extras](unsigned int number) {
    return extras.user_bits >> (4 * number - 4);
  };
  frame.user1 = group(1) & 0xFU;
  frame.user2 = group(2) & 0xFU;
  frame.user3 = group(3) & 0xFU;
  frame.user4 = group(4) & 0xFU;
  frame.user5 = group(5) & 0xFU;
  frame.user6 = group(6) & 0xFU;
  frame.user7 = group(7) & 0xFU;
  frame.user8 = group(8) & 0xFU;
  ltc_frame_set_parity(&frame, sent.standard);
  return frame;
}

class LibltcWord : public ::testing::TestWithParam<SentCounting> {};

// Frames all over the day, each with user bits and flags of its own.
TEST_P(LibltcWord, IsSentBitForBit) {
  const SentCounting& sent = GetParam();
  std::mt19937 generator(1);
  for (long long count = 0; count < sent.counting.frames_per_day; count += 97) {
    const Timecode timecode(sent.counting.rate, count, sent.counting.drop);
    const Ext::LtcExtras extras = drawn_extras(generator);
    const LTCFrame frame = sent_frame(sent, timecode, extras);
    Ext::LtcWord expected;
    std::memcpy(expected.data(), &frame, expected.size());
    ASSERT_EQ(expected, Ext::to_ltc(timecode, extras)) << Naive::show(timecode);

    // And read back.
    ASSERT_EQ(count, Ext::from_ltc(sent.counting.rate, expected).frame_count());
    LTCFrame user = frame;
    ASSERT_EQ(ltc_frame_get_user_bits(&user),
              Ext::ltc_extras(sent.counting.rate, expected).user_bits);
  }
}

INSTANTIATE_TEST_SUITE_P(, LibltcWord, ::testing::ValuesIn(kSentCountings),
                         [](const auto& tested) { return tested.param.counting.name; });

}  // namespace
}  // namespace Korvane
