// A shared handle to a media sample: copies share the sample, and the last one deletes it.
//
// Distinct handles to one sample may be copied, reset and destroyed on several threads at once. A
// single handle is not guarded, nor is the sample. Where an operation fails, by std::bad_alloc,
// every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_MEDIA_SAMPLE_SHARED_PTR_H
#define KV_ENGINE_FOUNDATION_MEDIA_SAMPLE_SHARED_PTR_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class MediaSample;

class KV_ENGINE_API MediaSampleSharedPtr {
 public:
  // Holds nothing.
  MediaSampleSharedPtr();

  // Takes over `sample`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  MediaSampleSharedPtr(MediaSample* sample);

  // Shares what `other` holds.
  MediaSampleSharedPtr(const MediaSampleSharedPtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the sample that goes. On failure this handle holds nothing. Self-assignment
  // does nothing.
  MediaSampleSharedPtr& operator=(const MediaSampleSharedPtr& other);

  ~MediaSampleSharedPtr();

  // Releases what this handle holds, then takes over `sample`, or nothing. The sample that it holds
  // already must not be given: it would be deleted first. On failure `sample` is deleted, and this
  // handle holds nothing.
  void reset(MediaSample* sample);
  void reset();

  // Null while nothing is held.
  MediaSample* get() const;
  MediaSample* operator->() const;

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_MEDIA_SAMPLE_SHARED_PTR_H
