// A shared handle to a track descriptor: copies share the descriptor, and the last one deletes it.
//
// Distinct handles to one descriptor may be copied, reset and destroyed on several threads at once.
// A single handle is not guarded, nor is the descriptor. Where an operation fails, by
// std::bad_alloc, every handle stays usable.
//
// The module that made the object also destroys it, so the module stays loaded until the last
// handle is gone.

#ifndef KV_ENGINE_FOUNDATION_TRACK_DESCRIPTOR_SHARED_PTR_H
#define KV_ENGINE_FOUNDATION_TRACK_DESCRIPTOR_SHARED_PTR_H

#include "foundation/comparison.h"
#include "foundation/export.h"

namespace Korvane {
namespace Media {

class TrackDescriptor;

class KV_ENGINE_API TrackDescriptorSharedPtr {
 public:
  // Holds nothing.
  TrackDescriptorSharedPtr();

  // Takes over `descriptor`, which was made by new, or is null; it is deleted even if this fails.
  // Published without explicit; keep it so.
  TrackDescriptorSharedPtr(TrackDescriptor* descriptor);

  // Shares what `other` holds.
  TrackDescriptorSharedPtr(const TrackDescriptorSharedPtr& other);

  // First releases what this handle holds, then shares what `other` holds; `other` must therefore
  // not be a part of the descriptor that goes. On failure this handle holds nothing.
  // Self-assignment does nothing.
  TrackDescriptorSharedPtr& operator=(const TrackDescriptorSharedPtr& other);

  ~TrackDescriptorSharedPtr();

  // Releases what this handle holds, then takes over `descriptor`, or nothing. The descriptor that
  // it holds already must not be given: it would be deleted first. On failure `descriptor` is
  // deleted, and this handle holds nothing. Published const, though they change what the handle
  // holds.
  void reset(TrackDescriptor* descriptor) const;
  void reset() const;

  // Null while nothing is held.
  TrackDescriptor* get() const;
  TrackDescriptor* operator->() const;

  // Whether both hold the very same descriptor, or nothing; equal descriptors are not looked for.
  // Published without const; keep it so.
  bool operator==(const TrackDescriptorSharedPtr& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<TrackDescriptorSharedPtr, Left, Right> operator==(Left&& left,
                                                                            Right&& right) {
    return left.operator==(right);
  }

 private:
  struct Impl;

  Impl* impl_;  // never null, never shared; bare, since assignment releases before it copies
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_TRACK_DESCRIPTOR_SHARED_PTR_H
