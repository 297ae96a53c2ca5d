// Receives how an encoder keeps up. Shared by IEncodingPerfListenerPtr. Calls come on the thread of
// the encoder, one after the other, and no exception may leave them.

#ifndef KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_H
#define KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_H

#include "foundation/export.h"
#include "foundation/types.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API IEncodingPerfListener {
 public:
  IEncodingPerfListener();
  IEncodingPerfListener(const IEncodingPerfListener& other);
  IEncodingPerfListener& operator=(const IEncodingPerfListener& other);
  virtual ~IEncodingPerfListener();

  // Frame `number`, IFrame::number() of what was encoded, became `size` bytes and took
  // `duration` nanoseconds.
  virtual void frame_encoded(unsigned long long number, unsigned long long duration,
                             size_t size) = 0;

  // Frame `number` was left out, since the encoder was too slow.
  virtual void frame_dropped(unsigned long long number) = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_ENCODING_PERF_LISTENER_H
