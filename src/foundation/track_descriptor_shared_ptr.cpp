#include "foundation/track_descriptor_shared_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/track_descriptor.h"

namespace Korvane::Media {

#define KV_HANDLE TrackDescriptorSharedPtr
#define KV_OBJECT TrackDescriptor
#define KV_HANDLE_RESET_CONST const
#include "foundation/handle_members.inc"

bool TrackDescriptorSharedPtr::operator==(const TrackDescriptorSharedPtr& other) {
  return get() == other.get();
}

}  // namespace Korvane::Media
