#include "media/frame_listener.h"

namespace Korvane::Media {

FrameListener::FrameListener() = default;

FrameListener::FrameListener(const FrameListener&) = default;

FrameListener& FrameListener::operator=(const FrameListener&) = default;

FrameListener::~FrameListener() = default;

}  // namespace Korvane::Media
