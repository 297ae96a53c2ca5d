// A track of data. It has no attributes beyond those of track_descriptor.h; its type is what
// it tells.

#ifndef KV_ENGINE_MEDIA_DATA_TRACK_DESCRIPTOR_H
#define KV_ENGINE_MEDIA_DATA_TRACK_DESCRIPTOR_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/track_descriptor.h"

namespace Korvane {
namespace Media {

struct DataTrackDescriptorPrivate;

class KV_ENGINE_API DataTrackDescriptor : public TrackDescriptor {
 public:
  // Every attribute absent, essence kind EssenceNone.
  DataTrackDescriptor();

  DataTrackDescriptor(const DataTrackDescriptor& other);
  DataTrackDescriptor& operator=(const DataTrackDescriptor& other);
  ~DataTrackDescriptor() override;

  TrackDescriptor* clone() const override;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<DataTrackDescriptorPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_DATA_TRACK_DESCRIPTOR_H
