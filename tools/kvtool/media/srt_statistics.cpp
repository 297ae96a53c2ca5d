#include "media/srt_statistics.h"

#include <algorithm>

namespace Korvane::Tool {
namespace {

using Media::SRTStreamStatsData;

unsigned long long count_of(long long counter) {
  return static_cast<unsigned long long>(std::max(0LL, counter));
}

struct SrtField {
  const char* name;
  void (*set)(SRTStreamStatsData& sample, const CBytePerfMon& counters);
  Cell (*get)(const SRTStreamStatsData& sample);
};

using Sample = SRTStreamStatsData;
using Counters = CBytePerfMon;

Cell srt_cell(unsigned long long value) { return static_cast<Integer>(value); }
Cell srt_cell(double value) { return value; }

// In the order of the record.
constexpr SrtField kSrtFields[] = {
    {"timestamp",
     [](Sample& to, const Counters& from) { to.timestamp(count_of(from.msTimeStamp)); },
     [](const Sample& from) { return srt_cell(from.timestamp()); }},
    {"packets_sent",
     [](Sample& to, const Counters& from) { to.packets_sent(count_of(from.pktSentTotal)); },
     [](const Sample& from) { return srt_cell(from.packets_sent()); }},
    {"packets_received",
     [](Sample& to, const Counters& from) { to.packets_received(count_of(from.pktRecvTotal)); },
     [](const Sample& from) { return srt_cell(from.packets_received()); }},
    {"ms_rtt", [](Sample& to, const Counters& from) { to.ms_rtt(from.msRTT); },
     [](const Sample& from) { return srt_cell(from.ms_rtt()); }},
    {"packets_lost",
     [](Sample& to, const Counters& from) { to.packets_lost(count_of(from.pktRcvLossTotal)); },
     [](const Sample& from) { return srt_cell(from.packets_lost()); }},
    {"bitrate", [](Sample& to, const Counters& from) { to.bitrate(from.mbpsRecvRate); },
     [](const Sample& from) { return srt_cell(from.bitrate()); }},
    {"latency", [](Sample& to, const Counters& from) { to.latency(from.msRcvTsbPdDelay); },
     [](const Sample& from) { return srt_cell(from.latency()); }},
    {"packets_retransmitted",
     [](Sample& to, const Counters& from) {
       to.packets_retransmitted(count_of(from.pktRetransTotal));
     },
     [](const Sample& from) { return srt_cell(from.packets_retransmitted()); }},
    {"pkt_snd_loss",
     [](Sample& to, const Counters& from) { to.pkt_snd_loss(count_of(from.pktSndLoss)); },
     [](const Sample& from) { return srt_cell(from.pkt_snd_loss()); }},
    {"pkt_rcv_loss",
     [](Sample& to, const Counters& from) { to.pkt_rcv_loss(count_of(from.pktRcvLoss)); },
     [](const Sample& from) { return srt_cell(from.pkt_rcv_loss()); }},
    {"pkt_retrans",
     [](Sample& to, const Counters& from) { to.pkt_retrans(count_of(from.pktRetrans)); },
     [](const Sample& from) { return srt_cell(from.pkt_retrans()); }},
    {"pkt_sent_ack",
     [](Sample& to, const Counters& from) { to.pkt_sent_ack(count_of(from.pktSentACK)); },
     [](const Sample& from) { return srt_cell(from.pkt_sent_ack()); }},
    {"pkt_recv_ack",
     [](Sample& to, const Counters& from) { to.pkt_recv_ack(count_of(from.pktRecvACK)); },
     [](const Sample& from) { return srt_cell(from.pkt_recv_ack()); }},
    {"pkt_sent_nak",
     [](Sample& to, const Counters& from) { to.pkt_sent_nak(count_of(from.pktSentNAK)); },
     [](const Sample& from) { return srt_cell(from.pkt_sent_nak()); }},
    {"pkt_recv_nak",
     [](Sample& to, const Counters& from) { to.pkt_recv_nak(count_of(from.pktRecvNAK)); },
     [](const Sample& from) { return srt_cell(from.pkt_recv_nak()); }},
    {"mbps_send_rate",
     [](Sample& to, const Counters& from) { to.mbps_send_rate(from.mbpsSendRate); },
     [](const Sample& from) { return srt_cell(from.mbps_send_rate()); }},
    {"snd_duration",
     [](Sample& to, const Counters& from) { to.snd_duration(count_of(from.usSndDuration)); },
     [](const Sample& from) { return srt_cell(from.snd_duration()); }},
    {"pkt_reorder_distance",
     [](Sample& to, const Counters& from) {
       to.pkt_reorder_distance(count_of(from.pktReorderDistance));
     },
     [](const Sample& from) { return srt_cell(from.pkt_reorder_distance()); }},
    {"pkt_rcv_avg_belated_time",
     [](Sample& to, const Counters& from) {
       to.pkt_rcv_avg_belated_time(from.pktRcvAvgBelatedTime);
     },
     [](const Sample& from) { return srt_cell(from.pkt_rcv_avg_belated_time()); }},
    {"pkt_rcv_belated",
     [](Sample& to, const Counters& from) { to.pkt_rcv_belated(count_of(from.pktRcvBelated)); },
     [](const Sample& from) { return srt_cell(from.pkt_rcv_belated()); }},
    {"pkt_snd_drop",
     [](Sample& to, const Counters& from) { to.pkt_snd_drop(count_of(from.pktSndDrop)); },
     [](const Sample& from) { return srt_cell(from.pkt_snd_drop()); }},
    {"pkt_rcv_undecrypt",
     [](Sample& to, const Counters& from) { to.pkt_rcv_undecrypt(count_of(from.pktRcvUndecrypt)); },
     [](const Sample& from) { return srt_cell(from.pkt_rcv_undecrypt()); }},
    {"pkt_send_period",
     [](Sample& to, const Counters& from) { to.pkt_send_period(from.usPktSndPeriod); },
     [](const Sample& from) { return srt_cell(from.pkt_send_period()); }},
    {"pkt_flow_window",
     [](Sample& to, const Counters& from) { to.pkt_flow_window(count_of(from.pktFlowWindow)); },
     [](const Sample& from) { return srt_cell(from.pkt_flow_window()); }},
    {"pkt_congestion_window",
     [](Sample& to, const Counters& from) {
       to.pkt_congestion_window(count_of(from.pktCongestionWindow));
     },
     [](const Sample& from) { return srt_cell(from.pkt_congestion_window()); }},
    {"pkt_flight_size",
     [](Sample& to, const Counters& from) { to.pkt_flight_size(count_of(from.pktFlightSize)); },
     [](const Sample& from) { return srt_cell(from.pkt_flight_size()); }},
    {"mbps_bandwidth",
     [](Sample& to, const Counters& from) { to.mbps_bandwidth(from.mbpsBandwidth); },
     [](const Sample& from) { return srt_cell(from.mbps_bandwidth()); }},
    {"mbps_max_bandwidth",
     [](Sample& to, const Counters& from) { to.mbps_max_bandwidth(from.mbpsMaxBW); },
     [](const Sample& from) { return srt_cell(from.mbps_max_bandwidth()); }},
    {"byte_mss", [](Sample& to, const Counters& from) { to.byte_mss(count_of(from.byteMSS)); },
     [](const Sample& from) { return srt_cell(from.byte_mss()); }},
    {"pkt_snd_buffer",
     [](Sample& to, const Counters& from) { to.pkt_snd_buffer(count_of(from.pktSndBuf)); },
     [](const Sample& from) { return srt_cell(from.pkt_snd_buffer()); }},
    {"ms_snd_buffer",
     [](Sample& to, const Counters& from) { to.ms_snd_buffer(count_of(from.msSndBuf)); },
     [](const Sample& from) { return srt_cell(from.ms_snd_buffer()); }},
    {"ms_send_delay",
     [](Sample& to, const Counters& from) { to.ms_send_delay(count_of(from.msSndTsbPdDelay)); },
     [](const Sample& from) { return srt_cell(from.ms_send_delay()); }},
    {"pkt_rcv_buffer",
     [](Sample& to, const Counters& from) { to.pkt_rcv_buffer(count_of(from.pktRcvBuf)); },
     [](const Sample& from) { return srt_cell(from.pkt_rcv_buffer()); }},
    {"ms_rcv_buffer",
     [](Sample& to, const Counters& from) { to.ms_rcv_buffer(count_of(from.msRcvBuf)); },
     [](const Sample& from) { return srt_cell(from.ms_rcv_buffer()); }},
    {"pkt_reorder_tolerance",
     [](Sample& to, const Counters& from) {
       to.pkt_reorder_tolerance(count_of(from.pktReorderTolerance));
     },
     [](const Sample& from) { return srt_cell(from.pkt_reorder_tolerance()); }},
};

}  // namespace

SRTStreamStatsData sample_of(const CBytePerfMon& counters) {
  SRTStreamStatsData sample;
  for (const SrtField& field : kSrtFields) field.set(sample, counters);
  return sample;
}

Table srt_table() {
  Table table;
  for (const SrtField& field : kSrtFields) table.columns.emplace_back(field.name);
  return table;
}

std::vector<Cell> srt_row(const SRTStreamStatsData& sample) {
  std::vector<Cell> row;
  for (const SrtField& field : kSrtFields) row.push_back(field.get(sample));
  return row;
}

}  // namespace Korvane::Tool
