#include "timecode/utf8_reader.h"

#include <gtest/gtest.h>

#include <string_view>

namespace Korvane {
namespace {

struct Reading {
  std::string_view text;
  char32_t value;
  int size;
  bool well_formed;
};

// The last ones have what is missing behind their end.
constexpr Reading kReadings[] = {
    {"AB", U'A', 1, true},
    {"\xC3\xA4\xA4", U'\u00E4', 2, true},
    {"\xE2\x82\xAC-", U'\u20AC', 3, true},
    {"\xF0\x9F\x98\x80-", U'\U0001F600', 4, true},
    {"\xEF\xBF\xBD", U'\uFFFD', 3, true},
    {"\x80", U'\uFFFD', 1, false},
    {"\xE2\x82-", U'\uFFFD', 2, false},
    {{"\xC3\xA4", 1}, U'\uFFFD', 1, false},
    {{"\xF0\x9F\x98\x80", 3}, U'\uFFFD', 3, false},
};

TEST(ReadUtf8, SaysHowMuchItReadAndWhetherItIsWellFormed) {
  for (const Reading& one : kReadings) {
    SCOPED_TRACE(::testing::PrintToString(one.text));
    const Utf8CodePoint read = read_utf8(one.text);
    EXPECT_EQ(one.value, read.value);
    EXPECT_EQ(one.size, read.size);
    EXPECT_EQ(one.well_formed, read.well_formed);
  }
}

}  // namespace
}  // namespace Korvane
