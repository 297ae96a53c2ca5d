// A track made of others. It has no attributes beyond those of track_descriptor.h; its type is what
// it tells.

#ifndef KV_ENGINE_MEDIA_COMPOUND_TRACK_DESCRIPTOR_H
#define KV_ENGINE_MEDIA_COMPOUND_TRACK_DESCRIPTOR_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/track_descriptor.h"

namespace Korvane {
namespace Media {

struct CompoundTrackDescriptorPrivate;

class KV_ENGINE_API CompoundTrackDescriptor : public TrackDescriptor {
 public:
  // Every attribute absent, essence kind EssenceNone.
  CompoundTrackDescriptor();

  CompoundTrackDescriptor(const CompoundTrackDescriptor& other);
  CompoundTrackDescriptor& operator=(const CompoundTrackDescriptor& other);
  ~CompoundTrackDescriptor() override;

  TrackDescriptor* clone() const override;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<CompoundTrackDescriptorPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_COMPOUND_TRACK_DESCRIPTOR_H
