// Samples of SRT statistics against a plain structure of the same fields.

#include <memory>
#include <vector>

#include "media/srt_stream_stats_data.h"
#include "media/srt_stream_stats_data_list.h"
#include "side.h"

namespace Korvane {
namespace {

using Media::SRTStreamStatsData;
using Media::SRTStreamStatsDataList;

// Compared field by field, as the language does it.
struct PlainSample {
  using Count = unsigned long long;
  Count timestamp = 1;
  Count packets_sent = 0, packets_received = 0;
  double ms_rtt = 0;
  Count packets_lost = 0;
  double bitrate = 0, latency = 0;
  Count packets_retransmitted = 0, pkt_snd_loss = 0, pkt_rcv_loss = 0, pkt_retrans = 0;
  Count pkt_sent_ack = 0, pkt_recv_ack = 0, pkt_sent_nak = 0, pkt_recv_nak = 0;
  double mbps_send_rate = 0;
  Count snd_duration = 0, pkt_reorder_distance = 0;
  double pkt_rcv_avg_belated_time = 0;
  Count pkt_rcv_belated = 0, pkt_snd_drop = 0, pkt_rcv_undecrypt = 0;
  double pkt_send_period = 0;
  Count pkt_flow_window = 0, pkt_congestion_window = 0, pkt_flight_size = 0;
  double mbps_bandwidth = 0, mbps_max_bandwidth = 0;
  Count byte_mss = 0, pkt_snd_buffer = 0, ms_snd_buffer = 0, ms_send_delay = 0;
  Count pkt_rcv_buffer = 0, ms_rcv_buffer = 0, pkt_reorder_tolerance = 0;

  bool operator==(const PlainSample&) const = default;
};
static_assert(sizeof(PlainSample) == 35 * 8);

SRTStreamStatsData sample() {
  SRTStreamStatsData result;
  result.timestamp(1);
  return result;
}

const bool kCompare[] = {
    measure("srt_compare/ours",
            [a = sample(), b = sample()] {
              benchmark::ClobberMemory();
              return a == b;
            }),
    measure("srt_compare/plain structure",
            [a = std::make_unique<PlainSample>().release(),
             b = std::make_unique<PlainSample>().release()] {
              benchmark::ClobberMemory();
              return *a == *b;
            }),
};

const bool kCopy[] = {
    measure("srt_copy/ours",
            [held = sample()] {
              const SRTStreamStatsData copy(held);
              benchmark::DoNotOptimize(&copy);
              return 0;
            }),
    measure("srt_copy/plain structure",
            [held = PlainSample()] {
              const auto copy = std::make_unique<PlainSample>(held);
              benchmark::DoNotOptimize(copy.get());
              return 0;
            }),
};

constexpr int kSamples = 100;

const bool kAppend[] = {
    measure("srt_append_100/ours",
            [held = sample()] {
              SRTStreamStatsDataList list;
              for (int i = 0; i < kSamples; ++i) list.add_value(held);
              benchmark::DoNotOptimize(list.value_at(0));
              return 0;
            }),
    measure("srt_append_100/plain structure",
            [held = PlainSample()] {
              std::vector<PlainSample> list;
              for (int i = 0; i < kSamples; ++i) {
                list.push_back(held);
                benchmark::ClobberMemory();
              }
              benchmark::DoNotOptimize(list.data());
              return 0;
            }),
};

}  // namespace
}  // namespace Korvane
