// Descriptors of tracks, in the order in which they were added. The list holds clones of its own:
// later changes to what was added do not reach it. A value: copies are deep and independent. Not
// synchronised.

#ifndef KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_LIST_H
#define KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"

namespace Korvane {
namespace Media {

class TrackDescriptor;
struct TrackDescriptorListPrivate;

class KV_ENGINE_API TrackDescriptorList {
 public:
  // Empty.
  TrackDescriptorList();

  TrackDescriptorList(const TrackDescriptorList& other);

  // Ends the descriptors that this list holds before it clones those of `other`; when a clone
  // fails, this list is left empty.
  TrackDescriptorList& operator=(const TrackDescriptorList& other);

  ~TrackDescriptorList();

  // Appends a clone.
  void add_track(const TrackDescriptor& descriptor);

  size_t size() const;

  // Null when `index`, counted from 0, is not below the size. Otherwise valid until the list is
  // assigned to or ends.
  const TrackDescriptor* track_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<TrackDescriptorListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_LIST_H
