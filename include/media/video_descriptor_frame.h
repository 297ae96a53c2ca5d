// A number and the descriptor of a picture, which belongs to somebody else and must outlive the
// record.

#ifndef KV_ENGINE_MEDIA_VIDEO_DESCRIPTOR_FRAME_H
#define KV_ENGINE_MEDIA_VIDEO_DESCRIPTOR_FRAME_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class TrackDescriptor;

struct KV_ENGINE_API VideoDescriptorFrame {
  // Keeps the pointer, not the descriptor.
  VideoDescriptorFrame(unsigned int number, const TrackDescriptor* descriptor);

  VideoDescriptorFrame(const VideoDescriptorFrame& other);
  VideoDescriptorFrame& operator=(const VideoDescriptorFrame& other);
  VideoDescriptorFrame& operator=(VideoDescriptorFrame&& other) noexcept;  // copies
  ~VideoDescriptorFrame();  // NOLINT(performance-trivially-destructible): exported

  unsigned int number;                // given by the engine, which gives it its meaning
  const TrackDescriptor* descriptor;  // not owned; may be null
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_VIDEO_DESCRIPTOR_FRAME_H
