#include "media/media_sample.h"

namespace Korvane::Media {

MediaSample::MediaSample() = default;

MediaSample::MediaSample(const MediaSample&) = default;

MediaSample::MediaSample(MediaSample&&) noexcept = default;

MediaSample& MediaSample::operator=(const MediaSample&) = default;

MediaSample& MediaSample::operator=(MediaSample&&) noexcept = default;

MediaSample::~MediaSample() = default;

}  // namespace Korvane::Media
