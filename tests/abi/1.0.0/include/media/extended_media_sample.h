// A media sample that says more of itself: what it is in full, whether it follows on, and whatever
// else its producer tells by name. Whether a MediaSample is one is asked by dynamic_cast.

#ifndef KV_ENGINE_MEDIA_EXTENDED_MEDIA_SAMPLE_H
#define KV_ENGINE_MEDIA_EXTENDED_MEDIA_SAMPLE_H

#include "foundation/export.h"
#include "media/media_sample.h"

namespace Korvane {
namespace Media {

class TrackDescriptor;

class KV_ENGINE_API ExtendedMediaSample : public MediaSample {
 public:
  ExtendedMediaSample();
  ExtendedMediaSample(const ExtendedMediaSample& other);
  ExtendedMediaSample(ExtendedMediaSample&& other) noexcept;
  ExtendedMediaSample& operator=(const ExtendedMediaSample& other);
  ExtendedMediaSample& operator=(ExtendedMediaSample&& other) noexcept;
  ~ExtendedMediaSample() override;

  // Describes this very sample, for tracks that change on the way; null when the descriptor that
  // the provider gave for the track holds. Valid as long as the sample.
  virtual const TrackDescriptor* descriptor() const = 0;

  // Whether the sample does not follow on the one before it on its track: the first one, the first
  // after a seek, and after samples were lost.
  virtual bool is_discontinuous() const = 0;

  // What the producer tells under `name` (UTF-8, not null); null when it tells nothing. Valid as
  // long as the sample.
  virtual const char* property(const char* name) const = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_EXTENDED_MEDIA_SAMPLE_H
