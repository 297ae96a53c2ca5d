#include "media/srt_statistics.h"

namespace Korvane::Tool {
namespace {

struct SrtField {
  const char* name;
  Cell (*get)(const Media::SRTStreamStatsData& sample);
};

using Sample = Media::SRTStreamStatsData;

Cell srt_cell(unsigned long long value) { return static_cast<Integer>(value); }
Cell srt_cell(double value) { return value; }

// In the order of the record.
constexpr SrtField kSrtFields[] = {
    {"timestamp", [](const Sample& from) { return srt_cell(from.timestamp()); }},
    {"packets_sent", [](const Sample& from) { return srt_cell(from.packets_sent()); }},
    {"packets_received", [](const Sample& from) { return srt_cell(from.packets_received()); }},
    {"ms_rtt", [](const Sample& from) { return srt_cell(from.ms_rtt()); }},
    {"packets_lost", [](const Sample& from) { return srt_cell(from.packets_lost()); }},
    {"bitrate", [](const Sample& from) { return srt_cell(from.bitrate()); }},
    {"latency", [](const Sample& from) { return srt_cell(from.latency()); }},
    {"packets_retransmitted",
     [](const Sample& from) { return srt_cell(from.packets_retransmitted()); }},
    {"pkt_snd_loss", [](const Sample& from) { return srt_cell(from.pkt_snd_loss()); }},
    {"pkt_rcv_loss", [](const Sample& from) { return srt_cell(from.pkt_rcv_loss()); }},
    {"pkt_retrans", [](const Sample& from) { return srt_cell(from.pkt_retrans()); }},
    {"pkt_sent_ack", [](const Sample& from) { return srt_cell(from.pkt_sent_ack()); }},
    {"pkt_recv_ack", [](const Sample& from) { return srt_cell(from.pkt_recv_ack()); }},
    {"pkt_sent_nak", [](const Sample& from) { return srt_cell(from.pkt_sent_nak()); }},
    {"pkt_recv_nak", [](const Sample& from) { return srt_cell(from.pkt_recv_nak()); }},
    {"mbps_send_rate", [](const Sample& from) { return srt_cell(from.mbps_send_rate()); }},
    {"snd_duration", [](const Sample& from) { return srt_cell(from.snd_duration()); }},
    {"pkt_reorder_distance",
     [](const Sample& from) { return srt_cell(from.pkt_reorder_distance()); }},
    {"pkt_rcv_avg_belated_time",
     [](const Sample& from) { return srt_cell(from.pkt_rcv_avg_belated_time()); }},
    {"pkt_rcv_belated", [](const Sample& from) { return srt_cell(from.pkt_rcv_belated()); }},
    {"pkt_snd_drop", [](const Sample& from) { return srt_cell(from.pkt_snd_drop()); }},
    {"pkt_rcv_undecrypt", [](const Sample& from) { return srt_cell(from.pkt_rcv_undecrypt()); }},
    {"pkt_send_period", [](const Sample& from) { return srt_cell(from.pkt_send_period()); }},
    {"pkt_flow_window", [](const Sample& from) { return srt_cell(from.pkt_flow_window()); }},
    {"pkt_congestion_window",
     [](const Sample& from) { return srt_cell(from.pkt_congestion_window()); }},
    {"pkt_flight_size", [](const Sample& from) { return srt_cell(from.pkt_flight_size()); }},
    {"mbps_bandwidth", [](const Sample& from) { return srt_cell(from.mbps_bandwidth()); }},
    {"mbps_max_bandwidth", [](const Sample& from) { return srt_cell(from.mbps_max_bandwidth()); }},
    {"byte_mss", [](const Sample& from) { return srt_cell(from.byte_mss()); }},
    {"pkt_snd_buffer", [](const Sample& from) { return srt_cell(from.pkt_snd_buffer()); }},
    {"ms_snd_buffer", [](const Sample& from) { return srt_cell(from.ms_snd_buffer()); }},
    {"ms_send_delay", [](const Sample& from) { return srt_cell(from.ms_send_delay()); }},
    {"pkt_rcv_buffer", [](const Sample& from) { return srt_cell(from.pkt_rcv_buffer()); }},
    {"ms_rcv_buffer", [](const Sample& from) { return srt_cell(from.ms_rcv_buffer()); }},
    {"pkt_reorder_tolerance",
     [](const Sample& from) { return srt_cell(from.pkt_reorder_tolerance()); }},
};

}  // namespace

Table srt_table() {
  Table table;
  for (const SrtField& field : kSrtFields) table.columns.emplace_back(field.name);
  return table;
}

std::vector<Cell> srt_row(const Media::SRTStreamStatsData& sample) {
  std::vector<Cell> row;
  for (const SrtField& field : kSrtFields) row.push_back(field.get(sample));
  return row;
}

}  // namespace Korvane::Tool
