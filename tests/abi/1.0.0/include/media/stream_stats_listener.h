// Receives what happens to network streams. Implemented by whoever observes them; calls come on the
// threads that serve the streams, one after the other for each stream, and no exception may leave
// them. `stream` is the name (UTF-8) that the stream was configured with. Whatever is passed is
// valid during the call.

#ifndef KV_ENGINE_MEDIA_STREAM_STATS_LISTENER_H
#define KV_ENGINE_MEDIA_STREAM_STATS_LISTENER_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class SRTStreamStatsData;
class ST2110StreamStatsData;
class TrackBitRatesList;

class KV_ENGINE_API StreamStatsListener {
 public:
  StreamStatsListener();
  StreamStatsListener(const StreamStatsListener& other);
  StreamStatsListener& operator=(const StreamStatsListener& other);
  virtual ~StreamStatsListener();

  // The stream is up: the peer is connected, or the first packet came.
  virtual void stream_connected(const char* stream) = 0;

  // The stream is down. `reason` (UTF-8) is for people, and empty when it was ended on purpose.
  virtual void stream_disconnected(const char* stream, const char* reason) = 0;

  // A poll of an SRT connection.
  virtual void srt_stats_received(const char* stream, const SRTStreamStatsData& stats) = 0;

  // A poll of an SMPTE ST 2110 stream.
  virtual void st2110_stats_received(const char* stream, const ST2110StreamStatsData& stats) = 0;

  // The bit rate of each track of the stream since the former call.
  virtual void bit_rates_received(const char* stream, const TrackBitRatesList& rates) = 0;

  // `count` frames were lost since the former call; never 0.
  virtual void frames_dropped(const char* stream, unsigned long long count) = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_STREAM_STATS_LISTENER_H
