// Receives the samples of a running source. Implemented by whoever wants them; calls come one after
// the other on the thread that reads the source, and no exception may leave them.

#ifndef KV_ENGINE_MEDIA_MEDIA_SAMPLE_LISTENER_H
#define KV_ENGINE_MEDIA_MEDIA_SAMPLE_LISTENER_H

#include "foundation/export.h"
#include "foundation/media_sample_shared_ptr.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API MediaSampleListener {
 public:
  MediaSampleListener();
  MediaSampleListener(const MediaSampleListener& other);
  MediaSampleListener& operator=(const MediaSampleListener& other);
  virtual ~MediaSampleListener();

  // `sample` is never empty; copy the handle to keep the sample past the call.
  virtual void sample_received(const MediaSampleSharedPtr& sample) = 0;

  // No further sample of the track comes.
  virtual void track_ended(unsigned int track_id) = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_MEDIA_SAMPLE_LISTENER_H
