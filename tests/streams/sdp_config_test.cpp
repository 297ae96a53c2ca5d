#include "media/sdp_config.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "support/raises.h"

namespace Korvane::Media::SdpConfigTests {
namespace {

static_assert(sizeof(SdpType) == 4 && SdpVideo == 0 && SdpAudio == 1 && SdpAnc == 2);
static_assert(sizeof(SdpConfig) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<SdpConfig>);
static_assert(!std::is_default_constructible_v<SdpConfig>);
static_assert(std::is_same_v<decltype(&SdpConfig::type), SdpType (SdpConfig::*)()>);
static_assert(std::is_same_v<decltype(&SdpConfig::port), int (SdpConfig::*)() const>);
static_assert(
    std::is_same_v<decltype(&SdpConfig::ip_address), const wchar_t* (SdpConfig::*)() const>);
static_assert(
    std::is_same_v<decltype(&SdpConfig::operator==), bool (SdpConfig::*)(const SdpConfig&)>);
static_assert(
    std::is_same_v<decltype(&SdpConfig::operator!=), bool (SdpConfig::*)(const SdpConfig&)>);

void expect_fields(SdpConfig config, SdpType type, const wchar_t* ip_address, int port) {
  EXPECT_EQ(type, config.type());
  EXPECT_STREQ(ip_address, config.ip_address());
  EXPECT_EQ(port, config.port());
}

// Both operators, in both directions.
void expect_equality(bool equal, SdpConfig a, SdpConfig b) {
  const SdpConfig& const_a = a;
  const SdpConfig& const_b = b;
  EXPECT_EQ(equal, a == const_b);
  EXPECT_EQ(equal, b == const_a);
  EXPECT_EQ(!equal, a != const_b);
  EXPECT_EQ(!equal, b != const_a);
}

TEST(SdpConfig, OfATypeAloneHasNoAddressAndPort0) {
  expect_fields(SdpConfig(SdpVideo), SdpVideo, L"", 0);
  expect_fields(SdpConfig(SdpAudio), SdpAudio, L"", 0);
  expect_fields(SdpConfig(SdpAnc), SdpAnc, L"", 0);
}

TEST(SdpConfig, StoresTypeAddressAndPort) {
  expect_fields(SdpConfig(SdpAudio, L"10.0.0.1", 5004), SdpAudio, L"10.0.0.1", 5004);
  expect_fields(SdpConfig(SdpAnc, L"", 1), SdpAnc, L"", 1);
}

TEST(SdpConfig, StoresAnythingUnchecked) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kGreatest = std::numeric_limits<int>::max();
  constexpr wchar_t kLoneSurrogate[] = {L'a', wchar_t{0xD800}, L' ', L'\n', 0};
  const auto no_type = static_cast<SdpType>(0xFFFFFFFFU);
  const std::wstring long_text(100000, L'x');
  expect_fields(SdpConfig(no_type, L" 300.1.2 ", -1), no_type, L" 300.1.2 ", -1);
  expect_fields(SdpConfig(SdpVideo, L"fe80::1%eth0", 65536), SdpVideo, L"fe80::1%eth0", 65536);
  expect_fields(SdpConfig(SdpVideo, kLoneSurrogate, kLeast), SdpVideo, kLoneSurrogate, kLeast);
  expect_fields(SdpConfig(SdpVideo, long_text.c_str(), kGreatest), SdpVideo, long_text.c_str(),
                kGreatest);
}

TEST(SdpConfig, RefusesANullAddress) {
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null",
                     [] { const SdpConfig config(SdpVideo, nullptr, 1); }));
}

TEST(SdpConfig, KeepsACopyOfTheAddress) {
  wchar_t text[] = L"10.0.0.1";
  const SdpConfig config(SdpVideo, text, 1);
  text[0] = L'9';
  EXPECT_STREQ(L"10.0.0.1", config.ip_address());
}

TEST(SdpConfig, CopiesShareNothing) {
  const SdpConfig source(SdpAudio, L"10.0.0.1", 5004);
  SdpConfig copy(source);
  EXPECT_NE(source.ip_address(), copy.ip_address());
  expect_fields(copy, SdpAudio, L"10.0.0.1", 5004);
  copy = SdpConfig(SdpAnc, L"10.0.0.2", 5006);
  expect_fields(copy, SdpAnc, L"10.0.0.2", 5006);
  expect_fields(source, SdpAudio, L"10.0.0.1", 5004);
  copy = source;
  EXPECT_NE(source.ip_address(), copy.ip_address());
  expect_fields(copy, SdpAudio, L"10.0.0.1", 5004);
}

TEST(SdpConfig, MovingCopies) {
  SdpConfig source(SdpAudio, L"10.0.0.1", 5004);
  const SdpConfig moved(std::move(source));
  expect_fields(moved, SdpAudio, L"10.0.0.1", 5004);
  expect_fields(source, SdpAudio, L"10.0.0.1", 5004);  // NOLINT(bugprone-use-after-move)
}

TEST(SdpConfig, AssignmentToItselfDoesNothing) {
  SdpConfig config(SdpAudio, L"10.0.0.1", 5004);
  const wchar_t* const address = config.ip_address();
  const SdpConfig& same = config;
  config = same;
  EXPECT_EQ(address, config.ip_address());
  expect_fields(config, SdpAudio, L"10.0.0.1", 5004);
}

TEST(SdpConfig, TakesItsOwnAddress) {
  SdpConfig config(SdpVideo, L"239.100.200.1", 5004);
  config = SdpConfig(SdpAudio, config.ip_address(), config.port() + 2);
  expect_fields(config, SdpAudio, L"239.100.200.1", 5006);
  config = SdpConfig(SdpAudio, config.ip_address() + 4, 1);
  expect_fields(config, SdpAudio, L"100.200.1", 1);
}

TEST(SdpConfig, IsEqualWhenAllThreeFieldsAre) {
  expect_equality(true, SdpConfig(SdpAnc), SdpConfig(SdpAnc));
  expect_equality(true, SdpConfig(SdpAnc), SdpConfig(SdpAnc, L"", 0));
  expect_equality(true, SdpConfig(SdpAudio, L"Host", 5004), SdpConfig(SdpAudio, L"Host", 5004));
}

TEST(SdpConfig, DiffersByEveryField) {
  const SdpConfig config(SdpAudio, L"Host", 5004);
  expect_equality(false, config, SdpConfig(SdpVideo, L"Host", 5004));
  expect_equality(false, config, SdpConfig(SdpAudio, L"Host", 5005));
  for (const wchar_t* other : {L"host", L"Hos", L"Host1", L" Host", L"Host ", L"Hosu", L""})
    expect_equality(false, config, SdpConfig(SdpAudio, other, 5004));
}

class CountedConfig final : public SdpConfig {
 public:
  explicit CountedConfig(int& ended) : SdpConfig(SdpVideo), ended_(ended) {}
  CountedConfig(const CountedConfig&) = delete;
  CountedConfig& operator=(const CountedConfig&) = delete;
  ~CountedConfig() override { ++ended_; }

 private:
  int& ended_;
};

TEST(SdpConfig, DerivedClassesEndThroughIt) {
  int ended = 0;
  std::unique_ptr<SdpConfig>(new CountedConfig(ended)).reset();
  EXPECT_EQ(1, ended);
}

}  // namespace
}  // namespace Korvane::Media::SdpConfigTests
