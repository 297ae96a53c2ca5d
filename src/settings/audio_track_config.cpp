#include "media/audio_track_config.h"

#include "core/exception.h"
#include "foundation/list_record.h"

namespace Korvane::Media {

struct AudioTrackConfigPrivate : ListRecord<unsigned int> {};

AudioTrackConfig::AudioTrackConfig() : private_(new AudioTrackConfigPrivate) {}

AudioTrackConfig::AudioTrackConfig(const AudioTrackConfig& other) = default;

AudioTrackConfig& AudioTrackConfig::operator=(const AudioTrackConfig& other) = default;

AudioTrackConfig::~AudioTrackConfig() = default;

void AudioTrackConfig::add_source_channel(unsigned int channel) { private_->add(channel); }

unsigned int AudioTrackConfig::source_channel_count() const {
  return static_cast<unsigned int>(private_->size());
}

unsigned int AudioTrackConfig::source_channel_for_index(unsigned int index) const {
  const unsigned int* const channel = private_->find(index);
  exception_enforce(channel != nullptr, InvalidArgument,
                    "Request for unexistent index in AudioTrackConfig", true);
  return *channel;
}

}  // namespace Korvane::Media
