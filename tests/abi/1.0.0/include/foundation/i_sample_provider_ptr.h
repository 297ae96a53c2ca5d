// A shared handle to a sample provider: copies share the provider, and the last one deletes it.
//
// Distinct handles to one provider may be copied, reset and destroyed on several threads at once. A
// single handle is not guarded, nor is the provider. Where an operation fails, by std::bad_alloc,
// every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_I_SAMPLE_PROVIDER_PTR_H
#define KV_ENGINE_FOUNDATION_I_SAMPLE_PROVIDER_PTR_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class ISampleProvider;

class KV_ENGINE_API ISampleProviderPtr {
 public:
  // Holds nothing.
  ISampleProviderPtr();

  // Takes over `provider`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  ISampleProviderPtr(ISampleProvider* provider);

  // Shares what `other` holds.
  ISampleProviderPtr(const ISampleProviderPtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the provider that goes. On failure this handle holds nothing. Self-assignment
  // does nothing.
  ISampleProviderPtr& operator=(const ISampleProviderPtr& other);

  ~ISampleProviderPtr();

  // Releases what this handle holds, then takes over `provider`, or nothing. The provider that it
  // holds already must not be given: it would be deleted first. On failure `provider` is deleted,
  // and this handle holds nothing.
  void reset(ISampleProvider* provider);
  void reset();

  // Null while nothing is held.
  ISampleProvider* get() const;
  ISampleProvider* operator->() const;

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_I_SAMPLE_PROVIDER_PTR_H
