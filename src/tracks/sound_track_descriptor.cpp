#include "media/sound_track_descriptor.h"

#include "tracks/optional_cell.h"

namespace Korvane::Media {

struct SoundTrackDescriptorPrivate {
  OptionalCell<unsigned int> sampling_rate;
  OptionalCell<unsigned int> sampling_bits;
  OptionalCell<unsigned int> channel_count;
};

SoundTrackDescriptor::SoundTrackDescriptor() : private_(new SoundTrackDescriptorPrivate) {}

SoundTrackDescriptor::SoundTrackDescriptor(const SoundTrackDescriptor& other) = default;

SoundTrackDescriptor& SoundTrackDescriptor::operator=(const SoundTrackDescriptor& other) {
  if (this != &other) {
    private_ = other.private_;
    TrackDescriptor::operator=(other);
  }
  return *this;
}

SoundTrackDescriptor::~SoundTrackDescriptor() = default;

TrackDescriptor* SoundTrackDescriptor::clone() const { return new SoundTrackDescriptor(*this); }

void SoundTrackDescriptor::sampling_rate(unsigned int value) { private_->sampling_rate.set(value); }
unsigned int* SoundTrackDescriptor::sampling_rate() const { return private_->sampling_rate.get(); }

void SoundTrackDescriptor::sampling_bits(unsigned int value) { private_->sampling_bits.set(value); }
unsigned int* SoundTrackDescriptor::sampling_bits() const { return private_->sampling_bits.get(); }

void SoundTrackDescriptor::channel_count(unsigned int value) { private_->channel_count.set(value); }
unsigned int* SoundTrackDescriptor::channel_count() const { return private_->channel_count.get(); }

}  // namespace Korvane::Media
