// Receives the frames of a running source. Implemented by whoever wants them; calls come one after
// the other on the thread that reads the source, and no exception may leave them.

#ifndef KV_ENGINE_MEDIA_FRAME_LISTENER_H
#define KV_ENGINE_MEDIA_FRAME_LISTENER_H

#include "foundation/export.h"
#include "foundation/frame_ptr.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API FrameListener {
 public:
  FrameListener();
  FrameListener(const FrameListener& other);
  FrameListener& operator=(const FrameListener& other);
  virtual ~FrameListener();

  // `frame` is never empty; copy the handle to keep the frame past the call.
  virtual void frame_received(const FramePtr& frame) = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_FRAME_LISTENER_H
