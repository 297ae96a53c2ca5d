// One statistics sample of a stream of SMPTE ST 2110: video (ST 2110-20, -22) and sound (ST
// 2110-30, -31) are sent apart, so each has a rate of its own. Values are kept as they are set;
// none is checked or derived. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_H
#define KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct ST2110StreamStatsDataPrivate;

class KV_ENGINE_API ST2110StreamStatsData {
 public:
  // All 0.
  ST2110StreamStatsData();

  ST2110StreamStatsData(const ST2110StreamStatsData& other);
  ST2110StreamStatsData& operator=(const ST2110StreamStatsData& other);
  ~ST2110StreamStatsData();

  // When the sample was taken, on the clock of the code that fills the record.
  unsigned long long timestamp() const;
  void timestamp(unsigned long long value);

  // Frames received with errors.
  unsigned long long error_frames() const;
  void error_frames(unsigned long long value);

  // Bits per second.
  double video_bps_rate() const;
  void video_bps_rate(double value);

  // Bits per second.
  double sound_bps_rate() const;
  void sound_bps_rate(double value);

  // Equal when all four values are, rates exactly: a sample with a NaN differs from every sample,
  // itself included.
  bool operator==(const ST2110StreamStatsData& other) const;
  bool operator!=(const ST2110StreamStatsData& other) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<ST2110StreamStatsDataPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_H
