// A shared handle to a listener of the encoder's performance: copies share the listener, and the
// last one deletes it.
//
// Distinct handles to one listener may be copied, reset and destroyed on several threads at once. A
// single handle is not guarded, nor is the listener. Where an operation fails, by std::bad_alloc,
// every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_I_ENCODING_PERF_LISTENER_PTR_H
#define KV_ENGINE_FOUNDATION_I_ENCODING_PERF_LISTENER_PTR_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class IEncodingPerfListener;

class KV_ENGINE_API IEncodingPerfListenerPtr {
 public:
  // Holds nothing.
  IEncodingPerfListenerPtr();

  // Takes over `listener`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  IEncodingPerfListenerPtr(IEncodingPerfListener* listener);

  // Shares what `other` holds.
  IEncodingPerfListenerPtr(const IEncodingPerfListenerPtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the listener that goes. On failure this handle holds nothing. Self-assignment
  // does nothing.
  IEncodingPerfListenerPtr& operator=(const IEncodingPerfListenerPtr& other);

  ~IEncodingPerfListenerPtr();

  // Releases what this handle holds, then takes over `listener`, or nothing. The listener that it
  // holds already must not be given: it would be deleted first. On failure `listener` is deleted,
  // and this handle holds nothing.
  void reset(IEncodingPerfListener* listener);
  void reset();

  // Null while nothing is held.
  IEncodingPerfListener* get() const;
  IEncodingPerfListener* operator->() const;

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_I_ENCODING_PERF_LISTENER_PTR_H
