#include "media/extended_media_sample.h"

namespace Korvane::Media {

ExtendedMediaSample::ExtendedMediaSample() = default;

ExtendedMediaSample::ExtendedMediaSample(const ExtendedMediaSample&) = default;

ExtendedMediaSample::ExtendedMediaSample(ExtendedMediaSample&&) noexcept = default;

ExtendedMediaSample& ExtendedMediaSample::operator=(const ExtendedMediaSample&) = default;

ExtendedMediaSample& ExtendedMediaSample::operator=(ExtendedMediaSample&&) noexcept = default;

ExtendedMediaSample::~ExtendedMediaSample() = default;

}  // namespace Korvane::Media
