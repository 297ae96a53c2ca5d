// The source channels that make up one audio track, in the order in which they were added. The same
// channel may be there more than once. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_AUDIO_TRACK_CONFIG_H
#define KV_ENGINE_MEDIA_AUDIO_TRACK_CONFIG_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct AudioTrackConfigPrivate;

class KV_ENGINE_API AudioTrackConfig {
 public:
  // Without channels.
  AudioTrackConfig();

  AudioTrackConfig(const AudioTrackConfig& other);
  AudioTrackConfig& operator=(const AudioTrackConfig& other);
  virtual ~AudioTrackConfig();

  // Appends; any number is kept. Without memory for it the track stays as it was.
  void add_source_channel(unsigned int channel);

  // The number of channels that were added, repeated ones included.
  unsigned int source_channel_count() const;

  // The channel at `index`, counted from 0 within the track. Raises InvalidArgument "Request for
  // unexistent index in AudioTrackConfig" when `index` is not below the count.
  unsigned int source_channel_for_index(unsigned int index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<AudioTrackConfigPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_AUDIO_TRACK_CONFIG_H
