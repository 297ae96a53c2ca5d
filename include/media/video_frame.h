// A picture: the sample that holds its pixels, how to read them, and a number.

#ifndef KV_ENGINE_MEDIA_VIDEO_FRAME_H
#define KV_ENGINE_MEDIA_VIDEO_FRAME_H

#include "foundation/export.h"
#include "foundation/media_sample_shared_ptr.h"
#include "media/image_info.h"

namespace Korvane {
namespace Media {

// Copying and moving alike share the sample, so a moved-from frame still holds it. Both allocate a
// handle. When memory runs out in an assignment, the frame has the number and the image of the
// other, and no sample.
struct KV_ENGINE_API VideoFrame {
  // Number 0, ImageInfo(), no sample.
  VideoFrame();

  // Shares `sample`, which may hold nothing.
  VideoFrame(MediaSampleSharedPtr sample, const ImageInfo& image, unsigned int number);

  VideoFrame(const VideoFrame& other);
  VideoFrame& operator=(const VideoFrame& other);

  // These copy, and so may fail.
  VideoFrame(VideoFrame&& other);             // NOLINT(performance-noexcept-move-constructor)
  VideoFrame& operator=(VideoFrame&& other);  // NOLINT(performance-noexcept-move-constructor)

  ~VideoFrame();

  unsigned int number;          // given by the engine, which gives it its meaning
  ImageInfo image;              // how to read the pixels
  MediaSampleSharedPtr sample;  // the pixels; may hold nothing
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_VIDEO_FRAME_H
