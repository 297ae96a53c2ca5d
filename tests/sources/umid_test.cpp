#include "media/umid.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cwchar>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/foreign_locale.h"
#include "support/property.h"
#include "support/raises.h"

namespace Korvane::Media::UmidTests {
namespace {

static_assert(sizeof(Umid) == sizeof(void*));
static_assert(!std::is_polymorphic_v<Umid>);
static_assert(!std::is_default_constructible_v<Umid>);
static_assert(std::is_convertible_v<const wchar_t*, Umid>);
static_assert(std::is_same_v<decltype(std::declval<Umid&>()[0]), unsigned char&>);
static_assert(std::is_same_v<decltype(std::declval<const Umid&>()[0]), unsigned char>);

using Bytes = std::vector<unsigned char>;

// The first bytes of `umid`, as many as the caller knows it to have, by both ways of reading.
Bytes bytes_of(const Umid& umid, std::size_t count) {
  Bytes bytes;
  for (std::size_t i = 0; i < count; ++i) {
    bytes.push_back(umid[static_cast<int>(i)]);
    EXPECT_EQ(bytes.back(), umid.value()[i]) << i;
  }
  return bytes;
}

void expect_umid(const Bytes& bytes, const wchar_t* printed, const Umid& umid) {
  ASSERT_STREQ(printed, umid.c_str());
  if (bytes.empty()) {
    EXPECT_EQ(nullptr, umid.value());
  } else {
    ASSERT_NE(nullptr, umid.value());
    EXPECT_EQ(bytes, bytes_of(umid, bytes.size()));
  }
}

// Two lower-case digits a byte, by the C library.
std::wstring printed_by_c(const Bytes& bytes) {
  std::wstring text;
  for (const unsigned char byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", byte);
    text.append(digits, digits + 2);
  }
  return text;
}

::testing::AssertionResult raises_odd_digits(const std::wstring& text) {
  try {
    const Umid umid(text.c_str());
  } catch (const std::out_of_range& raised) {
    return ::testing::AssertionResult(std::string("invalid string position") == raised.what())
           << raised.what();
  } catch (...) {
    return ::testing::AssertionFailure() << "raised something else";
  }
  return ::testing::AssertionFailure() << "raised nothing";
}

TEST(Umid, ReadsTwoDigitsAByte) {
  struct Text {
    const wchar_t* text;
    Bytes bytes;
    const wchar_t* printed;
  };
  const Text texts[] = {
      {L"06:0A-2B 34", {0x06, 0x0A, 0x2B, 0x34}, L"060a2b34"},
      {L"060A2B34", {0x06, 0x0A, 0x2B, 0x34}, L"060a2b34"},
      {L"060a2b34", {0x06, 0x0A, 0x2B, 0x34}, L"060a2b34"},
      {L"0 6 0 a", {0x06, 0x0A}, L"060a"},
      {L"{0:-60. A}\t\n", {0x06, 0x0A}, L"060a"},
      {L"00", {0x00}, L"00"},
      {L"fF", {0xFF}, L"ff"},
      {L"0123456789abcdefABCDEF",
       {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF, 0xAB, 0xCD, 0xEF},
       L"0123456789abcdefabcdef"},
      // Of the prefix only the x goes.
      {L"0x06 0x0A", {0x00, 0x60, 0x0A}, L"00600a"},
      {L"0X1", {0x01}, L"01"},
      // The e of smpte and the d of umid are digits too.
      {L"urn:smpte:umid:060A2B34", {0xED, 0x06, 0x0A, 0x2B, 0x34}, L"ed060a2b34"},
      {L"", {}, L""},
      {L"-", {}, L""},
  };
  for (const Text& text : texts) {
    SCOPED_TRACE(text.text);
    expect_umid(text.bytes, text.printed, Umid(text.text));
  }
}

TEST(Umid, ReadsAWholeIdentifier) {
  // Universal label, length 13h, instance number, material number.
  expect_umid({0x06, 0x0A, 0x2B, 0x34, 0x01, 0x01, 0x01, 0x05, 0x01, 0x01, 0x0D,
               0x43, 0x13, 0x00, 0x00, 0x00, 0xD9, 0x27, 0x95, 0x6E, 0x4F, 0x1C,
               0x41, 0xBA, 0xA0, 0x3B, 0x7E, 0x82, 0xC5, 0x60, 0xF8, 0x19},
              L"060a2b340101010501010d4313000000d927956e4f1c41baa03b7e82c560f819",
              Umid(L"060A2B34.01010105.01010D43.13000000.D927956E.4F1C41BA.A03B7E82.C560F819"));
}

TEST(Umid, AnyCharacterThatIsNoDigitOfAsciiVanishes) {
  const std::wstring lower = L"0123456789abcdef";
  const std::wstring upper = L"0123456789ABCDEF";
  // All of 16 bits: among them the digits of other scripts, and characters whose lower 8 bits are
  // those of a digit.
  for (unsigned int code = 1; code <= 0xFFFF; ++code) {
    const auto character = static_cast<wchar_t>(code);
    const std::wstring text = {character, L'5', character, L'5'};
    std::size_t value = lower.find(character);
    if (value == std::wstring::npos) value = upper.find(character);
    const Bytes bytes = value == std::wstring::npos
                            ? Bytes{0x55}
                            : Bytes(2, static_cast<unsigned char>(value * 16 + 5));
    const Umid umid(text.c_str());
    ASSERT_EQ(printed_by_c(bytes), umid.c_str()) << "U+" << std::hex << code;
  }
  expect_umid({0x12}, L"12", Umid(L"\U0001D7D81\U0001F3A52"));
}

TEST(Umid, PrintsEveryByteAsTwoLowerCaseDigits) {
  Bytes bytes;
  for (unsigned int value = 0; value < 256; ++value)
    bytes.push_back(static_cast<unsigned char>(value));
  const std::wstring printed = printed_by_c(bytes);
  ASSERT_EQ(512U, printed.size());
  expect_umid(bytes, printed.c_str(), Umid(printed.c_str()));
}

TEST(Umid, WhatIsPrintedReadsBack) {
  for_all([](unsigned long long first, unsigned int second, unsigned char third) {
    Bytes bytes;
    for (int shift = 56; shift >= 0; shift -= 8)
      bytes.push_back(static_cast<unsigned char>(first >> shift));
    for (int shift = 24; shift >= 0; shift -= 8)
      bytes.push_back(static_cast<unsigned char>(second >> shift));
    bytes.push_back(third);
    const std::wstring printed = printed_by_c(bytes);
    const Umid umid(printed.c_str());
    return ::testing::AssertionResult(printed == umid.c_str() &&
                                      bytes == Bytes(umid.value(), umid.value() + bytes.size()) &&
                                      printed == Umid(umid.c_str()).c_str());
  });
}

TEST(Umid, AnOddNumberOfDigitsIsTheStandardLibrarysError) {
  for (const wchar_t* text : {L"0", L"f", L"-F-", L"060", L"06:0A-2", L"0x1F", L"0x06", L"0x060A",
                              L"only abc", L"urn:smpte:umid:0"})
    EXPECT_TRUE(raises_odd_digits(text)) << text;
  EXPECT_TRUE(raises_odd_digits(std::wstring(1000001, L'7')));
}

TEST(Umid, WithoutDigitsThereAreNoBytes) {
  for (const wchar_t* text : {L"", L" ", L"---", L"ghijklmnopqrstuvwxyz", L"\u0660\uFF11\u00B2"}) {
    SCOPED_TRACE(text);
    const Umid umid(text);
    expect_umid({}, L"", umid);
    expect_umid({}, L"", Umid(umid));
  }
}

TEST(Umid, NullIsRefused) {
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null", [] { const Umid umid(nullptr); }));
}

TEST(Umid, AMillionDigitsTakeNoTime) {
  // Each byte in a style of its own, and a separator in all places.
  constexpr std::size_t kBytes = 500000;
  std::wstring text;
  Bytes bytes;
  for (std::size_t i = 0; i < kBytes; ++i) {
    bytes.push_back(static_cast<unsigned char>(i * 7));
    std::wstring digits = printed_by_c({bytes.back()});
    if (i % 2 == 1)
      for (wchar_t& digit : digits) digit = digit >= L'a' ? L'A' + (digit - L'a') : digit;
    text += digits.substr(0, 1) + L'-' + digits.substr(1);
  }
  const auto start = std::chrono::steady_clock::now();
  const Umid umid(text.c_str());
  const wchar_t* const printed = umid.c_str();
  const auto taken = std::chrono::steady_clock::now() - start;
  // Milliseconds; dropping digits from the front of the text would take minutes.
  EXPECT_LT(taken, std::chrono::seconds(5));
  EXPECT_EQ(printed_by_c(bytes), printed);
  EXPECT_EQ(bytes, Bytes(umid.value(), umid.value() + kBytes));
}

TEST(Umid, BytesCanBeChanged) {
  Umid umid(L"060A2B34");
  EXPECT_STREQ(L"060a2b34", umid.c_str());
  umid[0] = 0xFE;
  umid[3] = 0x01;
  EXPECT_EQ(umid.value(), &umid[0]);
  expect_umid({0xFE, 0x0A, 0x2B, 0x01}, L"fe0a2b01", umid);
}

TEST(Umid, CopiesAreIndependent) {
  Umid original(L"0102");
  EXPECT_STREQ(L"0102", original.c_str());
  Umid copy(original);
  EXPECT_NE(original.value(), copy.value());
  copy[0] = 0xAA;
  original[1] = 0xBB;
  expect_umid({0x01, 0xBB}, L"01bb", original);
  expect_umid({0xAA, 0x02}, L"aa02", copy);
  EXPECT_NE(original.c_str(), copy.c_str());
}

TEST(Umid, AssignmentReplacesBytesAndText) {
  const Umid shorter(L"FF");
  Umid umid(L"060A2B34");
  EXPECT_STREQ(L"060a2b34", umid.c_str());
  umid = shorter;
  expect_umid({0xFF}, L"ff", umid);
  umid = Umid(L"");
  expect_umid({}, L"", umid);
  umid = L"0A0B0C";
  expect_umid({0x0A, 0x0B, 0x0C}, L"0a0b0c", umid);
  EXPECT_STREQ(L"ff", shorter.c_str());
}

TEST(Umid, AssignmentToItselfDoesNothing) {
  Umid umid(L"060A2B34");
  const Umid& same = umid;
  const wchar_t* const text = umid.c_str();
  const unsigned char* const value = umid.value();
  umid = same;
  EXPECT_EQ(value, umid.value());
  EXPECT_STREQ(L"060a2b34", text);
  expect_umid({0x06, 0x0A, 0x2B, 0x34}, L"060a2b34", umid);
}

TEST(Umid, ReadsItsOwnText) {
  Umid umid(L"0123456789ABCDEF0123456789ABCDEF");
  umid = Umid(umid.c_str() + 2);
  EXPECT_STREQ(L"23456789abcdef0123456789abcdef", umid.c_str());
  umid = umid.c_str();
  EXPECT_STREQ(L"23456789abcdef0123456789abcdef", umid.c_str());
}

TEST(Umid, MovingCopies) {
  Umid source(L"0102");
  const Umid moved(std::move(source));
  expect_umid({0x01, 0x02}, L"0102", moved);
  expect_umid({0x01, 0x02}, L"0102", source);  // NOLINT(bugprone-use-after-move): it keeps all
}

TEST(Umid, NoLocaleChangesTheText) {
  const ForeignLocale foreign;
  ASSERT_EQ("1.2.3.4", ForeignLocale::written(1234));
  const Umid umid(
      L"g12\u066334\u0130z\uFF11"
      L"AB");
  expect_umid({0x12, 0x34, 0xAB}, L"1234ab", umid);
  EXPECT_TRUE(raises_odd_digits(L"123"));
}

}  // namespace
}  // namespace Korvane::Media::UmidTests
