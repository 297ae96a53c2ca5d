#include "media/i_frame_provider.h"

namespace Korvane::Media {

IFrameProvider::IFrameProvider() = default;

IFrameProvider::IFrameProvider(const IFrameProvider& other) = default;

IFrameProvider& IFrameProvider::operator=(const IFrameProvider& other) = default;

IFrameProvider::~IFrameProvider() = default;

}  // namespace Korvane::Media
