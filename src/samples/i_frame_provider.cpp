#include "media/i_frame_provider.h"

namespace Korvane::Media {

IFrameProvider::IFrameProvider() = default;

IFrameProvider::IFrameProvider(const IFrameProvider&) = default;

IFrameProvider& IFrameProvider::operator=(const IFrameProvider&) = default;

IFrameProvider::~IFrameProvider() = default;

}  // namespace Korvane::Media
