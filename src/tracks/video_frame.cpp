#include "media/video_frame.h"

namespace Korvane::Media {

VideoFrame::VideoFrame() : number(0) {}

// Published by value.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
VideoFrame::VideoFrame(MediaSampleSharedPtr new_sample, const ImageInfo& new_image,
                       unsigned int new_number)
    : number(new_number), image(new_image), sample(new_sample) {}

// A handle has no move of its own, so the moves copy it, and may run out of memory.
VideoFrame::VideoFrame(const VideoFrame& other) = default;
// NOLINTNEXTLINE(performance-noexcept-move-constructor)
VideoFrame::VideoFrame(VideoFrame&& other) = default;
VideoFrame& VideoFrame::operator=(const VideoFrame& other) = default;
// NOLINTNEXTLINE(performance-noexcept-move-constructor)
VideoFrame& VideoFrame::operator=(VideoFrame&& other) = default;
VideoFrame::~VideoFrame() = default;

}  // namespace Korvane::Media
