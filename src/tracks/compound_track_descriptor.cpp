#include "media/compound_track_descriptor.h"

namespace Korvane::Media {

struct CompoundTrackDescriptorPrivate {};

CompoundTrackDescriptor::CompoundTrackDescriptor() : private_(new CompoundTrackDescriptorPrivate) {}

CompoundTrackDescriptor::CompoundTrackDescriptor(const CompoundTrackDescriptor& other) = default;

CompoundTrackDescriptor& CompoundTrackDescriptor::operator=(const CompoundTrackDescriptor& other) {
  if (this != &other) {
    private_ = other.private_;
    TrackDescriptor::operator=(other);
  }
  return *this;
}

CompoundTrackDescriptor::~CompoundTrackDescriptor() = default;

TrackDescriptor* CompoundTrackDescriptor::clone() const {
  return new CompoundTrackDescriptor(*this);
}

}  // namespace Korvane::Media
