#include "media/audio_track_config.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "support/raises.h"

namespace Korvane::Media::AudioTrackConfigTests {
namespace {

using Config = AudioTrackConfig;

static_assert(sizeof(Config) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<Config>);

Config config_of(std::initializer_list<unsigned int> channels) {
  Config config;
  for (const unsigned int channel : channels) config.add_source_channel(channel);
  return config;
}

void expect_channels(std::initializer_list<unsigned int> channels, const Config& config) {
  ASSERT_EQ(channels.size(), config.source_channel_count());
  unsigned int index = 0;
  for (const unsigned int channel : channels) {
    EXPECT_EQ(channel, config.source_channel_for_index(index)) << index;
    ++index;
  }
}

::testing::AssertionResult has_none_at(const Config& config, unsigned int index) {
  return raises(InvalidArgument, "Request for unexistent index in AudioTrackConfig",
                [&] { config.source_channel_for_index(index); });
}

TEST(AudioTrackConfig, HasNoChannelsAtFirst) {
  const Config config;
  EXPECT_EQ(0U, config.source_channel_count());
  EXPECT_TRUE(has_none_at(config, 0));
}

TEST(AudioTrackConfig, KeepsOrderAndDuplicates) {
  expect_channels({7, 0, 7, 0xFFFFFFFFU, 1}, config_of({7, 0, 7, 0xFFFFFFFFU, 1}));
}

TEST(AudioTrackConfig, AnIndexPastTheEndIsAnError) {
  const Config config = config_of({1, 2});
  for (const unsigned int index : {2U, 3U, 0x80000000U, 0xFFFFFFFFU})
    EXPECT_TRUE(has_none_at(config, index)) << index;
}

TEST(AudioTrackConfig, TakesItsOwnChannels) {
  Config config = config_of({5, 6});
  for (unsigned int i = 0; i < 1000; ++i)
    config.add_source_channel(config.source_channel_for_index(i));
  ASSERT_EQ(1002U, config.source_channel_count());
  EXPECT_EQ(5U, config.source_channel_for_index(1000));
  EXPECT_EQ(6U, config.source_channel_for_index(1001));
}

TEST(AudioTrackConfig, CopiesAreDeep) {
  Config original = config_of({1, 2});
  Config copy(original);
  original.add_source_channel(3);
  expect_channels({1, 2}, copy);
  copy = original;
  original = Config();
  expect_channels({1, 2, 3}, copy);
  const Config moved(std::move(copy));
  expect_channels({1, 2, 3}, moved);
  expect_channels({1, 2, 3}, copy);  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(AudioTrackConfig, AssignmentToItselfKeepsTheChannels) {
  Config config = config_of({1, 2});
  const Config& same = config;
  config = same;
  expect_channels({1, 2}, config);
}

}  // namespace
}  // namespace Korvane::Media::AudioTrackConfigTests
