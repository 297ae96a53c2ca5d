#include "media/st2110_stream_stats_data.h"

namespace Korvane::Media {

struct ST2110StreamStatsDataPrivate {
  unsigned long long timestamp = 0;
  unsigned long long error_frames = 0;
  double video_bps_rate = 0;
  double sound_bps_rate = 0;

  bool operator==(const ST2110StreamStatsDataPrivate& other) const = default;
};

ST2110StreamStatsData::ST2110StreamStatsData() : private_(new ST2110StreamStatsDataPrivate) {}

ST2110StreamStatsData::ST2110StreamStatsData(const ST2110StreamStatsData& other) = default;

ST2110StreamStatsData& ST2110StreamStatsData::operator=(const ST2110StreamStatsData& other) =
    default;

ST2110StreamStatsData::~ST2110StreamStatsData() = default;

unsigned long long ST2110StreamStatsData::timestamp() const { return private_->timestamp; }

void ST2110StreamStatsData::timestamp(unsigned long long value) { private_->timestamp = value; }

unsigned long long ST2110StreamStatsData::error_frames() const { return private_->error_frames; }

void ST2110StreamStatsData::error_frames(unsigned long long value) {
  private_->error_frames = value;
}

double ST2110StreamStatsData::video_bps_rate() const { return private_->video_bps_rate; }

void ST2110StreamStatsData::video_bps_rate(double value) { private_->video_bps_rate = value; }

double ST2110StreamStatsData::sound_bps_rate() const { return private_->sound_bps_rate; }

void ST2110StreamStatsData::sound_bps_rate(double value) { private_->sound_bps_rate = value; }

bool ST2110StreamStatsData::operator==(const ST2110StreamStatsData& other) const {
  return *private_ == *other.private_;
}

bool ST2110StreamStatsData::operator!=(const ST2110StreamStatsData& other) const {
  return !(*this == other);
}

}  // namespace Korvane::Media
