#include <gtest/gtest.h>

#include <string>

#include "support/raises.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

using DropFrame = Timecode::DropFrameIndication;
using FieldMark = Timecode::FieldMarkIndication;

struct TextCase {
  unsigned short rate;
  unsigned char hours, minutes, seconds, frames;
  bool drop_frame, field_mark;
  unsigned int drop_frame_indication, field_mark_indication;
  const char* text;
};

constexpr TextCase kTexts[] = {
    {30, 1, 2, 3, 4, true, false, 0, 0, "01:02:03;04"},
    {30, 1, 2, 3, 4, true, false, 1, 0, "01:02:03:04"},
    {30, 1, 2, 3, 4, false, false, 0, 0, "01:02:03:04"},
    {30, 1, 2, 3, 4, true, false, 0, 1, "01:02:03;04"},
    {30, 1, 2, 3, 4, true, false, 0, 2, "01:02:03;04"},
    {30, 1, 2, 3, 4, true, false, 0, 3, "01:02:03;--"},
    {50, 0, 0, 0, 12, false, true, 0, 0, "00:00:00:12.1"},
    {50, 0, 0, 0, 12, false, false, 0, 0, "00:00:00:12.0"},
    {50, 0, 0, 0, 12, false, true, 0, 1, "00:00:00:25"},
    {50, 0, 0, 0, 12, false, true, 0, 2, "00:00:00:12"},
    {50, 0, 0, 0, 12, false, true, 0, 3, "00:00:00:--"},
    {60, 23, 59, 59, 29, true, true, 0, 0, "23:59:59;29.1"},
    {60, 23, 59, 59, 29, true, true, 1, 1, "23:59:59:59"},
    {60, 23, 59, 59, 29, true, true, 1, 2, "23:59:59:29"},
    {24, 9, 8, 7, 23, true, true, 0, 0, "09:08:07:23"},
    // Values beyond the tables.
    {30, 1, 2, 3, 4, true, false, 2, 0, "01:02:03:04"},
    {30, 1, 2, 3, 4, true, false, 4000000000U, 0, "01:02:03:04"},
    {50, 0, 0, 0, 12, false, true, 0, 4, "00:00:00:"},
    {60, 1, 2, 3, 4, true, false, 0, 4000000000U, "01:02:03;"},
};

TEST(TimecodeText, EveryIndicationNarrowAndWide) {
  for (const TextCase& one : kTexts) {
    SCOPED_TRACE(one.text);
    const Timecode timecode(one.rate, one.hours, one.minutes, one.seconds, one.frames,
                            one.drop_frame, one.field_mark);
    const auto drop_frame = static_cast<DropFrame>(one.drop_frame_indication);
    const auto field_mark = static_cast<FieldMark>(one.field_mark_indication);
    EXPECT_STREQ(one.text, timecode.c_str(drop_frame, field_mark));
    const std::string text = one.text;
    EXPECT_EQ(std::wstring(text.begin(), text.end()), timecode.text(drop_frame, field_mark));
  }
}

TEST(TimecodeText, HourTwentyFourPrintsAsItStands) {
  EXPECT_STREQ(
      "24:00:00:00",
      Timecode(25, 0x24000000U).c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkOmitted));
}

TEST(TimecodeText, BothBuffersHoldTheLastResult) {
  const Timecode timecode(50, 25LL, false);
  const char* const narrow = timecode.c_str(Timecode::DropFrameColon, Timecode::FieldMarkOmitted);
  const wchar_t* const wide =
      timecode.text(Timecode::DropFrameColon, Timecode::FieldMarkFullRateFrames);
  EXPECT_STREQ("00:00:00:25", narrow) << "text() rebuilt the narrow buffer as well";
  timecode.c_str(Timecode::DropFrameColon, Timecode::FieldMarkFramesDashed);
  EXPECT_STREQ(L"00:00:00:--", wide) << "c_str() rebuilt the wide buffer as well";
}

TEST(TimecodeText, FollowsTheTimecode) {
  Timecode timecode(25, 24LL, false);
  ++timecode;
  EXPECT_STREQ("00:00:01:00",
               timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix));
}

