#include "media/srt_stream_stats_data.h"

#include <cmath>
#include <cstring>

namespace Korvane::Media {
namespace {

using SrtCount = unsigned long long;

}  // namespace

// Every field once, in the order of the record, in three runs: the middle one is compared by hand.
// clang-format off
#define KV_SRT_FIELDS_COMPARED_FIRST(FIELD) \
  FIELD(SrtCount, timestamp)                \
  FIELD(SrtCount, packets_sent)             \
  FIELD(SrtCount, packets_received)         \
  FIELD(double,   ms_rtt)                   \
  FIELD(SrtCount, packets_lost)
#define KV_SRT_FIELDS_COMPARED_APART(FIELD) \
  FIELD(double,   bitrate)                  \
  FIELD(double,   latency)                  \
  FIELD(SrtCount, packets_retransmitted)
#define KV_SRT_FIELDS_COMPARED_LAST(FIELD)  \
  FIELD(SrtCount, pkt_snd_loss)             \
  FIELD(SrtCount, pkt_rcv_loss)             \
  FIELD(SrtCount, pkt_retrans)              \
  FIELD(SrtCount, pkt_sent_ack)             \
  FIELD(SrtCount, pkt_recv_ack)             \
  FIELD(SrtCount, pkt_sent_nak)             \
  FIELD(SrtCount, pkt_recv_nak)             \
  FIELD(double,   mbps_send_rate)           \
  FIELD(SrtCount, snd_duration)             \
  FIELD(SrtCount, pkt_reorder_distance)     \
  FIELD(double,   pkt_rcv_avg_belated_time) \
  FIELD(SrtCount, pkt_rcv_belated)          \
  FIELD(SrtCount, pkt_snd_drop)             \
  FIELD(SrtCount, pkt_rcv_undecrypt)        \
  FIELD(double,   pkt_send_period)          \
  FIELD(SrtCount, pkt_flow_window)          \
  FIELD(SrtCount, pkt_congestion_window)    \
  FIELD(SrtCount, pkt_flight_size)          \
  FIELD(double,   mbps_bandwidth)           \
  FIELD(double,   mbps_max_bandwidth)       \
  FIELD(SrtCount, byte_mss)                 \
  FIELD(SrtCount, pkt_snd_buffer)           \
  FIELD(SrtCount, ms_snd_buffer)            \
  FIELD(SrtCount, ms_send_delay)            \
  FIELD(SrtCount, pkt_rcv_buffer)           \
  FIELD(SrtCount, ms_rcv_buffer)            \
  FIELD(SrtCount, pkt_reorder_tolerance)
#define KV_SRT_FIELDS(FIELD)          \
  KV_SRT_FIELDS_COMPARED_FIRST(FIELD) \
  KV_SRT_FIELDS_COMPARED_APART(FIELD) \
  KV_SRT_FIELDS_COMPARED_LAST(FIELD)
// clang-format on

struct SRTStreamStatsDataPrivate {
#define KV_SRT_MEMBER(type, name) type name = 0;
  KV_SRT_FIELDS(KV_SRT_MEMBER)
#undef KV_SRT_MEMBER

  // The latency before the bit rate, and never packets_retransmitted.
  bool operator==(const SRTStreamStatsDataPrivate& other) const {
    // Most samples that are equal are so bit by bit. The fields alone have the last word.
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison,cert-exp42-c,cert-flp37-c)
    if (std::memcmp(this, &other, sizeof *this) == 0 && !has_nan()) return true;
#define KV_SRT_DIFFERENCE(type, name) \
  if (this->name != other.name) return false;
    KV_SRT_FIELDS_COMPARED_FIRST(KV_SRT_DIFFERENCE)
    KV_SRT_DIFFERENCE(double, latency)
    KV_SRT_DIFFERENCE(double, bitrate)
    KV_SRT_FIELDS_COMPARED_LAST(KV_SRT_DIFFERENCE)
#undef KV_SRT_DIFFERENCE
    return true;
  }

 private:
  bool has_nan() const {
    return std::isunordered(ms_rtt, bitrate) || std::isunordered(latency, mbps_send_rate) ||
           std::isunordered(pkt_rcv_avg_belated_time, pkt_send_period) ||
           std::isunordered(mbps_bandwidth, mbps_max_bandwidth);
  }
};

static_assert(sizeof(SRTStreamStatsDataPrivate) / 8 == 35, "35 fields of 64 bits");

SRTStreamStatsData::SRTStreamStatsData() : private_(new SRTStreamStatsDataPrivate) {}

SRTStreamStatsData::SRTStreamStatsData(const SRTStreamStatsData& other) = default;

SRTStreamStatsData& SRTStreamStatsData::operator=(const SRTStreamStatsData& other) = default;

SRTStreamStatsData::~SRTStreamStatsData() = default;

#define KV_SRT_GETTER_AND_SETTER(type, name)                       \
  type SRTStreamStatsData::name() const { return private_->name; } \
  void SRTStreamStatsData::name(type value) { private_->name = value; }
KV_SRT_FIELDS(KV_SRT_GETTER_AND_SETTER)
#undef KV_SRT_GETTER_AND_SETTER

bool SRTStreamStatsData::operator==(const SRTStreamStatsData& other) const {
  return *private_ == *other.private_;
}

bool SRTStreamStatsData::operator!=(const SRTStreamStatsData& other) const {
  return !(*this == other);
}

#undef KV_SRT_FIELDS_COMPARED_FIRST
#undef KV_SRT_FIELDS_COMPARED_APART
#undef KV_SRT_FIELDS_COMPARED_LAST
#undef KV_SRT_FIELDS

}  // namespace Korvane::Media
