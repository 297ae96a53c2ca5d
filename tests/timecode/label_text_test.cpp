#include "timecode/label_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <regex>
#include <string>
#include <vector>

namespace Korvane {
namespace {

std::string two_digits(unsigned int value) {
  char text[16];
  std::snprintf(text, sizeof text, "%02u", value);
  return text;
}

// The four replacements one after the other, by ECMAScript regular expressions.
std::string expand_by_regex(const TimecodeState& state, std::string text) {
  text = std::regex_replace(text, std::regex("%HH"), two_digits(state.hours));
  text = std::regex_replace(text, std::regex("%MM"), two_digits(state.minutes));
  text = std::regex_replace(text, std::regex("%SS"), two_digits(state.seconds));
  return std::regex_replace(text, std::regex("%FF"), two_digits(state.frames));
}

// The narrow text. The wide one is the same, byte for unit.
std::string expand(const TimecodeState& state, const std::string& pattern) {
  std::string narrow(pattern.size() + 1, 'x');
  std::wstring wide(pattern.size() + 1, L'x');
  const ExpandedPattern expanded =
      expand_pattern(state, pattern.c_str(), narrow.data(), wide.data());
  EXPECT_EQ('\0', narrow.at(expanded.size));
  EXPECT_EQ(L'\0', wide.at(expanded.size));
  const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  EXPECT_EQ(std::all_of(pattern.begin(), pattern.end(), is_ascii), expanded.ascii);
  narrow.resize(expanded.size);
  for (std::size_t i = 0; i < narrow.size(); ++i)
    EXPECT_EQ(static_cast<unsigned char>(narrow[i]), wide[i]);
  return narrow;
}

TEST(ExpandPattern, TooLongATextIsLeftToTheConversion) {
  constexpr std::size_t kLongest = 2147483647;
  EXPECT_TRUE((ExpandedPattern{kLongest, true}).wide_is_right());
  EXPECT_FALSE((ExpandedPattern{kLongest, false}).wide_is_right());
  EXPECT_FALSE((ExpandedPattern{kLongest + 1, true}).wide_is_right());
}

TEST(ExpandPattern, LeavesWhatIsNoToken) {
  TimecodeState state(30, false, 0);
  state.hours = 1;
  for (const char* const pattern :
       {"xHH", "HHH", "%", "%H", "%HM", "%hh", "%XX", "%%H", "\x80", ""})
    EXPECT_EQ(pattern, expand(state, pattern));
  EXPECT_EQ("%01H", expand(state, "%%HHH"));
  EXPECT_EQ("0101%H", expand(state, "%HH%HH%H"));
}

TEST(ExpandPattern, EqualsFourRegexReplacements) {
  std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): repeatable
  const std::string pieces[] = {"%HH", "%MM", "%SS", "%FF", "%", "%%", "H", "M",   "S", "F",
                                "%H",  "%M",  "%S",  "%F",  "0", "1",  "$", "\\1", " ", "\xC3\xA4"};
  for (int i = 0; i < 20000; ++i) {
    TimecodeState state(30, false, 0);
    state.hours = static_cast<unsigned char>(random() % 100);
    state.minutes = static_cast<unsigned char>(random() % 100);
    state.seconds = static_cast<unsigned char>(random() % 100);
    state.frames = static_cast<unsigned char>(random() % 100);
    std::string pattern;
    for (auto count = random() % 12; count > 0; --count)
      pattern += pieces[random() % std::size(pieces)];
    ASSERT_EQ(expand_by_regex(state, pattern), expand(state, pattern)) << pattern;
  }
}

TEST(WriteLabel, FortyEightIsADoubleRate) {
  TimecodeState state(48, false, 0);
  state.frames = 23;
  state.field_mark = true;
  LabelText text;
  write_label(state, Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix, text);
  EXPECT_STREQ("00:00:00:23.1", text.narrow);
  write_label(state, Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames, text);
  EXPECT_STREQ("00:00:00:47", text.narrow);
}

}  // namespace
}  // namespace Korvane
