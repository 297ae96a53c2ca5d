#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "support/raises.h"
#include "timecode/expected_labels.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

using TimecodeUtils::load_timecode_from_full_st12m;

struct WordCase {
  unsigned short rate;
  unsigned char hours, minutes, seconds, frames;
  bool drop_frame, field_mark;
  unsigned int word;
  unsigned long long full_word;
};

// Packed by hand from the bit tables of SMPTE ST 12-1.
constexpr WordCase kWords[] = {
    {30, 1, 2, 3, 4, true, false, 0x01020344, 0x0001000200030404 | 1ULL << 27},
    {30, 1, 2, 3, 4, false, false, 0x01020304, 0x0001000200030004},
    {25, 0, 0, 0, 0, false, false, 0x00000000, 0x0800000000000000},
    {30, 0, 0, 0, 0, false, false, 0x00000000, 0x0000000008000000},
    {24, 0, 0, 0, 1, false, false, 0x00000001, 0x0000000000000001},
    {24, 10, 20, 50, 10, false, false, 0x10205010, 0x0100020005000100},
    {25, 23, 59, 58, 24, false, false, 0x23595824,
     0x0203050905080204 | 1ULL << 59},  // bits 2 and 9: even
    {50, 0, 0, 0, 24, false, true, 0x80000024, 0x0800000000000204},
    {50, 0, 0, 0, 0, false, true, 0x80000000, 0x0800000000000000},
    {60, 0, 0, 0, 29, false, true, 0x00008029, 0x0000000000000209},
    {60, 12, 34, 56, 17, true, true, 0x1234D657, 0x0102030405060507},
};

TEST(TimecodeSt12, PacksBothWords) {
  for (const WordCase& one : kWords) {
    SCOPED_TRACE(::testing::Message() << std::hex << one.word);
    const Timecode timecode(one.rate, one.hours, one.minutes, one.seconds, one.frames,
                            one.drop_frame, one.field_mark);
    EXPECT_EQ(one.word, timecode.to_12m());
    EXPECT_EQ(one.full_word, timecode.to_12m_full());
  }
}

TEST(TimecodeSt12, UnpacksTheShortWord) {
  for (const WordCase& one : kWords) {
    SCOPED_TRACE(::testing::Message() << std::hex << one.word);
    const Timecode timecode(one.rate, one.word);
    const Timecode expected(one.rate, one.hours, one.minutes, one.seconds, one.frames,
                            one.drop_frame, one.field_mark);
    EXPECT_EQ(label(expected), label(timecode));
    EXPECT_EQ(expected.frame_count(), timecode.frame_count());
    EXPECT_EQ(one.drop_frame, timecode.drop_frame());
    EXPECT_EQ(one.field_mark, timecode.field_mark());
  }
}

TEST(TimecodeSt12, TheFullWordLosesTheFieldMark) {
  for (const WordCase& one : kWords) {
    SCOPED_TRACE(::testing::Message() << std::hex << one.full_word);
    const Timecode timecode = load_timecode_from_full_st12m(one.rate, one.full_word, true);
    const Timecode expected(one.rate, one.hours, one.minutes, one.seconds, one.frames,
                            one.drop_frame, false);
    EXPECT_EQ(label(expected), label(timecode));
  }
}

TEST(TimecodeSt12, TheFieldMarkOfTheFullWordIsReadFromTheParityBit) {
  EXPECT_TRUE(load_timecode_from_full_st12m(50, 1ULL << 59, false).field_mark());
  EXPECT_FALSE(load_timecode_from_full_st12m(50, 1ULL << 27, false).field_mark());
  EXPECT_FALSE(load_timecode_from_full_st12m(50, 1ULL << 59, true).field_mark());
  EXPECT_TRUE(load_timecode_from_full_st12m(60, 1ULL << 27, false).field_mark());
  EXPECT_FALSE(load_timecode_from_full_st12m(60, 1ULL << 59, false).field_mark());
  for (const unsigned short rate : std::initializer_list<unsigned short>{24, 25, 30})
    EXPECT_FALSE(load_timecode_from_full_st12m(rate, 1ULL << 59 | 1ULL << 27, false).field_mark());
}

TEST(TimecodeSt12, ParityCoversTheFramesBytesOnly) {
  const unsigned long long with_one = Timecode(30, 0, 0, 0, 1, false, false).to_12m_full();
  EXPECT_EQ(0U, with_one >> 27 & 1);
  const unsigned long long hours = Timecode(30, 1, 0, 0, 1, false, false).to_12m_full();
  EXPECT_EQ(0U, hours >> 27 & 1) << "the one of the hours does not count";
}

