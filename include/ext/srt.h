// SRTStreamStatsData from the statistics of libsrt. Header-only, C++17. Declares nothing where
// <srt/srt.h> cannot be found; where it can, KV_ENGINE_EXT_HAS_SRT is defined.
//
//   SRT_TRACEBSTATS counters;
//   srt_bstats(socket, &counters, 1);  // 1: interval figures begin anew
//   samples.add_value(Korvane::Ext::from_srt(counters));
//
// What the record leaves open is then: timestamp in milliseconds since the connection began,
// bitrate in megabits per second, latency in milliseconds, snd_duration and pkt_send_period in
// microseconds. The loss figures that both sides of a connection have are taken from one of them,
// as are bit rate and latency.

#ifndef KV_ENGINE_EXT_SRT_H
#define KV_ENGINE_EXT_SRT_H

#if __has_include(<srt/srt.h>)
#define KV_ENGINE_EXT_HAS_SRT 1

#include <srt/srt.h>

#include "media/srt_stream_stats_data.h"

namespace Korvane::Ext {

// Whose figures packets_lost, bitrate and latency are.
enum class SrtSide { Receiver, Sender };

namespace Detail {

// libsrt counts in signed numbers; a negative one would be a fault of its own.
template <typename Number>
unsigned long long srt_count(Number value) {
  return value < 0 ? 0 : static_cast<unsigned long long>(value);
}

inline void copy_srt_totals(const SRT_TRACEBSTATS& from, SrtSide side,
                            Media::SRTStreamStatsData& to) {
  const bool receives = side == SrtSide::Receiver;
  to.timestamp(srt_count(from.msTimeStamp));
  to.packets_sent(srt_count(from.pktSentTotal));
  to.packets_received(srt_count(from.pktRecvTotal));
  to.ms_rtt(from.msRTT);
  to.packets_lost(srt_count(receives ? from.pktRcvLossTotal : from.pktSndLossTotal));
  to.bitrate(receives ? from.mbpsRecvRate : from.mbpsSendRate);
  to.latency(receives ? from.msRcvTsbPdDelay : from.msSndTsbPdDelay);
  to.packets_retransmitted(srt_count(from.pktRetransTotal));
}

inline void copy_srt_packets(const SRT_TRACEBSTATS& from, Media::SRTStreamStatsData& to) {
  to.pkt_snd_loss(srt_count(from.pktSndLoss));
  to.pkt_rcv_loss(srt_count(from.pktRcvLoss));
  to.pkt_retrans(srt_count(from.pktRetrans));
  to.pkt_sent_ack(srt_count(from.pktSentACK));
  to.pkt_recv_ack(srt_count(from.pktRecvACK));
  to.pkt_sent_nak(srt_count(from.pktSentNAK));
  to.pkt_recv_nak(srt_count(from.pktRecvNAK));
  to.mbps_send_rate(from.mbpsSendRate);
  to.snd_duration(srt_count(from.usSndDuration));
  to.pkt_reorder_distance(srt_count(from.pktReorderDistance));
  to.pkt_rcv_avg_belated_time(from.pktRcvAvgBelatedTime);
  to.pkt_rcv_belated(srt_count(from.pktRcvBelated));
  to.pkt_snd_drop(srt_count(from.pktSndDrop));
  to.pkt_rcv_undecrypt(srt_count(from.pktRcvUndecrypt));
}

inline void copy_srt_state(const SRT_TRACEBSTATS& from, Media::SRTStreamStatsData& to) {
  to.pkt_send_period(from.usPktSndPeriod);
  to.pkt_flow_window(srt_count(from.pktFlowWindow));
  to.pkt_congestion_window(srt_count(from.pktCongestionWindow));
  to.pkt_flight_size(srt_count(from.pktFlightSize));
  to.mbps_bandwidth(from.mbpsBandwidth);
  to.mbps_max_bandwidth(from.mbpsMaxBW);
  to.byte_mss(srt_count(from.byteMSS));
  to.pkt_snd_buffer(srt_count(from.pktSndBuf));
  to.ms_snd_buffer(srt_count(from.msSndBuf));
  to.ms_send_delay(srt_count(from.msSndTsbPdDelay));
  to.pkt_rcv_buffer(srt_count(from.pktRcvBuf));
  to.ms_rcv_buffer(srt_count(from.msRcvBuf));
  to.pkt_reorder_tolerance(srt_count(from.pktReorderTolerance));
}

}  // namespace Detail

inline Media::SRTStreamStatsData from_srt(const SRT_TRACEBSTATS& counters,
                                          SrtSide side = SrtSide::Receiver) {
  Media::SRTStreamStatsData sample;
  Detail::copy_srt_totals(counters, side, sample);
  Detail::copy_srt_packets(counters, sample);
  Detail::copy_srt_state(counters, sample);
  return sample;
}

}  // namespace Korvane::Ext

#endif  // __has_include(<srt/srt.h>)
#endif  // KV_ENGINE_EXT_SRT_H
