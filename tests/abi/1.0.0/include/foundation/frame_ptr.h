// A shared handle to a frame: copies share the frame, and the last one deletes it.
//
// Distinct handles to one frame may be copied, reset and destroyed on several threads at once. A
// single handle is not guarded, nor is the frame. Where an operation fails, by std::bad_alloc,
// every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_FRAME_PTR_H
#define KV_ENGINE_FOUNDATION_FRAME_PTR_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class IFrame;

class KV_ENGINE_API FramePtr {
 public:
  // Holds nothing.
  FramePtr();

  // Takes over `frame`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  FramePtr(IFrame* frame);

  // Shares what `other` holds.
  FramePtr(const FramePtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the frame that goes. On failure this handle holds nothing. Self-assignment
  // does nothing.
  FramePtr& operator=(const FramePtr& other);

  ~FramePtr();

  // Releases what this handle holds, then takes over `frame`, or nothing. The frame that it holds
  // already must not be given: it would be deleted first. On failure `frame` is deleted, and this
  // handle holds nothing.
  void reset(IFrame* frame);
  void reset();

  // Null while nothing is held.
  IFrame* get() const;
  IFrame* operator->() const;

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_FRAME_PTR_H
