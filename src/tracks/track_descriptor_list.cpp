#include "media/track_descriptor_list.h"

#include <boost/shared_ptr.hpp>
#include <vector>

#include "media/track_descriptor.h"

namespace Korvane::Media {

// No element is null, and none is shared with another list.
struct TrackDescriptorListPrivate {
  using Track = boost::shared_ptr<TrackDescriptor>;

  TrackDescriptorListPrivate() = default;
  TrackDescriptorListPrivate(const TrackDescriptorListPrivate& other) {
    tracks.reserve(other.tracks.size());
    for (const Track& track : other.tracks) tracks.emplace_back(track->clone());
  }
  TrackDescriptorListPrivate& operator=(const TrackDescriptorListPrivate&) = delete;
  ~TrackDescriptorListPrivate() = default;

  std::vector<Track> tracks;
};

TrackDescriptorList::TrackDescriptorList() : private_(new TrackDescriptorListPrivate) {}

TrackDescriptorList::TrackDescriptorList(const TrackDescriptorList& other) = default;

TrackDescriptorList& TrackDescriptorList::operator=(const TrackDescriptorList& other) {
  if (this != &other) {
    // The elements may be of callers' classes, which see that they end before the copy begins.
    private_->tracks.clear();
    private_ = other.private_;
  }
  return *this;
}

TrackDescriptorList::~TrackDescriptorList() = default;

void TrackDescriptorList::add_track(const TrackDescriptor& descriptor) {
  private_->tracks.push_back(TrackDescriptorListPrivate::Track(descriptor.clone()));
}

size_t TrackDescriptorList::size() const { return private_->tracks.size(); }

const TrackDescriptor* TrackDescriptorList::track_at(size_t index) const {
  return index < size() ? private_->tracks[index].get() : nullptr;
}

}  // namespace Korvane::Media
