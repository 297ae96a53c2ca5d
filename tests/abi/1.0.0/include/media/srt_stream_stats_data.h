// One statistics sample of one connection of SRT (Secure Reliable Transport), in the terms of that
// protocol's own statistics. Values are kept as they are set: none is checked, converted, summed up
// or derived from another. A value: copies are deep and independent. Not synchronised.
//
// Each field is marked [unit, kind, side].
//   kind  total     counted since the connection began
//         interval  counted or measured since the sample before
//         instant   the state when the sample was taken
//   side  sender, receiver: the end of the connection that has the figure; both: either end
// A unit that reads "open" is that of the code that fills the record.

#ifndef KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_H
#define KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct SRTStreamStatsDataPrivate;

class KV_ENGINE_API SRTStreamStatsData {
 public:
  // All 0.
  SRTStreamStatsData();

  SRTStreamStatsData(const SRTStreamStatsData& other);
  SRTStreamStatsData& operator=(const SRTStreamStatsData& other);
  ~SRTStreamStatsData();

  // When the sample was taken. [open, instant, both]
  unsigned long long timestamp() const;
  void timestamp(unsigned long long value);

  // The connection as a whole.

  // [packets, total, sender]
  unsigned long long packets_sent() const;
  void packets_sent(unsigned long long value);

  // [packets, total, receiver]
  unsigned long long packets_received() const;
  void packets_received(unsigned long long value);

  // Round-trip time. [milliseconds, instant, both]
  double ms_rtt() const;
  void ms_rtt(double value);

  // Independent of pkt_snd_loss and pkt_rcv_loss. [packets, total, both]
  unsigned long long packets_lost() const;
  void packets_lost(unsigned long long value);

  // Of the stream. [open, interval, both]
  double bitrate() const;
  void bitrate(double value);

  // From sending to delivery. [open, instant, both]
  double latency() const;
  void latency(double value);

  // Takes no part in comparisons. [packets, total, both]
  unsigned long long packets_retransmitted() const;
  void packets_retransmitted(unsigned long long value);

  // What happened to packets.

  // Reported lost by the receiver. [packets, interval, sender]
  unsigned long long pkt_snd_loss() const;
  void pkt_snd_loss(unsigned long long value);

  // Found missing. [packets, interval, receiver]
  unsigned long long pkt_rcv_loss() const;
  void pkt_rcv_loss(unsigned long long value);

  // Sent again. [packets, interval, sender]
  unsigned long long pkt_retrans() const;
  void pkt_retrans(unsigned long long value);

  // Acknowledgements (ACK) sent. [packets, interval, receiver]
  unsigned long long pkt_sent_ack() const;
  void pkt_sent_ack(unsigned long long value);

  // Acknowledgements that came back. [packets, interval, sender]
  unsigned long long pkt_recv_ack() const;
  void pkt_recv_ack(unsigned long long value);

  // Reports of loss (NAK) sent. [packets, interval, receiver]
  unsigned long long pkt_sent_nak() const;
  void pkt_sent_nak(unsigned long long value);

  // Reports of loss that came back. [packets, interval, sender]
  unsigned long long pkt_recv_nak() const;
  void pkt_recv_nak(unsigned long long value);

  // [megabits per second, interval, sender]
  double mbps_send_rate() const;
  void mbps_send_rate(double value);

  // Time spent sending. [open, interval, sender]
  unsigned long long snd_duration() const;
  void snd_duration(unsigned long long value);

  // How far apart packets came that were out of order. [packets, interval, receiver]
  unsigned long long pkt_reorder_distance() const;
  void pkt_reorder_distance(unsigned long long value);

  // By how much belated packets missed their time, on average. [milliseconds where the protocol's
  // own figure is passed on, instant, receiver]
  double pkt_rcv_avg_belated_time() const;
  void pkt_rcv_avg_belated_time(double value);

  // Came too late to be delivered. [packets, interval, receiver]
  unsigned long long pkt_rcv_belated() const;
  void pkt_rcv_belated(unsigned long long value);

  // Given up by the sender as too late. [packets, interval, sender]
  unsigned long long pkt_snd_drop() const;
  void pkt_snd_drop(unsigned long long value);

  // Could not be decrypted. [packets, interval, receiver]
  unsigned long long pkt_rcv_undecrypt() const;
  void pkt_rcv_undecrypt(unsigned long long value);

  // Pace, windows and bandwidth.

  // Least time from one packet to the next. [open, instant, sender]
  double pkt_send_period() const;
  void pkt_send_period(double value);

  // What the receiver has room for. [packets, instant, sender]
  unsigned long long pkt_flow_window() const;
  void pkt_flow_window(unsigned long long value);

  // What congestion control allows in flight. [packets, instant, sender]
  unsigned long long pkt_congestion_window() const;
  void pkt_congestion_window(unsigned long long value);

  // Sent and not yet acknowledged. [packets, instant, sender]
  unsigned long long pkt_flight_size() const;
  void pkt_flight_size(unsigned long long value);

  // Estimate for the link. [megabits per second, instant, both]
  double mbps_bandwidth() const;
  void mbps_bandwidth(double value);

  // Limit set for sending. [megabits per second, instant, sender]
  double mbps_max_bandwidth() const;
  void mbps_max_bandwidth(double value);

  // Greatest packet, all headers included. [bytes, instant, both]
  unsigned long long byte_mss() const;
  void byte_mss(unsigned long long value);

  // Buffers.

  // Packets not yet acknowledged. [packets, instant, sender]
  unsigned long long pkt_snd_buffer() const;
  void pkt_snd_buffer(unsigned long long value);

  // Time that they span. [milliseconds, instant, sender]
  unsigned long long ms_snd_buffer() const;
  void ms_snd_buffer(unsigned long long value);

  // After how long the peer delivers a packet. [milliseconds, instant, sender]
  unsigned long long ms_send_delay() const;
  void ms_send_delay(unsigned long long value);

  // Packets acknowledged and not yet delivered. [packets, instant, receiver]
  unsigned long long pkt_rcv_buffer() const;
  void pkt_rcv_buffer(unsigned long long value);

  // Time that they span. [milliseconds, instant, receiver]
  unsigned long long ms_rcv_buffer() const;
  void ms_rcv_buffer(unsigned long long value);

  // Packets waited for before a missing one counts as lost. [packets, instant, receiver]
  unsigned long long pkt_reorder_tolerance() const;
  void pkt_reorder_tolerance(unsigned long long value);

  // Equal when all fields but packets_retransmitted are; samples that differ in that alone are
  // equal. Doubles are compared exactly: a sample with a NaN differs from every sample, itself
  // included.
  bool operator==(const SRTStreamStatsData& other) const;
  bool operator!=(const SRTStreamStatsData& other) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SRTStreamStatsDataPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_H
