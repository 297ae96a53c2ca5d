#include "wide_text.h"

#include <gtest/gtest.h>

namespace Korvane::Tool {
namespace {

// Characters of one to four bytes; the last is a pair of surrogates in UTF-16.
TEST(WideText, ConvertsEveryLengthBothWays) {
  const std::string utf8 =
      "A\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  const std::wstring wide = L"A\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(wide, wide_of(utf8));
  EXPECT_EQ(utf8, utf8_of(wide));
}

TEST(WideText, ReplacesWhatIsNoCharacter) {
  // A lone continuation, an overlong slash, a surrogate, a value too high, and one cut off.
  for (const char* const utf8 :
       {"\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82"}) {
    const std::wstring wide = wide_of(utf8);
    EXPECT_EQ(std::wstring(std::string_view(utf8).size(), L'\uFFFD'), wide);
  }
  EXPECT_EQ(
      "\xEF\xBF\xBD"
      "A",
      utf8_of(std::wstring(1, static_cast<wchar_t>(0xD800)) + L'A'));
}

}  // namespace
}  // namespace Korvane::Tool
