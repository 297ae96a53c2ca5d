#include "media/multiviewer_config.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/raises.h"

namespace Korvane::Media::MultiviewerConfigTests {
namespace {

using Config = MultiviewerConfig;

static_assert(sizeof(Config) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<Config>);
// As they were published.
static_assert(std::is_same_v<decltype(&Config::edit_rate), Rational32 (Config::*)()>);
static_assert(std::is_same_v<decltype(&Config::operator==), bool (Config::*)(const Config&)>);
static_assert(std::is_same_v<decltype(&Config::operator!=), bool (Config::*)(const Config&)>);

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kGreatest = std::numeric_limits<int>::max();

void expect_fields(Config& config, const wchar_t* server_address, int port, int width, int height,
                   Rational32 edit_rate, bool keep_aspect_ratio) {
  const Config& fixed = config;
  EXPECT_STREQ(server_address, fixed.server_address());
  EXPECT_EQ(port, fixed.port());
  EXPECT_EQ(width, fixed.width());
  EXPECT_EQ(height, fixed.height());
  EXPECT_EQ(edit_rate.numerator, config.edit_rate().numerator);
  EXPECT_EQ(edit_rate.denominator, config.edit_rate().denominator);
  EXPECT_EQ(keep_aspect_ratio, fixed.keep_aspect_ratio());
}

Config filled() { return {L"mosaic.example", 5004, 3840, 2160, {50, 1}, true}; }

void expect_filled(Config& config) {
  expect_fields(config, L"mosaic.example", 5004, 3840, 2160, {50, 1}, true);
}

TEST(MultiviewerConfig, IsFullHdWithoutRateAtFirst) {
  Config config;
  expect_fields(config, L"", 0, 1920, 1080, {0, 1}, false);
}

TEST(MultiviewerConfig, KeepsWhatItIsGiven) {
  Config config = filled();
  expect_filled(config);
  Config limits(L"", kLeast, -1, kGreatest, {kLeast, kGreatest}, false);
  expect_fields(limits, L"", kLeast, -1, kGreatest, {kLeast, kGreatest}, false);
}

TEST(MultiviewerConfig, KeepsACopyOfTheAddress) {
  std::wstring address = L"an address \u00C4 that is too long for a short buffer";
  const std::wstring kept = address;
  const Config config(address.c_str(), 1, 2, 3, {4, 5}, false);
  address[0] = L'X';
  EXPECT_EQ(kept, config.server_address());
}

TEST(MultiviewerConfig, ANullAddressIsRefused) {
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null", [] {
    const Config config(nullptr, 1, 2, 3, {4, 5}, false);
  }));
}

TEST(MultiviewerConfig, IsEqualWhenEveryFieldIs) {
  Config config = filled();
  Config same = filled();
  EXPECT_TRUE(config == same);
  EXPECT_FALSE(config != same);
  EXPECT_TRUE(config == std::as_const(same));
  EXPECT_FALSE(config != std::as_const(same));
  EXPECT_TRUE(config == std::as_const(config));
  const Config fresh;
  EXPECT_TRUE(Config() == fresh);
  EXPECT_FALSE(Config() != fresh);
}

TEST(MultiviewerConfig, DiffersByEveryField) {
  const Config others[] = {
      {L"mosaic.example", 5005, 3840, 2160, {50, 1}, true},
      {L"Mosaic.example", 5004, 3840, 2160, {50, 1}, true},
      {L"mosaic.exampl", 5004, 3840, 2160, {50, 1}, true},
      {L"mosaic.example.", 5004, 3840, 2160, {50, 1}, true},
      {L"", 5004, 3840, 2160, {50, 1}, true},
      {L"mosaic.example", 5004, 3841, 2160, {50, 1}, true},
      {L"mosaic.example", 5004, 3840, 2161, {50, 1}, true},
      {L"mosaic.example", 5004, 3840, 2160, {25, 1}, true},
      {L"mosaic.example", 5004, 3840, 2160, {50, 2}, true},
      {L"mosaic.example", 5004, 3840, 2160, {100, 2}, true},  // the same rate, in other terms
      {L"mosaic.example", 5004, 3840, 2160, {50, 1}, false},
  };
  Config config = filled();
  for (std::size_t i = 0; i < std::size(others); ++i) {
    EXPECT_FALSE(config == others[i]) << i;
    EXPECT_TRUE(config != others[i]) << i;
    Config other = others[i];
    EXPECT_FALSE(other == std::as_const(config)) << i;
    EXPECT_FALSE(other == config) << i;
    EXPECT_TRUE(other != config) << i;
  }
}

TEST(MultiviewerConfig, CopiesAreDeep) {
  Config original = filled();
  Config copy(original);
  EXPECT_NE(original.server_address(), copy.server_address());
  original = Config();
  expect_filled(copy);
  Config assigned;
  assigned = copy;
  expect_filled(assigned);
  EXPECT_NE(copy.server_address(), assigned.server_address());
  Config moved(std::move(assigned));
  expect_filled(moved);
  expect_filled(assigned);  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(MultiviewerConfig, AssignmentToItselfDoesNothing) {
  Config config = filled();
  const Config& same = config;
  const wchar_t* const address = config.server_address();
  config = same;
  EXPECT_EQ(address, config.server_address());
  expect_filled(config);
}

TEST(MultiviewerConfig, TakesItsOwnAddress) {
  Config config = filled();
  config = Config(config.server_address(), 1, 2, 3, {4, 5}, false);
  expect_fields(config, L"mosaic.example", 1, 2, 3, {4, 5}, false);
}

}  // namespace
}  // namespace Korvane::Media::MultiviewerConfigTests
