// A shared handle to a frame provider: copies share the provider, and the last one deletes it.
//
// Distinct handles to one provider may be copied, reset and destroyed on several threads at once. A
// single handle is not guarded, nor is the provider. Where an operation fails, by std::bad_alloc,
// every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_FRAME_PROVIDER_PTR_H
#define KV_ENGINE_FOUNDATION_FRAME_PROVIDER_PTR_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class IFrameProvider;

class KV_ENGINE_API FrameProviderPtr {
 public:
  // Holds nothing.
  FrameProviderPtr();

  // Takes over `provider`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  FrameProviderPtr(IFrameProvider* provider);

  // Shares what `other` holds.
  FrameProviderPtr(const FrameProviderPtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the provider that goes. On failure this handle holds nothing. Self-assignment
  // does nothing.
  FrameProviderPtr& operator=(const FrameProviderPtr& other);

  ~FrameProviderPtr();

  // Releases what this handle holds, then takes over `provider`, or nothing. The provider that it
  // holds already must not be given: it would be deleted first. On failure `provider` is deleted,
  // and this handle holds nothing.
  void reset(IFrameProvider* provider);
  void reset();

  // Null while nothing is held.
  IFrameProvider* get() const;
  IFrameProvider* operator->() const;

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_FRAME_PROVIDER_PTR_H
