#include "media/extended_media_sample.h"

namespace Korvane::Media {

ExtendedMediaSample::ExtendedMediaSample() = default;

ExtendedMediaSample::ExtendedMediaSample(const ExtendedMediaSample& other) = default;

ExtendedMediaSample::ExtendedMediaSample(ExtendedMediaSample&& other) noexcept = default;

ExtendedMediaSample& ExtendedMediaSample::operator=(const ExtendedMediaSample& other) = default;

ExtendedMediaSample& ExtendedMediaSample::operator=(ExtendedMediaSample&& other) noexcept = default;

ExtendedMediaSample::~ExtendedMediaSample() = default;

}  // namespace Korvane::Media
