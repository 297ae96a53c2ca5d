#include "media/media_sample.h"

namespace Korvane::Media {

MediaSample::MediaSample() = default;

MediaSample::MediaSample(const MediaSample& other) = default;

MediaSample::MediaSample(MediaSample&& other) noexcept = default;

MediaSample& MediaSample::operator=(const MediaSample& other) = default;

MediaSample& MediaSample::operator=(MediaSample&& other) noexcept = default;

MediaSample::~MediaSample() = default;

}  // namespace Korvane::Media
