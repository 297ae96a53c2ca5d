#include "media/stream_stats_listener.h"

namespace Korvane::Media {

StreamStatsListener::StreamStatsListener() = default;

StreamStatsListener::StreamStatsListener(const StreamStatsListener&) = default;

StreamStatsListener& StreamStatsListener::operator=(const StreamStatsListener&) = default;

StreamStatsListener::~StreamStatsListener() = default;

}  // namespace Korvane::Media
