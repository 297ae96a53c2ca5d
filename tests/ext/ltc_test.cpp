#include "ext/ltc.h"

#include <gtest/gtest.h>

#include "support/raises.h"

namespace Korvane::LtcTests {
namespace {

using Ext::LtcExtras;
using Ext::LtcMark;
using Ext::LtcWord;

constexpr unsigned short kPalRates[] = {25, 50};
constexpr unsigned short kOtherRates[] = {24, 30, 60};
constexpr unsigned short kRates[] = {24, 25, 30, 50, 60};
const Timecode kLastOfDay(30, 23, 59, 59, 29, true, false);

LtcExtras user_bits(std::uint32_t groups) {
  LtcExtras extras;
  extras.user_bits = groups;
  return extras;
}

TEST(ExtLtc, LabelAndSyncWord) {
  EXPECT_EQ((LtcWord{0x04, 0x00, 0x03, 0x00, 0x02, 0x00, 0x01, 0x00, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(25, 1, 2, 3, 4, false, false)));
}

// The sync word has 13 ones, so that no other one asks for a fourteenth.
TEST(ExtLtc, ParityIsBit59At25And50AndBit27Elsewhere) {
  for (const unsigned short rate : kPalRates)
    EXPECT_EQ((LtcWord{0, 0, 0, 0, 0, 0, 0, 0x08, 0xFC, 0xBF}), Ext::to_ltc(Timecode(rate, false)));
  for (const unsigned short rate : kOtherRates)
    EXPECT_EQ((LtcWord{0, 0, 0, 0x08, 0, 0, 0, 0, 0xFC, 0xBF}), Ext::to_ltc(Timecode(rate, false)));
}

TEST(ExtLtc, UserBitsCountForParity) {
  EXPECT_EQ((LtcWord{0x19, 0x26, 0x39, 0x4D, 0x59, 0x65, 0x73, 0x82, 0xFC, 0xBF}),
            Ext::to_ltc(kLastOfDay, user_bits(0x87654321)));
  LtcExtras extras = user_bits(0x87654321);
  extras.bgf0 = true;
  EXPECT_EQ((LtcWord{0x19, 0x26, 0x39, 0x45, 0x59, 0x6D, 0x73, 0x82, 0xFC, 0xBF}),
            Ext::to_ltc(kLastOfDay, extras));
}

LtcExtras all_flags() {
  LtcExtras extras;
  extras.color_frame = true;
  extras.bgf0 = true;
  extras.bgf1 = true;
  extras.bgf2 = true;
  return extras;
}

TEST(ExtLtc, FlagsHaveTheirPlaceByRate) {
  EXPECT_EQ((LtcWord{0, 0x08, 0, 0x08, 0, 0x08, 0, 0x0C, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(25, false), all_flags()));
  LtcExtras extras;
  extras.bgf0 = true;
  EXPECT_EQ((LtcWord{0, 0, 0, 0x08, 0, 0, 0, 0, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(25, false), extras));
  EXPECT_EQ((LtcWord{0, 0, 0, 0, 0, 0x08, 0, 0, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(30, false), extras));
  extras = {};
  extras.bgf2 = true;
  EXPECT_EQ((LtcWord{0, 0, 0, 0, 0, 0x08, 0, 0, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(25, false), extras));
  EXPECT_EQ((LtcWord{0, 0, 0, 0, 0, 0, 0, 0x08, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(30, false), extras));
}

TEST(ExtLtc, FieldMarkTakesThePlaceOfParity) {
  const Timecode at_50(50, 49LL, false);
  const Timecode at_60(60, 59LL, false);
  EXPECT_EQ((LtcWord{0x04, 0x02, 0, 0, 0, 0, 0, 0x08, 0xFC, 0xBF}),
            Ext::to_ltc(at_50, {}, LtcMark::FieldMark));
  EXPECT_EQ((LtcWord{0x04, 0x02, 0, 0, 0, 0, 0, 0, 0xFC, 0xBF}),
            Ext::to_ltc(Timecode(50, 48LL, false), {}, LtcMark::FieldMark));
  EXPECT_EQ((LtcWord{0x09, 0x02, 0, 0x08, 0, 0, 0, 0, 0xFC, 0xBF}),
            Ext::to_ltc(at_60, {}, LtcMark::FieldMark));
  for (const Timecode& timecode : {at_50, at_60}) {
    const LtcWord word = Ext::to_ltc(timecode, {}, LtcMark::FieldMark);
    EXPECT_EQ(timecode.frame_count(),
              Ext::from_ltc(timecode.frame_rate(), word, LtcMark::FieldMark).frame_count());
    // With parity, a pair has one word, that of its first frame.
    EXPECT_EQ(timecode.frame_count() - 1,
              Ext::from_ltc(timecode.frame_rate(), Ext::to_ltc(timecode)).frame_count());
  }
}

TEST(ExtLtc, WordsBecomeTimecodesAgain) {
  const Timecode timecode =
      Ext::from_ltc(30, {0x19, 0x26, 0x39, 0x4D, 0x59, 0x6D, 0x73, 0x8E, 0xFC, 0xBF});
  EXPECT_EQ(kLastOfDay.frame_count(), timecode.frame_count());
  EXPECT_TRUE(timecode.drop_frame());
}

TEST(ExtLtc, ReadsWhatAWordCarriesBesides) {
  for (const unsigned short rate : kRates) {
    LtcExtras extras = user_bits(0x87654321);
    for (unsigned int flags = 0; flags < 16; ++flags) {
      extras.color_frame = (flags & 1U) != 0;
      extras.bgf0 = (flags & 2U) != 0;
      extras.bgf1 = (flags & 4U) != 0;
      extras.bgf2 = (flags & 8U) != 0;
      const LtcWord word = Ext::to_ltc(Timecode(rate, 12345LL, false), extras);
      EXPECT_TRUE(Ext::has_even_ltc_parity(word));
      const LtcExtras read = Ext::ltc_extras(rate, word);
      EXPECT_EQ(0x87654321U, read.user_bits);
      EXPECT_EQ(extras.color_frame, read.color_frame);
      EXPECT_EQ(extras.bgf0, read.bgf0);
      EXPECT_EQ(extras.bgf1, read.bgf1);
      EXPECT_EQ(extras.bgf2, read.bgf2);
    }
  }
}

TEST(ExtLtc, OneWrongBitIsSeen) {
  const LtcWord word = Ext::to_ltc(kLastOfDay);
  EXPECT_TRUE(Ext::has_ltc_sync(word));
  EXPECT_TRUE(Ext::has_even_ltc_parity(word));
  for (unsigned int bit = 0; bit < 80; ++bit) {
    LtcWord wrong = word;
    wrong[bit / 8] = static_cast<std::uint8_t>(wrong[bit / 8] ^ 1U << bit % 8);
    EXPECT_FALSE(Ext::has_even_ltc_parity(wrong)) << bit;
    EXPECT_EQ(bit < 64, Ext::has_ltc_sync(wrong)) << bit;
  }
}

TEST(ExtLtc, RefusesWordsThatAreNone) {
  LtcWord word = Ext::to_ltc(kLastOfDay);
  word[9] = 0xFC;
  EXPECT_TRUE(raises(InvalidArgument, "Invalid sync word", [&] { Ext::from_ltc(30, word); }));
  word = Ext::to_ltc(kLastOfDay);
  word[2] = 0x0F;  // 50 and 15 seconds
  EXPECT_TRUE(raises(InvalidArgument, "Seconds cannot be lower than 0 and higher than 59.",
                     [&] { Ext::from_ltc(30, word); }));
}

TEST(ExtLtc, DataAreTheBitsBeforeTheSyncWord) {
  EXPECT_EQ(0x0001000200030004U,
            Ext::ltc_data(Ext::to_ltc(Timecode(25, 1, 2, 3, 4, false, false))));
}

}  // namespace
}  // namespace Korvane::LtcTests
