#include "timecode/timecode_utils.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/log_capture.h"
#include "support/raises.h"
#include "timecode/expected_labels.h"

namespace Korvane {
namespace {

using TimecodeUtils::add_minutes;
using TimecodeUtils::frame_rate_drop_frame_filter;
using TimecodeUtils::load_timecode_from_string;
using TimecodeUtils::log_timecode_difference;
using TimecodeUtils::string_to_timecode;
using TimecodeUtils::timecode_fixer;

constexpr const char* kInvalidMessage = "Received invalid timecode";
constexpr const char* kIndicationMessage =
    "Timecode mapping currently only supports semicolon indication";

constexpr auto kSemicolon = Timecode::DropFrameSemicolon;
constexpr auto kDot = Timecode::FieldMarkDotSuffix;
constexpr auto kFullRate = Timecode::FieldMarkFullRateFrames;
constexpr auto kOmitted = Timecode::FieldMarkOmitted;

TEST(FrameRateDropFrameFilter, KeepsDropFrameAt30And60) {
  for (unsigned int rate = 0; rate <= 65535; ++rate) {
    const auto value = static_cast<unsigned short>(rate);
    EXPECT_EQ(rate == 30 || rate == 60, frame_rate_drop_frame_filter(value, true)) << rate;
    EXPECT_FALSE(frame_rate_drop_frame_filter(value, false)) << rate;
  }
}

struct ParseCase {
  unsigned short rate;
  const char* text;
  Timecode::FieldMarkIndication field_mark;
  const char* label;
};

constexpr ParseCase kParsed[] = {
    {30, "01:00:00;00", kDot, "01:00:00;00"},
    {30, "01:00:00:00", kDot, "01:00:00:00"},
    {30, "1:2:3;4", kDot, "01:02:03;04"},
    {30, "1:2:3x4", kDot, "01:02:03:04"},
    {30, "1:2:3.4", kDot, "01:02:03:04"},
    {30, "1:2:3 4", kDot, "01:02:03:04"},
    {30, "1:2:3\n 4", kDot, "01:02:03:04"},
    {30, "1:2:3-4", kDot, "01:02:03:04"},
    {30, "  \t\v\f\r\n+1:+2: 3;+4", kDot, "01:02:03;04"},
    {30, "01:02:03;04 and more", kDot, "01:02:03;04"},
    {30, "01:02:03;04.", kDot, "01:02:03;04"},
    {30, "01:02:03;04.x", kDot, "01:02:03;04"},
    {30, "01:02:03;04:05", kDot, "01:02:03;04"},
    {25, "01:02:03;04", kDot, "01:02:03:04"},
    {25, "24:00:00:00", kDot, "00:00:00:00"},
    {50, "00:00:10:24.1", kDot, "00:00:10:24.1"},
    {50, "00:00:10:24.0", kDot, "00:00:10:24.0"},
    {50, "00:00:10:24.-7", kDot, "00:00:10:24.1"},
    {50, "00:00:10:49", kFullRate, "00:00:10:24.1"},
    {50, "00:00:10:48", kFullRate, "00:00:10:24.0"},
    {50, "00:00:10:46", kFullRate, "00:00:10:23.0"},
    {60, "00:00:10;59", kFullRate, "00:00:10;29.1"},
    {60, "00:00:10;29", kOmitted, "00:00:10;29.0"},
    {60, "00:00:10;29", Timecode::FieldMarkFramesDashed, "00:00:10;29.0"},
    {60, "00:00:10;29", static_cast<Timecode::FieldMarkIndication>(99), "00:00:10;29.0"},
    // Numbers are saturated at 64 bits and cut, first to 32 and then to 8.
    {25, "256:00:00:00", kDot, "00:00:00:00"},
    {25, "-255:00:00:00", kDot, "01:00:00:00"},
    {25, "4294967297:00:00:00", kDot, "01:00:00:00"},
    {25, "-9223372036854775808:00:00:00", kDot, "00:00:00:00"},
    {25, "-99999999999999999999:00:00:00", kDot, "00:00:00:00"},
    {25, "00000000000000000000000000001:0:0:0", kDot, "01:00:00:00"},
    {50, "0:0:0:-1", kFullRate, "00:00:00:00.1"},
    {50, "0:0:0:99999999999999999999", kFullRate, "00:00:00:00.1"},
};

TEST(LoadTimecodeFromString, ReadsAsScanfDoes) {
  for (const ParseCase& one : kParsed) {
    SCOPED_TRACE(one.text);
    EXPECT_EQ(one.label,
              label(load_timecode_from_string(one.rate, one.text, kSemicolon, one.field_mark)));
    const std::string text = one.text;
    const std::wstring wide(text.begin(), text.end());
    EXPECT_EQ(one.label,
              label(load_timecode_from_string(one.rate, wide.c_str(), kSemicolon, one.field_mark)));
  }
}

struct ParseError {
  unsigned short rate;
  const char* text;
  Timecode::FieldMarkIndication field_mark;
  ExceptionCode code;
  const char* message;
};

constexpr ParseError kRefused[] = {
    {30, "", kDot, InvalidArgument, kInvalidMessage},
    {30, " ", kDot, InvalidArgument, kInvalidMessage},
    {30, "x", kDot, InvalidArgument, kInvalidMessage},
    {30, "1", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2:3", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2:3;", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2:3;x", kDot, InvalidArgument, kInvalidMessage},
    {30, "1 :2:3;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "1;2:3;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2;3;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "+-1:2:3;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "+:2:3;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "1:2:3; ;4", kDot, InvalidArgument, kInvalidMessage},
    {30, "11:48:07017", kDot, InvalidArgument, kInvalidMessage},
    {30, "--:--:--:--", kDot, InvalidArgument, kInvalidMessage},
    {30, "01:02:03;04.0", kDot, InvalidArgument, kInvalidMessage},
    {30, "01:02:03;04.0", kOmitted, InvalidArgument, kInvalidMessage},
    {50, "00:00:10:24", kDot, InvalidArgument, kInvalidMessage},
    {50, "00:00:10:49", kDot, InvalidArgument, kInvalidMessage},
    {50, "00:00:10:24.", kDot, InvalidArgument, kInvalidMessage},
    {50, "00:00:10:24.1", kFullRate, InvalidArgument, kInvalidMessage},
    {50, "00:00:10:24.1", kOmitted, InvalidArgument, kInvalidMessage},
    {30, "01:01:00;00", kDot, InvalidArgument, kDropFrameMessage},
    {30, "25:00:00;00", kDot, InvalidArgument, kHoursMessage},
    {30, "-1:00:00;00", kDot, InvalidArgument, kHoursMessage},
    {30, "99999999999999999999:0:0;0", kDot, InvalidArgument, kHoursMessage},
    {30, "00:00:00;30", kDot, InvalidArgument, kFramesMessage},
    {30, "1:2:3 -4", kDot, InvalidArgument, kFramesMessage},
    {50, "00:00:00:50", kFullRate, InvalidArgument, kFramesMessage},
    {48, "01:00:00:00", kDot, NotSupported, kRateMessage},
    {48, "01:00:00:00.1", kDot, InvalidArgument, kInvalidMessage},
    {0, "", kDot, InvalidArgument, kInvalidMessage},
    {0, "01:00:00:00", kDot, NotSupported, kRateMessage},
};

TEST(LoadTimecodeFromString, RefusesTheRest) {
  for (const ParseError& one : kRefused) {
    SCOPED_TRACE(one.text);
    EXPECT_TRUE(raises(one.code, one.message, [&] {
      load_timecode_from_string(one.rate, one.text, kSemicolon, one.field_mark);
    }));
    const std::string text = one.text;
    const std::wstring wide(text.begin(), text.end());
    EXPECT_TRUE(raises(one.code, one.message, [&] {
      load_timecode_from_string(one.rate, wide.c_str(), kSemicolon, one.field_mark);
    }));
  }
}

TEST(LoadTimecodeFromString, SemicolonIndicationIsCheckedFirst) {
  for (const unsigned int value : {1U, 2U, UINT_MAX}) {
    const auto indication = static_cast<Timecode::DropFrameIndication>(value);
    EXPECT_TRUE(raises(InvalidArgument, kIndicationMessage,
                       [&] { load_timecode_from_string(48, "x", indication, kDot); }));
    EXPECT_TRUE(raises(InvalidArgument, kIndicationMessage,
                       [&] { load_timecode_from_string(48, L"x", indication, kDot); }));
  }
}

TEST(LoadTimecodeFromString, NullIsNoTimecode) {
  EXPECT_TRUE(raises(InvalidArgument, kInvalidMessage, [] {
    load_timecode_from_string(25, static_cast<const char*>(nullptr), kSemicolon, kDot);
  }));
  EXPECT_TRUE(raises(InvalidArgument, kInvalidMessage, [] {
    load_timecode_from_string(25, static_cast<const wchar_t*>(nullptr), kSemicolon, kDot);
  }));
}

TEST(LoadTimecodeFromString, KeepsTheDaysOfHourTwentyFour) {
  EXPECT_EQ(1, load_timecode_from_string(25, "24:00:00:00", kSemicolon, kDot).days());
  EXPECT_EQ(1, load_timecode_from_string(25, L"24:00:00:00", kSemicolon, kDot).days());
}

struct LenientCase {
  unsigned short rate;
  const char* text;
  bool drop_frame;
  const char* label;
};

constexpr LenientCase kRepaired[] = {
    {25, "1:2:3:4", false, "01:02:03:04"},
    {25, "01:02:03:-4", false, "01:02:03:04"},
    {25, "00:00:75:00", false, "00:01:15:00"},
    {25, "00:00:00:30", false, "00:00:01:05"},
    {25, "00:75:00:00", false, "01:15:00:00"},
    {25, "25:00:00:00", false, "01:00:00:00"},
    {25, "", false, "00:00:00:00"},
    {30, "", true, "00:00:00;00"},
    {50, "", false, "00:00:00:00.0"},
    {30, "--:--:--:--", true, "00:00:00;00"},
    {60, "--:--:--:--", true, "00:00:00;00.0"},
    {30, "--:--:--;--", true, "00:00:00;00"},
    {25, "-1:-2:-3:-4", false, "01:02:03:04"},
    {25, "1;2,3;4", false, "01:02:03:04"},
    {25, ":::", false, "00:00:00:00"},
    {25, "1::3:4", false, "01:00:03:04"},
    {25, "a:b:c:d", false, "00:00:00:00"},
    {25, "1:2:3:4:99:x", false, "01:02:03:04"},
    {25, " 1: +2:3x:4.1", false, "01:02:03:04"},
    {25, "257:00:00:00", false, "01:00:00:00"},
    {25, "99999999999999999999:00:00:00", false, "15:00:00:00"},  // 255 modulo 24
    {30, "01:01:00:00", true, "01:00:59;28"},
    {50, "00:00:00:01", false, "00:00:00:01.0"},
    {60, "00:00:00:59", true, "00:00:01;29.0"},
};

TEST(StringToTimecode, ReadsAndRepairs) {
  for (const LenientCase& one : kRepaired) {
    SCOPED_TRACE(one.text);
    EXPECT_EQ(one.label, label(string_to_timecode(one.text, one.rate, one.drop_frame)));
  }
}

TEST(StringToTimecode, KeepsTheDaysOfItsFrames) {
  // 255 frames at 24 are 10 s and 15 frames.
  const Timecode timecode = string_to_timecode("23:59:59:255", 24, false);
  EXPECT_EQ("00:00:09:15", label(timecode));
  EXPECT_EQ(1, timecode.days());
}

TEST(StringToTimecode, EveryFailureIsAnUnsupportedRate) {
  struct Case {
    const char* text;
    unsigned short rate;
  };
  for (const Case& one : {Case{"12:00", 25}, Case{"x", 25}, Case{"1:2:3", 25}, Case{"", 48},
                          Case{"--:--:--:--", 0}, Case{"1:2:3:4", 48}, Case{nullptr, 25}}) {
    SCOPED_TRACE(one.rate);
    EXPECT_TRUE(
        raises(NotSupported, kRateMessage, [&] { string_to_timecode(one.text, one.rate, false); }));
  }
}

TEST(TimecodeFixer, FramesCountAsTheLabelDoesOrAtFullRate) {
  EXPECT_EQ(2, timecode_fixer(60, 0, 0, 0, 1, false, false).frame_count());
  EXPECT_EQ("00:00:00:01.0", label(timecode_fixer(60, 0, 0, 0, 1, false, false)));
  EXPECT_EQ(1, timecode_fixer(60, 0, 0, 0, 1, false, true).frame_count());
  EXPECT_EQ(1, timecode_fixer(30, 0, 0, 0, 1, false, false).frame_count());
  EXPECT_EQ(1, timecode_fixer(30, 0, 0, 0, 1, false, true).frame_count());
}

TEST(TimecodeFixer, Carries) {
  EXPECT_EQ("01:01:01:01", label(timecode_fixer(25, 0, 60, 60, 26, false, false)));
  EXPECT_EQ("00:00:00:00", label(timecode_fixer(25, 48, 0, 0, 0, false, false)));
  EXPECT_EQ("00:00:59;28", label(timecode_fixer(30, 0, 1, 0, 0, true, false)));
}

TEST(TimecodeFixer, SumsWrapAt64Bits) {
  // 2^64-1 seconds carry 307445734561825860 minutes and 15 s; plus 2^64-1 minutes wraps to
  // 307445734561825859 minutes: 5124095576030430 hours and 59 minutes; plus 2^64-1 hours:
  // 5124095576030429, modulo 24 that is 5. The frames count as -1.
  const Timecode timecode =
      timecode_fixer(25, ULLONG_MAX, ULLONG_MAX, ULLONG_MAX, ULLONG_MAX, false, true);
  EXPECT_EQ("05:59:14:24", label(timecode));
}

TEST(TimecodeFixer, KeepsTheDaysOfItsFrames) {
  EXPECT_EQ(2, timecode_fixer(25, 0, 0, 0, 4320000, false, true).days());
  EXPECT_EQ(-1, timecode_fixer(25, 0, 0, 0, ULLONG_MAX, false, true).days());
}

TEST(TimecodeFixer, RefusesOtherRates) {
  for (const unsigned short rate : std::initializer_list<unsigned short>{0, 48, 120, 65535})
    EXPECT_TRUE(raises(NotSupported, kRateMessage,
                       [&] { timecode_fixer(rate, 23, 59, 59, 99, false, false); }));
}

struct MinutesCase {
  unsigned short rate;
  bool drop_frame;
  int minutes;
  long long count;
};

constexpr MinutesCase kMinutes[] = {
    {25, false, 0, 0},
    {25, false, 1, 1500},
    {25, false, -1, -1500},
    {25, false, 1440, 0},
    {25, false, 1500, 90000},
    {25, false, -1500, -90000},
    {30, true, 1, 1798},
    {30, true, 10, 17982},
    {30, true, -10, -17982},
    {60, true, 60, 215784},
    {25, false, INT_MAX, 127 * 1500LL},
    {25, false, INT_MIN, -128 * 1500LL},
};

TEST(AddMinutes, StepsByTheFramesOfThatManyMinutes) {
  for (const MinutesCase& one : kMinutes) {
    SCOPED_TRACE(one.minutes);
    Timecode timecode(one.rate, one.drop_frame);
    add_minutes(timecode, one.minutes);
    EXPECT_EQ(one.count, timecode.frame_count());
  }
}

TEST(AddMinutes, NothingKeepsTheDaysOfACopy) {
  const Timecode original(25, 2160000LL, false);
  Timecode copy(original);
  add_minutes(copy, 0);
  EXPECT_EQ(0, copy.days()) << "not even re-derived";
}

TEST(LogTimecodeDifference, LogsALineOnAJump) {
  const LogCapture log;
  log_timecode_difference("in 1", Timecode(25, 0LL, false), Timecode(25, 2LL, false));
  ASSERT_EQ(1U, log.lines().size());
  EXPECT_EQ("in 1: Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02",
            log.lines()[0]);
}

TEST(LogTimecodeDifference, WritesBothWithTheirIndications) {
  const LogCapture log;
  log_timecode_difference("x", Timecode(60, 3599LL, true), Timecode(60, 3599LL, true));
  ASSERT_EQ(1U, log.lines().size());
  EXPECT_EQ("x: Found timecode difference, expected: 00:01:00;02.0 actual: 00:00:59;29.1",
            log.lines()[0]);
}

TEST(LogTimecodeDifference, LogsNothingForTheNextFrame) {
  const LogCapture log;
  log_timecode_difference("x", Timecode(25, 0LL, false), Timecode(25, 1LL, false));
  log_timecode_difference("x", Timecode(30, 1799LL, true), Timecode(30, 1800LL, true));
  log_timecode_difference("x", Timecode(25, 2159999LL, false), Timecode(25, 0LL, false));
  log_timecode_difference("x", Timecode(25, 5LL, false), Timecode(25, 2160006LL, false));
  EXPECT_TRUE(log.lines().empty());
}

TEST(LogTimecodeDifference, HourTwentyFourIsNotHourZero) {
  const LogCapture log;
  log_timecode_difference("x", Timecode(25, 2159999LL, false), Timecode(25, 0x24000000U));
  ASSERT_EQ(1U, log.lines().size());
  EXPECT_EQ("x: Found timecode difference, expected: 00:00:00:00 actual: 24:00:00:00",
            log.lines()[0]);
}

TEST(LogTimecodeDifference, NullLabelIsEmpty) {
  const LogCapture log;
  log_timecode_difference(nullptr, Timecode(25, 0LL, false), Timecode(25, 2LL, false));
  ASSERT_EQ(1U, log.lines().size());
  EXPECT_EQ(": Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02",
            log.lines()[0]);
}

TEST(LogTimecodeDifference, LabelMayBeTheTextOfTheTimecode) {
  const LogCapture log;
  const Timecode current(25, 2LL, false);
  log_timecode_difference(current.c_str(kSemicolon, Timecode::FieldMarkFramesDashed),
                          Timecode(25, 0LL, false), current);
  ASSERT_EQ(1U, log.lines().size());
  EXPECT_EQ("00:00:00:--: Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02",
            log.lines()[0]);
}

}  // namespace
}  // namespace Korvane
