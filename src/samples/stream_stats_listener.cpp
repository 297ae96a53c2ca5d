#include "media/stream_stats_listener.h"

namespace Korvane::Media {

StreamStatsListener::StreamStatsListener() = default;

StreamStatsListener::StreamStatsListener(const StreamStatsListener& other) = default;

StreamStatsListener& StreamStatsListener::operator=(const StreamStatsListener& other) = default;

StreamStatsListener::~StreamStatsListener() = default;

}  // namespace Korvane::Media
