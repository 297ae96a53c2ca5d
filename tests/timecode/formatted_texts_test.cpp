#include "timecode/formatted_texts.h"

#include <gtest/gtest.h>

#include <string>

#include "timecode/timecode_state.h"

namespace Korvane {
namespace {

void expect_texts(const std::wstring& wide, const std::string& narrow, const FormattedText& text) {
  EXPECT_EQ(wide, text.wide.c_str());
  EXPECT_EQ(narrow, text.narrow.c_str());
}

TEST(FormattedTexts, LongAndShortInAnyOrder) {
  TimecodeState state(30, false, 0);
  state.hours = 7;
  FormattedTexts texts;
  const std::string long_text(100, 'x');
  const std::wstring long_wide(100, L'x');
  for (int round = 0; round < 3; ++round) {  // in either room, new and in use
    expect_texts(L"", "", texts.write(state, ""));
    expect_texts(L"07" + long_wide, "07" + long_text,
                 texts.write(state, ("%HH" + long_text).c_str()));
    expect_texts(L"7-07", "7-07", texts.write(state, "7-%HH"));
    expect_texts(L"\u00E407\u00E4",
                 "\xC3\xA4"
                 "07\xC3\xA4",
                 texts.write(state, "\xC3\xA4%HH\xC3\xA4"));
    expect_texts(L"\uFFFD", "\x80", texts.write(state, "\x80"));
    expect_texts(L"x", "x", texts.write(state, "x"));
  }
}

TEST(FormattedTexts, TheTextBeforeMayBeThePatternOrPartOfIt) {
  TimecodeState state(30, false, 0);
  state.hours = 7;
  FormattedTexts texts;
  const FormattedText& first = texts.write(state, "a%HHb%%HH");
  expect_texts(L"a07b%07", "a07b%07", first);
  expect_texts(L"7b%07", "7b%07", texts.write(state, first.narrow.c_str() + 2));
}

TEST(FormattedTexts, TheTextBeforeStaysDuringACall) {
  const TimecodeState state(30, false, 0);
  FormattedTexts texts;
  const FormattedText& first = texts.write(state, "first %HH");
  texts.write(state, "second %HH");
  expect_texts(L"first 00", "first 00", first);
}

}  // namespace
}  // namespace Korvane
