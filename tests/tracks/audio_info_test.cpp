#include "media/audio_info.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "media/sound_track_descriptor.h"

namespace Korvane {
namespace {

static_assert(sizeof(AudioInfo) == 12);
static_assert(std::is_standard_layout_v<AudioInfo>);
static_assert(!std::is_default_constructible_v<AudioInfo>);
static_assert(offsetof(AudioInfo, sampling_bits) == 0);
static_assert(offsetof(AudioInfo, channel_count) == 4);
static_assert(offsetof(AudioInfo, sampling_rate) == 8);

void expect_fields(const AudioInfo& info, unsigned int bits, unsigned int channels,
                   unsigned int rate) {
  EXPECT_EQ(bits, info.sampling_bits);
  EXPECT_EQ(channels, info.channel_count);
  EXPECT_EQ(rate, info.sampling_rate);
}

TEST(AudioInfo, StoresBitsChannelsAndRate) { expect_fields(AudioInfo(24, 2, 48000), 24, 2, 48000); }

// Bits of `given`: sampling bits, channel count, sampling rate.
TEST(AudioInfo, TakesFromADescriptorWhatItDefines) {
  for (unsigned int given = 0; given < 8; ++given) {
    SCOPED_TRACE(given);
    Media::SoundTrackDescriptor track;
    track.sample_rate({96000, 1});  // another rate, which is not read
    if ((given & 1U) != 0) track.sampling_bits(24);
    if ((given & 2U) != 0) track.channel_count(2);
    if ((given & 4U) != 0) track.sampling_rate(48000);
    expect_fields(AudioInfo(track), (given & 1U) != 0 ? 24 : 0, (given & 2U) != 0 ? 2 : 0,
                  (given & 4U) != 0 ? 48000 : 0);
    EXPECT_EQ((given & 3U) == 3 ? 6U : 0U, AudioInfo(track).block_align());
  }
}

TEST(AudioInfo, BlockAlignIsInBytesRoundedDown) {
  struct Block {
    unsigned int bits;
    unsigned int channels;
    unsigned int bytes;
  };
  constexpr Block kBlocks[] = {
      {24, 2, 6},
      {12, 1, 1},
      {12, 2, 3},
      {16, 1, 2},
      {32, 16, 64},
      {7, 1, 0},
      {1, 8, 1},
      {0, 2, 0},
      {24, 0, 0},
      {20, 5, 12},
      // 2^31 x 2 and (2^32 - 1) squared, both cut to 32 bits.
      {0x80000000U, 2, 0},
      {0xFFFFFFFFU, 0xFFFFFFFFU, 0},
      {0xFFFFFFFFU, 1, 0x1FFFFFFFU},
  };
  for (const Block& block : kBlocks)
    EXPECT_EQ(block.bytes, AudioInfo(block.bits, block.channels, 48000).block_align())
        << block.bits << " x " << block.channels;
}

TEST(AudioInfo, CopiesAndMovesCopyEveryField) {
  AudioInfo source(24, 2, 48000);
  const AudioInfo copy(source);
  expect_fields(copy, 24, 2, 48000);
  AudioInfo assigned(0, 0, 0);
  assigned = source;
  expect_fields(assigned, 24, 2, 48000);
  AudioInfo moved(0, 0, 0);
  moved = std::move(source);
  expect_fields(moved, 24, 2, 48000);
  expect_fields(source, 24, 2, 48000);  // NOLINT(bugprone-use-after-move)
}

TEST(AudioInfo, DiffersByEveryField) {
  const AudioInfo info(24, 2, 48000);
  for (const AudioInfo& other :
       {AudioInfo(16, 2, 48000), AudioInfo(24, 1, 48000), AudioInfo(24, 2, 96000)}) {
    EXPECT_FALSE(info == other);
    EXPECT_TRUE(info != other);
  }
  EXPECT_TRUE(info == AudioInfo(info));
  EXPECT_FALSE(info != AudioInfo(info));
}

}  // namespace
}  // namespace Korvane
