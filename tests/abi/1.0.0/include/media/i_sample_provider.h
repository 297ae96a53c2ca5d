// A source of the samples of one track, in decoding order. Shared by ISampleProviderPtr. Used by
// one thread at a time. Failures are raised as Exception, with the code and text of the module that
// implements it; the provider stays usable.

#ifndef KV_ENGINE_MEDIA_I_SAMPLE_PROVIDER_H
#define KV_ENGINE_MEDIA_I_SAMPLE_PROVIDER_H

#include "foundation/export.h"
#include "foundation/media_sample_shared_ptr.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API ISampleProvider {
 public:
  ISampleProvider();
  ISampleProvider(const ISampleProvider& other);
  ISampleProvider& operator=(const ISampleProvider& other);
  virtual ~ISampleProvider();

  // The next sample, waited for if need be; an empty handle at the end.
  virtual MediaSampleSharedPtr read_sample() = 0;

  // Goes to the last key frame whose presentation time, in units of MediaSample::time_rate(), is
  // not past `presentation_time`. Answers false, and leaves the position, where there is none.
  virtual bool seek(long long presentation_time) = 0;

  // Whether the last read came upon the end of the track. A seek goes back from there.
  virtual bool at_end() const = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_SAMPLE_PROVIDER_H