TEST(TimecodeSt12, BitsWithoutAMeaningAreIgnored) {
  // Bits 7, 23 and 30, and the field-mark bits of the other rates.
  EXPECT_EQ("01:02:03:04", label(Timecode(25, 0x01020304U | 0xC0808080U)));
  EXPECT_EQ("01:02:03:04.0", label(Timecode(50, 0x01020304U | 0x00008000U)));
  EXPECT_EQ("01:02:03:04.0", label(Timecode(60, 0x01020304U | 0x80000000U)));
  EXPECT_EQ("01:02:03:04", label(load_timecode_from_full_st12m(
                               25, 0x0001000200030004 | 0xFCF0F8F0F8F0F8F0, true)));
}

TEST(TimecodeSt12, HourTwentyFourIsKept) {
  const Timecode timecode(25, 0x24000000U);
  EXPECT_EQ(24, timecode.hours());
  EXPECT_EQ(0, timecode.days());
  EXPECT_EQ(2160000, timecode.frame_count());
  EXPECT_EQ(2160000, timecode.absolute_frame_count());
  const Timecode late(30, 0x24595969U);  // drop-frame 24:59:59;29
  EXPECT_EQ("24:59:59;29", label(late));
  EXPECT_EQ(0, late.days());
}

TEST(TimecodeSt12, HourTwentyFourOfTheFullWordWraps) {
  const Timecode timecode = load_timecode_from_full_st12m(25, 0x0204000000000000, true);
  EXPECT_EQ("00:00:00:00", label(timecode));
  EXPECT_EQ(1, timecode.days());
}

struct WordError {
  unsigned short rate;
  unsigned int word;
  ExceptionCode code;
  const char* message;
};

constexpr WordError kWordErrors[] = {
    {48, 0x00000000, NotSupported, "Frame rate not supported."},
    {48, 0x2A000000, NotSupported, "Frame rate not supported."},
    {25, 0x25000000, InvalidArgument, "Hours cannot be lower than 0 and higher than 24."},
    {25, 0x1F000000, InvalidArgument, "Hours cannot be lower than 0 and higher than 24."},
    {25, 0x00600000, InvalidArgument, "Minutes cannot be lower than 0 and higher than 59."},
    {25, 0x005A0000, InvalidArgument, "Minutes cannot be lower than 0 and higher than 59."},
    {25, 0x00006000, InvalidArgument, "Seconds cannot be lower than 0 and higher than 59."},
    {25, 0x00000025, InvalidArgument,
     "Frames cannot be lower than 0 and higher than the frame rate value."},
    {30, 0x0000003F, InvalidArgument,
     "Frames cannot be lower than 0 and higher than the frame rate value."},
    {30, 0x00010040, InvalidArgument,
     "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates."},
    {60, 0x00018041, InvalidArgument,
     "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates."},
    {25, 0x25607030, InvalidArgument, "Hours cannot be lower than 0 and higher than 24."},
    {25, 0x00607030, InvalidArgument, "Minutes cannot be lower than 0 and higher than 59."},
    {25, 0x00007030, InvalidArgument, "Seconds cannot be lower than 0 and higher than 59."},
};

TEST(TimecodeSt12, RefusesWhatIsNoTimecodeInTheOrderOfTheChecks) {
  for (const WordError& error : kWordErrors) {
    SCOPED_TRACE(::testing::Message() << std::hex << error.word);
    EXPECT_TRUE(raises(error.code, error.message, [&] { Timecode(error.rate, error.word); }));
  }
}

TEST(TimecodeSt12, DigitsPastTenCountAtTheirValueWithinTheRange) {
  EXPECT_EQ("10:00:00:00", label(Timecode(25, 0x0A000000U)));
}

TEST(TimecodeSt12, TheFullWordRefusesWhatIsNoTimecode) {
  EXPECT_TRUE(raises(NotSupported, "Frame rate not supported.",
                     [] { load_timecode_from_full_st12m(48, 0, false); }));
  EXPECT_TRUE(raises(InvalidArgument, "Hours cannot be lower than 0 and higher than 24.",
                     [] { load_timecode_from_full_st12m(25, 0x0205000000000000, true); }));
  EXPECT_TRUE(
      raises(InvalidArgument,
             "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.",
             [] { load_timecode_from_full_st12m(30, 1ULL << 32 | 1ULL << 10, true); }));
}

}  // namespace
}  // namespace Korvane