struct PatternCase {
  const char* pattern;
  const char* result;
};

// For 01:02:03;04 with field mark at 60.
constexpr PatternCase kPatterns[] = {
    {"", ""},
    {"no tokens", "no tokens"},
    {"%HH:%MM:%SS:%FF", "01:02:03:04"},
    {"%HH%HH", "0101"},
    {"%H", "%H"},
    {"%", "%"},
    {"%%HH", "%01"},
    {"%HHH", "01H"},
    {"%hh", "%hh"},
    {"%MM%SSx%FF.%HH", "0203x04.01"},
    {"$1 $& \\1", "$1 $& \\1"},
    {"a rather long pattern: %FF %SS %MM %HH and its end",
     "a rather long pattern: 04 03 02 01 and its end"},
    {"\xC3\xA4 %HH \xF0\x9F\x98\x80", "\xC3\xA4 01 \xF0\x9F\x98\x80"},
};

TEST(TimecodeFormatter, ReplacesTokens) {
  const Timecode timecode(60, 1, 2, 3, 4, true, true);
  for (const PatternCase& one : kPatterns) {
    SCOPED_TRACE(one.pattern);
    EXPECT_STREQ(one.result, timecode.formatter(one.pattern));
  }
}

TEST(TimecodeFormatter, FramesAreThoseOfTheLabel) {
  EXPECT_STREQ("24", Timecode(50, 49LL, false).formatter("%FF"));
}

TEST(TimecodeFormatter, WideAndNarrowGiveTheSameText) {
  const Timecode timecode(60, 1, 2, 3, 4, true, true);
  EXPECT_STREQ(L"01h02m03s04f", timecode.formatter(L"%HHh%MMm%SSs%FFf"));
  EXPECT_STREQ("01h02m03s04f", timecode.formatter("%HHh%MMm%SSs%FFf"));
  EXPECT_STREQ(L"", timecode.formatter(L""));
}

TEST(TimecodeFormatter, WideTextIsUtf16) {
  const Timecode timecode(25, false);
  const wchar_t pattern[] = {0x00E4, L'%', L'H', L'H', 0xD83D, 0xDE00, 0};
  const wchar_t result[] = {0x00E4, L'0', L'0', 0xD83D, 0xDE00, 0};
  EXPECT_EQ(std::wstring(result), timecode.formatter(pattern));
}

TEST(TimecodeFormatter, IllFormedTextBecomesReplacementCharacters) {
  const Timecode timecode(25, false);
  const wchar_t lone_surrogate[] = {0xD800, L'%', L'F', L'F', 0};
  const wchar_t replaced[] = {0xFFFD, L'0', L'0', 0};
  EXPECT_EQ(std::wstring(replaced), timecode.formatter(lone_surrogate));
  EXPECT_STREQ("\xFF%", timecode.formatter("\xFF%")) << "narrow text is handed back as given";
}

TEST(TimecodeFormatter, TakesItsOwnResultAsPattern) {
  const Timecode timecode(25, 3 * 25LL, false);
  const char* const first = timecode.formatter("%SS and a text long enough for the heap: %%SS");
  EXPECT_STREQ("03 and a text long enough for the heap: %03", first);
  EXPECT_STREQ("03 and a text long enough for the heap: %03", timecode.formatter(first));
  const wchar_t* const wide = timecode.formatter(L"%SS and a text long enough for the heap: %%SS");
  EXPECT_STREQ(L"03 and a text long enough for the heap: %03", timecode.formatter(wide));
}

TEST(TimecodeFormatter, LeavesTheLabelTextAlone) {
  const Timecode timecode(25, false);
  const char* const text = timecode.c_str(Timecode::DropFrameColon, Timecode::FieldMarkOmitted);
  timecode.formatter("%HH");
  EXPECT_STREQ("00:00:00:00", text);
}

TEST(TimecodeFormatter, NullIsRefused) {
  const Timecode timecode(25, false);
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null",
                     [&] { timecode.formatter(static_cast<const char*>(nullptr)); }));
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null",
                     [&] { timecode.formatter(static_cast<const wchar_t*>(nullptr)); }));
}

}  // namespace
}  // namespace Korvane
