// Copying a shared handle and giving the copy up again.

#include <memory>

extern "C" {
#include <libavutil/buffer.h>
}

#include <boost/thread/lock_types.hpp>
#include <boost/thread/mutex.hpp>

#include "foundation/track_descriptor_shared_ptr.h"
#include "media/picture_track_descriptor.h"
#include "side.h"

namespace Korvane {
namespace {

using Media::PictureTrackDescriptor;
using Media::TrackDescriptorSharedPtr;

// What the copy of a handle cannot do without: an allocation for its part, a lock around the count
// each way, and the calls.
struct FloorShare {
  virtual ~FloorShare() = default;
  void* object;
  unsigned int* count;
  boost::mutex* mutex;
};

class FloorHandle {
 public:
  FloorHandle() : share_(new FloorShare) {
    share_->object = this;
    share_->count = new unsigned int(1);
    share_->mutex = new boost::mutex;
  }
  [[gnu::noinline]] FloorHandle(const FloorHandle& other) : share_(new FloorShare(*other.share_)) {
    const boost::unique_lock<boost::mutex> lock(*share_->mutex);
    ++*share_->count;
  }
  FloorHandle& operator=(const FloorHandle&) = delete;
  [[gnu::noinline]] ~FloorHandle() {
    {
      const boost::unique_lock<boost::mutex> lock(*share_->mutex);
      --*share_->count;
    }
    delete share_;
  }

 private:
  FloorShare* share_;
};

const bool kHandleCopy[] = {
    measure("handle_copy/ours",
            [held = TrackDescriptorSharedPtr(new PictureTrackDescriptor)] {
              const TrackDescriptorSharedPtr copy(held);
              benchmark::DoNotOptimize(&copy);
              return 0;
            }),
    measure("handle_copy/libavutil",
            [held = av_buffer_alloc(16)] {
              AVBufferRef* copy = av_buffer_ref(held);
              benchmark::DoNotOptimize(copy);
              av_buffer_unref(&copy);
              return 0;
            }),
    measure("handle_copy/std::shared_ptr",
            [held = std::make_shared<int>(1)] {
              const std::shared_ptr<int> copy(held);
              benchmark::DoNotOptimize(&copy);
              return 0;
            }),
    measure("handle_copy/floor",
            [held = std::make_shared<FloorHandle>()] {
              const FloorHandle copy(*held);
              benchmark::DoNotOptimize(&copy);
              return 0;
            }),
};

}  // namespace
}  // namespace Korvane
