#include "timecode/text_conversion.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/raises.h"

namespace Korvane {
namespace {

constexpr const char* kToWideMessage = "Unable to convert from string to wstring";
constexpr const char* kToNarrowMessage = "Unable to convert from wstring to string";

std::wstring wide(const std::vector<unsigned int>& units) {
  std::wstring text;
  for (const unsigned int unit : units) text += static_cast<wchar_t>(unit);
  return text;
}

struct Decoding {
  std::string utf8;
  std::vector<unsigned int> utf16;
};

// By the Unicode standard: table 3-6 for well-formed text, and one U+FFFD for each maximal subpart
// of ill-formed text, as in its table 3-8.
const Decoding kDecodings[] = {
    {"A", {0x41}},
    {std::string("A\0B", 3), {0x41, 0, 0x42}},
    {"\x7F", {0x7F}},
    {"\xC2\x80", {0x80}},
    {"\xC3\xA4", {0xE4}},
    {"\xDF\xBF", {0x7FF}},
    {"\xE0\xA0\x80", {0x800}},
    {"\xE2\x82\xAC", {0x20AC}},
    {"\xED\x9F\xBF", {0xD7FF}},
    {"\xED\x80\x80", {0xD000}},
    {"\xEE\x80\x80", {0xE000}},
    {"\xEE\xBF\xBF", {0xEFFF}},
    {"\xEF\xBF\xBD", {0xFFFD}},
    {"\xEF\xBF\xBF", {0xFFFF}},
    {"\xF0\x90\x80\x80", {0xD800, 0xDC00}},
    {"\xF0\x9F\x98\x80", {0xD83D, 0xDE00}},
    {"\xF1\x80\x80\x80", {0xD8C0, 0xDC00}},
    {"\xF3\xBF\xBF\xBF", {0xDBBF, 0xDFFF}},
    {"\xF4\x80\x80\x80", {0xDBC0, 0xDC00}},
    {"\xF4\x8F\xBF\xBF", {0xDBFF, 0xDFFF}},
    // A lone continuation, an impossible byte.
    {"\x80", {0xFFFD}},
    {"\xBF\x41", {0xFFFD, 0x41}},
    {"\xFE\xFF", {0xFFFD, 0xFFFD}},
    // C0, which is no continuation, behind every kind of lead.
    {"\xC2\xC0", {0xFFFD, 0xFFFD}},
    {"\xE0\xC0", {0xFFFD, 0xFFFD}},
    {"\xE1\xC0", {0xFFFD, 0xFFFD}},
    {"\xED\xC0", {0xFFFD, 0xFFFD}},
    {"\xEE\xC0", {0xFFFD, 0xFFFD}},
    {"\xF0\xC0", {0xFFFD, 0xFFFD}},
    {"\xF1\xC0", {0xFFFD, 0xFFFD}},
    {"\xF4\xC0", {0xFFFD, 0xFFFD}},
    {"\xE2\x82\xC0", {0xFFFD, 0xFFFD}},
    // Cut short, at the end and before other text.
    {"\xC2", {0xFFFD}},
    {"\xC2\x41", {0xFFFD, 0x41}},
    {"\xE2\x82", {0xFFFD}},
    {"\xE2\x82\x41", {0xFFFD, 0x41}},
    {"\xE2\x41", {0xFFFD, 0x41}},
    {"\xE2\xC3\xA4", {0xFFFD, 0xE4}},
    {"\xF0\x9F\x98", {0xFFFD}},
    {"\xF0\x9F\x98\x41", {0xFFFD, 0x41}},
    {"\xF0\x90\x41", {0xFFFD, 0x41}},
    {"\xF0\x9F", {0xFFFD}},
    {"\xF1\x80\x80\xC2\xA9", {0xFFFD, 0xA9}},
    // Overlong forms, surrogates, past U+10FFFF: no part of them is a beginning.
    {"\xC0\x80", {0xFFFD, 0xFFFD}},
    {"\xC1\xBF", {0xFFFD, 0xFFFD}},
    {"\xE0\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xE0\x9F\xBF", {0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xF0\x80\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xF0\x8F\xBF\xBF", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xED\xA0\x80", {0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xED\xBF\xBF", {0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xF4\x90\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xF5\x80\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}},
    {"\xF8\x88\x80\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}},
    {"\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
     {0x61, 0xFFFD, 0xFFFD, 0xFFFD, 0x62, 0xFFFD, 0x63, 0xFFFD, 0xFFFD, 0x64}},
};

TEST(Utf8ToWide, WellFormedAndIllFormedText) {
  for (const Decoding& one : kDecodings) {
    SCOPED_TRACE(::testing::PrintToString(one.utf8));
    EXPECT_EQ(wide(one.utf16), utf8_to_wide(one.utf8));
  }
}

struct Encoding {
  std::vector<unsigned int> utf16;
  std::string utf8;
};

const Encoding kEncodings[] = {
    {{0x41}, "A"},
    {{0x41, 0, 0x42}, std::string("A\0B", 3)},
    {{0x7F}, "\x7F"},
    {{0x80}, "\xC2\x80"},
    {{0x7FF}, "\xDF\xBF"},
    {{0x800}, "\xE0\xA0\x80"},
    {{0xD7FF}, "\xED\x9F\xBF"},
    {{0xE000}, "\xEE\x80\x80"},
    {{0xFFFF}, "\xEF\xBF\xBF"},
    {{0xD800, 0xDC00}, "\xF0\x90\x80\x80"},
    {{0xD83D, 0xDE00}, "\xF0\x9F\x98\x80"},
    {{0xDBFF, 0xDFFF}, "\xF4\x8F\xBF\xBF"},
    {{0xD800}, "\xEF\xBF\xBD"},
    {{0xDC00}, "\xEF\xBF\xBD"},
    {{0xD800, 0x41}, "\xEF\xBF\xBD\x41"},
    {{0xDC00, 0x41}, "\xEF\xBF\xBD\x41"},
    {{0xDBFF, 0xE000}, "\xEF\xBF\xBD\xEE\x80\x80"},
    {{0xDFFF, 0xD800}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {{0xDC00, 0xDC00}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {{0xD800, 0xD800, 0xDC00}, "\xEF\xBF\xBD\xF0\x90\x80\x80"},
    {{0xD800, 0xDC00, 0xDC00}, "\xF0\x90\x80\x80\xEF\xBF\xBD"},
};

TEST(WideToUtf8, WellFormedAndIllFormedText) {
  for (const Encoding& one : kEncodings) {
    SCOPED_TRACE(::testing::PrintToString(one.utf16));
    EXPECT_EQ(one.utf8, wide_to_utf8(wide(one.utf16)));
  }
}

TEST(WideToUtf8, UnitsPast16BitsAreCodePoints) {
  if constexpr (sizeof(wchar_t) > 2) {
    EXPECT_EQ("\xF0\x9F\x98\x80", wide_to_utf8(wide({0x1F600})));
    EXPECT_EQ("\xF4\x8F\xBF\xBF", wide_to_utf8(wide({0x10FFFF})));
    EXPECT_EQ("\xEF\xBF\xBD", wide_to_utf8(wide({0x110000})));
    EXPECT_EQ("\xEF\xBF\xBD", wide_to_utf8(wide({0xFFFFFFFF})));
  } else {
    EXPECT_EQ(2U, sizeof(wchar_t)) << "no such unit exists";
  }
}

TEST(TextConversion, EveryCodePointGoesThereAndBack) {
  for (unsigned int code_point = 0; code_point <= 0x10FFFF; ++code_point) {
    if (code_point >= 0xD800 && code_point <= 0xDFFF) continue;
    const std::wstring text = code_point < 0x10000
                                  ? wide({code_point})
                                  : wide({0xD800 + (code_point - 0x10000) / 0x400,
                                          0xDC00 + (code_point - 0x10000) % 0x400});
    ASSERT_EQ(text, utf8_to_wide(wide_to_utf8(text))) << std::hex << code_point;
  }
}

TEST(TextConversion, EmptyTextNeedsNoConverter) {
  EXPECT_EQ(L"", utf8_to_wide("", {nullptr, nullptr}));
  EXPECT_EQ("", wide_to_utf8(L"", {nullptr, nullptr}));
}

// Converters that fail at one point or the other.
template <int Query, int Conversion>
constexpr TextConverter kFailing = {
    [](const char*, int, wchar_t*, int capacity) { return capacity == 0 ? Query : Conversion; },
    [](const wchar_t*, int, char*, int capacity) { return capacity == 0 ? Query : Conversion; }};

TEST(TextConversion, AFailedLengthQuery) {
  EXPECT_TRUE(
      raises(StringConversionFailed, kToWideMessage, [] { utf8_to_wide("x", kFailing<0, 1>); }));
  EXPECT_TRUE(
      raises(StringConversionFailed, kToWideMessage, [] { utf8_to_wide("x", kFailing<-1, -1>); }));
  EXPECT_TRUE(
      raises(StringConversionFailed, kToNarrowMessage, [] { wide_to_utf8(L"x", kFailing<0, 1>); }));
  EXPECT_TRUE(raises(StringConversionFailed, kToNarrowMessage,
                     [] { wide_to_utf8(L"x", kFailing<-1, -1>); }));
}

TEST(TextConversion, AnotherLengthThanQueriedRaisesTheTextOfTheOtherDirection) {
  EXPECT_TRUE(
      raises(StringConversionFailed, kToNarrowMessage, [] { utf8_to_wide("x", kFailing<2, 1>); }));
  EXPECT_TRUE(
      raises(StringConversionFailed, kToNarrowMessage, [] { utf8_to_wide("x", kFailing<2, 0>); }));
  EXPECT_TRUE(
      raises(StringConversionFailed, kToNarrowMessage, [] { wide_to_utf8(L"x", kFailing<2, 3>); }));
}

// Refused before a unit of it is read, so there need be no such text.
TEST(TextConversion, ATextOf2GibiIsAFailedLengthQuery) {
  constexpr std::size_t kTooLong = std::size_t{1} << 31;
  EXPECT_TRUE(raises(StringConversionFailed, kToWideMessage,
                     [] { utf8_to_wide(std::string_view("x", kTooLong)); }));
  EXPECT_TRUE(raises(StringConversionFailed, kToNarrowMessage,
                     [] { wide_to_utf8(std::wstring_view(L"x", kTooLong)); }));
}

TEST(TextConversion, ThePlatformConverterRefusesTooLittleRoom) {
  const TextConverter& converter = platform_text_converter();
  wchar_t units[1] = {};
  char bytes[2] = {};
  EXPECT_GE(0, converter.to_wide("ab", 2, units, 1));
  EXPECT_GE(0, converter.to_utf8(L"abc", 3, bytes, 2));
}

TEST(TextConversion, ThePlatformConverterReadsNoFurtherThanTold) {
  const TextConverter& converter = platform_text_converter();
  wchar_t units[2] = {};
  char bytes[4] = {};
  EXPECT_EQ(1, converter.to_wide("\xC3\xA4", 1, units, 2));
  EXPECT_EQ(wide({0xFFFD}), std::wstring(units));
  EXPECT_EQ(3, converter.to_utf8(wide({0xD83D, 0xDE00}).c_str(), 1, bytes, 4));
  EXPECT_STREQ("\xEF\xBF\xBD", bytes);
}

}  // namespace
}  // namespace Korvane
