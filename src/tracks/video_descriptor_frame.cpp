#include "media/video_descriptor_frame.h"

namespace Korvane::Media {

VideoDescriptorFrame::VideoDescriptorFrame(unsigned int new_number,
                                           const TrackDescriptor* new_descriptor)
    : number(new_number), descriptor(new_descriptor) {}

VideoDescriptorFrame::VideoDescriptorFrame(const VideoDescriptorFrame& other) = default;
VideoDescriptorFrame& VideoDescriptorFrame::operator=(const VideoDescriptorFrame& other) = default;
VideoDescriptorFrame& VideoDescriptorFrame::operator=(VideoDescriptorFrame&& other) noexcept =
    default;
VideoDescriptorFrame::~VideoDescriptorFrame() = default;

}  // namespace Korvane::Media
