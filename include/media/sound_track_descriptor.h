// A track of sound. Attributes are absent until they are set, as track_descriptor.h tells.

#ifndef KV_ENGINE_MEDIA_SOUND_TRACK_DESCRIPTOR_H
#define KV_ENGINE_MEDIA_SOUND_TRACK_DESCRIPTOR_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/virtual_slots.h"
#include "media/track_descriptor.h"

namespace Korvane {
namespace Media {

struct SoundTrackDescriptorPrivate;

class KV_ENGINE_API SoundTrackDescriptor : public TrackDescriptor {
 public:
  // Every attribute absent, essence kind EssenceNone.
  SoundTrackDescriptor();

  SoundTrackDescriptor(const SoundTrackDescriptor& other);
  SoundTrackDescriptor& operator=(const SoundTrackDescriptor& other);
  ~SoundTrackDescriptor() override;

  TrackDescriptor* clone() const override;

  // Samples per second and channel: 48000. Apart from sample_rate(): setting one leaves the other.
  KV_ENGINE_SLOTS(virtual void sampling_rate(unsigned int value),
                  virtual unsigned int* sampling_rate() const);

  // Bits per sample of one channel.
  KV_ENGINE_SLOTS(virtual void sampling_bits(unsigned int value),
                  virtual unsigned int* sampling_bits() const);

  // Channels that lie side by side in the samples: 2 for a stereo pair.
  KV_ENGINE_SLOTS(virtual void channel_count(unsigned int value),
                  virtual unsigned int* channel_count() const);

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SoundTrackDescriptorPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SOUND_TRACK_DESCRIPTOR_H
