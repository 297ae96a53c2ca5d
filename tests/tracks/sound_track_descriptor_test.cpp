#include "media/sound_track_descriptor.h"

#include <gtest/gtest.h>

#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

TEST(SoundTrackDescriptor, TheTwoRatesAreApart) {
  SoundTrackDescriptor track;
  track.sampling_rate(48000);
  EXPECT_EQ(nullptr, track.sample_rate());
  track.sample_rate({96000, 1});
  expect_value(48000U, track.sampling_rate(), "sampling rate");
}

TEST(SoundTrackDescriptor, ZeroIsNotAbsent) {
  SoundTrackDescriptor track;
  track.channel_count(0);
  expect_value(0U, track.channel_count(), "channel count");
  EXPECT_EQ(nullptr, track.sampling_bits());
  EXPECT_EQ(nullptr, track.sampling_rate());
}

}  // namespace
}  // namespace Korvane::Media
