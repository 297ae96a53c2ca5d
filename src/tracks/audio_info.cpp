#include "media/audio_info.h"

#include "media/sound_track_descriptor.h"

namespace Korvane {
namespace {

unsigned int value_or_zero(const unsigned int* value) { return value == nullptr ? 0 : *value; }

}  // namespace

AudioInfo::AudioInfo(unsigned int new_sampling_bits, unsigned int new_channel_count,
                     unsigned int new_sampling_rate)
    : sampling_bits(new_sampling_bits),
      channel_count(new_channel_count),
      sampling_rate(new_sampling_rate) {}

AudioInfo::AudioInfo(const Media::SoundTrackDescriptor& descriptor)
    : sampling_bits(value_or_zero(descriptor.sampling_bits())),
      channel_count(value_or_zero(descriptor.channel_count())),
      sampling_rate(value_or_zero(descriptor.sampling_rate())) {}

AudioInfo::AudioInfo(const AudioInfo& other) = default;
AudioInfo& AudioInfo::operator=(const AudioInfo& other) = default;
AudioInfo& AudioInfo::operator=(AudioInfo&& other) noexcept = default;

unsigned int AudioInfo::block_align() const { return (sampling_bits * channel_count) >> 3U; }

bool AudioInfo::operator==(const AudioInfo& other) const {
  return sampling_bits == other.sampling_bits && channel_count == other.channel_count &&
         sampling_rate == other.sampling_rate;
}

bool AudioInfo::operator!=(const AudioInfo& other) const { return !(*this == other); }

}  // namespace Korvane
