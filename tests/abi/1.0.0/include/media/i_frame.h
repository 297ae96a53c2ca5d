// One frame of a source: the picture, the sound and the data that belong to one edit unit, as
// samples. Shared by FramePtr; nothing of it changes once it is shared, so several threads may read
// it.

#ifndef KV_ENGINE_MEDIA_I_FRAME_H
#define KV_ENGINE_MEDIA_I_FRAME_H

#include "foundation/export.h"
#include "foundation/media_sample_shared_ptr.h"
#include "foundation/rational32.h"
#include "foundation/types.h"

namespace Korvane {

class Timecode;

namespace Media {

class TrackDescriptor;

class KV_ENGINE_API IFrame {
 public:
  IFrame();
  IFrame(const IFrame& other);
  IFrame& operator=(const IFrame& other);
  virtual ~IFrame();

  // Counted from 0 at the start of the source.
  virtual unsigned long long number() const = 0;

  // Frames per second.
  virtual Rational32 edit_rate() const = 0;

  // Null when the frame carries none. Valid as long as the frame.
  virtual const Timecode* timecode() const = 0;

  // When a live source captured it, in nanoseconds since 1970-01-01 00:00 UTC; 0 when that is not
  // known.
  virtual long long capture_time() const = 0;

  // Whether it does not follow on the frame before it: the first one, the first after a seek, and
  // after frames were lost.
  virtual bool is_discontinuous() const = 0;

  // Whether the provider gave the former frame again for want of a new one.
  virtual bool is_repeated() const = 0;

  // The number of its samples. A track may have none in a frame, or several.
  virtual size_t sample_count() const = 0;

  // Shares the sample at `index`, in the order of the provider's tracks; empty when `index` is not
  // below sample_count().
  virtual MediaSampleSharedPtr sample_at(size_t index) const = 0;

  // Describes the track of the sample at `index`; null when `index` is not below sample_count().
  // Valid as long as the frame; not to be written to through its getters.
  virtual const TrackDescriptor* descriptor_at(size_t index) const = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_FRAME_H
