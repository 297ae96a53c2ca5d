#include "media/media_sample_listener.h"

namespace Korvane::Media {

MediaSampleListener::MediaSampleListener() = default;

MediaSampleListener::MediaSampleListener(const MediaSampleListener&) = default;

MediaSampleListener& MediaSampleListener::operator=(const MediaSampleListener&) = default;

MediaSampleListener::~MediaSampleListener() = default;

}  // namespace Korvane::Media
