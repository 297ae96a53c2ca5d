// A sample of one track: a picture, a block of sound, a packet of data, compressed or not. Its
// bytes are those of the base. Made by the module that reads or encodes the track, and shared by
// MediaSampleSharedPtr; nothing of it changes once it is shared, so several threads may read it.

#ifndef KV_ENGINE_MEDIA_MEDIA_SAMPLE_H
#define KV_ENGINE_MEDIA_MEDIA_SAMPLE_H

#include "foundation/export.h"
#include "foundation/rational32.h"
#include "media/sample.h"
#include "media/track_descriptor_essence_kind.h"

namespace Korvane {

class Timecode;

namespace Media {

class KV_ENGINE_API MediaSample : public Memory::Sample {
 public:
  MediaSample();
  MediaSample(const MediaSample& other);
  MediaSample(MediaSample&& other) noexcept;
  MediaSample& operator=(const MediaSample& other);
  MediaSample& operator=(MediaSample&& other) noexcept;
  ~MediaSample() override;

  // The track that it belongs to: TrackDescriptor::track_id() of its descriptor.
  virtual unsigned int track_id() const = 0;

  // What the bytes hold: TrackDescriptor::essence_kind() of its descriptor.
  virtual TrackDescriptorEssenceKind essence_kind() const = 0;

  // The units per second in which the following three count: 25/1, 90000/1, 48000/1 ... The same
  // for all samples of a track.
  virtual Rational32 time_rate() const = 0;

  // When the sample is shown or heard, from the start of its source; negative before it.
  virtual long long presentation_time() const = 0;

  // When the decoder takes it: never falls along a track, and differs from the presentation time
  // where pictures are reordered.
  virtual long long decode_time() const = 0;

  // For how long it is shown or heard; 0 when that is not known.
  virtual long long duration() const = 0;

  // Whether decoding can begin here. Always true where every sample stands alone.
  virtual bool is_key_frame() const = 0;

  // The label of its first frame; null when it carries none. Valid as long as the sample.
  virtual const Timecode* timecode() const = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_MEDIA_SAMPLE_H
