#include "media/data_track_descriptor.h"

namespace Korvane::Media {

struct DataTrackDescriptorPrivate {};

DataTrackDescriptor::DataTrackDescriptor() : private_(new DataTrackDescriptorPrivate) {}

DataTrackDescriptor::DataTrackDescriptor(const DataTrackDescriptor& other) = default;

DataTrackDescriptor& DataTrackDescriptor::operator=(const DataTrackDescriptor& other) {
  if (this != &other) {
    private_ = other.private_;
    TrackDescriptor::operator=(other);
  }
  return *this;
}

DataTrackDescriptor::~DataTrackDescriptor() = default;

TrackDescriptor* DataTrackDescriptor::clone() const { return new DataTrackDescriptor(*this); }

}  // namespace Korvane::Media
