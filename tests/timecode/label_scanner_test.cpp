#include "timecode/label_scanner.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <random>
#include <string>

namespace Korvane {
namespace {

struct NumberCase {
  const char* text;
  long long value;
  const char* rest;
};

constexpr NumberCase kNumbers[] = {
    {"0", 0, ""},
    {"12x", 12, "x"},
    {" \t\n\v\f\r-7", -7, ""},
    {"+7", 7, ""},
    {"0x10", 0, "x10"},
    {"9000000000000000001", 9000000000000000001, ""},
    {"9223372036854775800", LLONG_MAX - 7, ""},
    {"9223372036854775807", LLONG_MAX, ""},
    {"9223372036854775808", LLONG_MAX, ""},
    {"99999999999999999999999", LLONG_MAX, ""},
    {"-9000000000000000001", -9000000000000000001, ""},
    {"-9223372036854775800", -LLONG_MAX + 7, ""},
    {"-9223372036854775807", -LLONG_MAX, ""},
    {"-9223372036854775808", LLONG_MIN, ""},
    {"-9223372036854775809", LLONG_MIN, ""},
    {"-99999999999999999999999:", LLONG_MIN, ":"},
};

TEST(ScanNumber, ReadsAndSaturates) {
  for (const NumberCase& one : kNumbers) {
    SCOPED_TRACE(one.text);
    const char* next = one.text;
    long long value = 99;
    EXPECT_TRUE(scan_number(next, value));
    EXPECT_EQ(one.value, value);
    EXPECT_STREQ(one.rest, next);
  }
}

TEST(ScanNumber, WithoutADigitNothingIsRead) {
  for (const char* const text : {"", "-", "+", "x", " ", "+-1", "- 1", ":"}) {
    const char* next = text;
    long long value = 99;
    EXPECT_FALSE(scan_number(next, value));
    EXPECT_EQ(99, value);
    EXPECT_EQ(text, next);
  }
}

// What a label has when no more than this was read.
struct ReadSoFar {
  int items = 0;
  long long hours = 0, minutes = 0, seconds = 0;
  char separator = '\0';
  long long frames = 0, field = 0;
};

void expect_label(const ReadSoFar& expected, const char* text) {
  SCOPED_TRACE(text);
  const ScannedLabel scanned = scan_label(text);
  EXPECT_EQ(expected.items, scanned.items);
  EXPECT_EQ(expected.hours, scanned.hours);
  EXPECT_EQ(expected.minutes, scanned.minutes);
  EXPECT_EQ(expected.seconds, scanned.seconds);
  EXPECT_EQ(expected.separator, scanned.separator);
  EXPECT_EQ(expected.frames, scanned.frames);
  EXPECT_EQ(expected.field, scanned.field);
}

TEST(ScanLabel, EndsAtTheFirstMismatch) {
  for (const char* const text : {"", "x", ":1"}) expect_label({}, text);
  for (const char* const text : {"1", "1;2", "1:", "1:x"}) expect_label({1, 1}, text);
  for (const char* const text : {"1:2", "1:2.3", "1:2:", "1:2:x"}) expect_label({2, 1, 2}, text);
  expect_label({3, 1, 2, 3}, "1:2:3");
  for (const char* const text : {"1:2:3;", "1:2:3;x"}) expect_label({4, 1, 2, 3, ';'}, text);
  for (const char* const text : {"1:2:3;4", "1:2:3;4:5", "1:2:3;4.", "1:2:3;4.x"})
    expect_label({5, 1, 2, 3, ';', 4}, text);
  for (const char* const text : {"1:2:3x4.5", "1:2:3x4.5.6"})
    expect_label({6, 1, 2, 3, 'x', 4, 5}, text);
}

// The C library's own scan, on numbers that fit 64 bits, where all C libraries agree.
ScannedLabel scan_by_c_library(const char* text) {
  long long hours = 0, minutes = 0, seconds = 0, frames = 0, field = 0;
  char separator = '\0';
  // NOLINTNEXTLINE(cert-err34-c): the oracle
  const int items = std::sscanf(text, "%lld:%lld:%lld%c%lld.%lld", &hours, &minutes, &seconds,
                                &separator, &frames, &field);
  return {items < 0 ? 0 : items, hours, minutes, seconds, separator, frames, field};
}

TEST(ScanLabel, EqualsTheCLibrarysScanOnRandomText) {
  std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): repeatable
  const std::string alphabet = "0123456789:::;;.. +-x\t\n";
  const std::string shape = "dd:dd:dd;dd.d";
  for (int i = 0; i < 300000; ++i) {
    std::string text;
    for (const char c : shape) {
      const auto draw = random() % 8;
      if (draw != 0) text += c == 'd' ? static_cast<char>('0' + random() % 10) : c;
      if (draw == 1) text += alphabet[random() % alphabet.size()];
    }
    const ScannedLabel ours = scan_label(text.c_str());
    const ScannedLabel expected = scan_by_c_library(text.c_str());
    ASSERT_EQ(expected.items, ours.items) << text;
    ASSERT_EQ(expected.hours, ours.hours) << text;
    ASSERT_EQ(expected.minutes, ours.minutes) << text;
    ASSERT_EQ(expected.seconds, ours.seconds) << text;
    ASSERT_EQ(expected.separator, ours.separator) << text;
    ASSERT_EQ(expected.frames, ours.frames) << text;
    ASSERT_EQ(expected.field, ours.field) << text;
  }
}

}  // namespace
}  // namespace Korvane
