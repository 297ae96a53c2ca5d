// Size and number of the samples of a sound stream, apart from any track.

#ifndef KV_ENGINE_MEDIA_AUDIO_INFO_H
#define KV_ENGINE_MEDIA_AUDIO_INFO_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {
class SoundTrackDescriptor;
}

struct KV_ENGINE_API AudioInfo {
  // Any values are kept.
  AudioInfo(unsigned int sampling_bits, unsigned int channel_count, unsigned int sampling_rate);

  // What the descriptor does not define is 0.
  AudioInfo(const Media::SoundTrackDescriptor& descriptor);

  AudioInfo(const AudioInfo& other);
  AudioInfo& operator=(const AudioInfo& other);
  AudioInfo& operator=(AudioInfo&& other) noexcept;  // copies

  // Bytes of one sample of every channel, rounded down. The product of bits and channels wraps at
  // 32 bits.
  unsigned int block_align() const;

  // Whether all three fields are equal.
  bool operator==(const AudioInfo& other) const;
  bool operator!=(const AudioInfo& other) const;

  unsigned int sampling_bits;  // of one sample of one channel
  unsigned int channel_count;  // of one track; 2 for a stereo pair
  unsigned int sampling_rate;  // samples per second and channel
};

}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_AUDIO_INFO_H
