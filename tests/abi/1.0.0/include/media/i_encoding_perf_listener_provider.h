// Makes a listener for each encoder. Registered with EncodingPerfListenerSingleton.

#ifndef KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_PROVIDER_H
#define KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_PROVIDER_H

#include "foundation/export.h"
#include "foundation/i_encoding_perf_listener_ptr.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API IEncodingPerfListenerProvider {
 public:
  IEncodingPerfListenerProvider();
  IEncodingPerfListenerProvider(const IEncodingPerfListenerProvider& other);
  IEncodingPerfListenerProvider& operator=(const IEncodingPerfListenerProvider& other);
  virtual ~IEncodingPerfListenerProvider();

  // A new listener for the encoder `name` (UTF-8). Called from any thread.
  virtual IEncodingPerfListenerPtr new_encoding_perf_listener(const char* name) = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_PROVIDER_H
