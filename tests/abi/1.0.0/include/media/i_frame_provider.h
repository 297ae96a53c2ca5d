// A source of frames: a file, a device, a stream. Shared by FrameProviderPtr. Apart from start()
// and stop(), which any thread may call, it is used by one thread at a time. Failures are raised as
// Exception, with the code and text of the module that implements it; the provider stays usable.

#ifndef KV_ENGINE_MEDIA_I_FRAME_PROVIDER_H
#define KV_ENGINE_MEDIA_I_FRAME_PROVIDER_H

#include "foundation/export.h"
#include "foundation/frame_ptr.h"
#include "foundation/rational32.h"
#include "foundation/types.h"
#include "media/i_provider_ctrl.h"

namespace Korvane {
namespace Media {

class TrackDescriptor;

class KV_ENGINE_API IFrameProvider : public IProviderCtrl {
 public:
  IFrameProvider();
  IFrameProvider(const IFrameProvider& other);
  IFrameProvider& operator=(const IFrameProvider& other);
  ~IFrameProvider() override;

  // Opens `source`: a file, an address or a device by name (UTF-8, not null), as the module
  // understands it. What was open is closed first. The next frame read is number 0. A started
  // provider stays started.
  virtual void open(const char* source) = 0;

  // Frees what open() took; without effect when nothing is open. Frames that were read stay valid.
  virtual void close() = 0;

  // Frames per second; 0/1 while nothing is open.
  virtual Rational32 edit_rate() const = 0;

  // Frames from the start to the end; -1 when that is not known, as for live sources
  // and while nothing is open.
  virtual long long frame_count() const = 0;

  // 0 while nothing is open.
  virtual size_t track_count() const = 0;

  // Describes a track; null when `index` is not below track_count(). Valid until close() or open().
  virtual const TrackDescriptor* track_at(size_t index) const = 0;

  // Lets the next read give frame `number`. Answers false, and leaves the position, where the
  // source has no such frame or cannot go there.
  virtual bool seek(unsigned long long number) = 0;

  // The next frame, waited for if need be; an empty handle at the end, which at_end() tells, and
  // while the source is not started or was stopped.
  virtual FramePtr read_frame() = 0;

  // Whether the last read came upon the end of the source. A seek goes back from there.
  virtual bool at_end() const = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_FRAME_PROVIDER_H
