#include "ext/srt.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

static_assert(KV_ENGINE_EXT_HAS_SRT == 1);

// Each figure that is used has a number of its own; totals are far from those of the interval.
SRT_TRACEBSTATS figures() {
  SRT_TRACEBSTATS from{};
  from.msTimeStamp = 5000000000;
  from.pktSentTotal = 1001;
  from.pktRecvTotal = 1002;
  from.pktSndLossTotal = 1003;
  from.pktRcvLossTotal = 1004;
  from.pktRetransTotal = 1005;
  from.pktSndLoss = 1;
  from.pktRcvLoss = 2;
  from.pktRetrans = 3;
  from.pktSentACK = 4;
  from.pktRecvACK = 5;
  from.pktSentNAK = 6;
  from.pktRecvNAK = 7;
  from.mbpsSendRate = 8.5;
  from.mbpsRecvRate = 9.5;
  from.usSndDuration = 10;
  from.pktReorderDistance = 11;
  from.pktRcvAvgBelatedTime = 12.5;
  from.pktRcvBelated = 13;
  from.pktSndDrop = 14;
  from.pktRcvUndecrypt = 15;
  from.usPktSndPeriod = 16.5;
  from.pktFlowWindow = 17;
  from.pktCongestionWindow = 18;
  from.pktFlightSize = 19;
  from.msRTT = 20.5;
  from.mbpsBandwidth = 21.5;
  from.mbpsMaxBW = 22.5;
  from.byteMSS = 23;
  from.pktSndBuf = 24;
  from.msSndBuf = 25;
  from.msSndTsbPdDelay = 26;
  from.pktRcvBuf = 27;
  from.msRcvBuf = 28;
  from.msRcvTsbPdDelay = 29;
  from.pktReorderTolerance = 30;
  return from;
}

TEST(ExtSrt, TakesEachFigureFromItsPlace) {
  const Media::SRTStreamStatsData sample = Ext::from_srt(figures());
  EXPECT_EQ(5000000000U, sample.timestamp());
  EXPECT_EQ(1001U, sample.packets_sent());
  EXPECT_EQ(1002U, sample.packets_received());
  EXPECT_EQ(20.5, sample.ms_rtt());
  EXPECT_EQ(1004U, sample.packets_lost());
  EXPECT_EQ(9.5, sample.bitrate());
  EXPECT_EQ(29, sample.latency());
  EXPECT_EQ(1005U, sample.packets_retransmitted());
  EXPECT_EQ(1U, sample.pkt_snd_loss());
  EXPECT_EQ(2U, sample.pkt_rcv_loss());
  EXPECT_EQ(3U, sample.pkt_retrans());
  EXPECT_EQ(4U, sample.pkt_sent_ack());
  EXPECT_EQ(5U, sample.pkt_recv_ack());
  EXPECT_EQ(6U, sample.pkt_sent_nak());
  EXPECT_EQ(7U, sample.pkt_recv_nak());
  EXPECT_EQ(8.5, sample.mbps_send_rate());
  EXPECT_EQ(10U, sample.snd_duration());
  EXPECT_EQ(11U, sample.pkt_reorder_distance());
  EXPECT_EQ(12.5, sample.pkt_rcv_avg_belated_time());
  EXPECT_EQ(13U, sample.pkt_rcv_belated());
  EXPECT_EQ(14U, sample.pkt_snd_drop());
  EXPECT_EQ(15U, sample.pkt_rcv_undecrypt());
  EXPECT_EQ(16.5, sample.pkt_send_period());
  EXPECT_EQ(17U, sample.pkt_flow_window());
  EXPECT_EQ(18U, sample.pkt_congestion_window());
  EXPECT_EQ(19U, sample.pkt_flight_size());
  EXPECT_EQ(21.5, sample.mbps_bandwidth());
  EXPECT_EQ(22.5, sample.mbps_max_bandwidth());
  EXPECT_EQ(23U, sample.byte_mss());
  EXPECT_EQ(24U, sample.pkt_snd_buffer());
  EXPECT_EQ(25U, sample.ms_snd_buffer());
  EXPECT_EQ(26U, sample.ms_send_delay());
  EXPECT_EQ(27U, sample.pkt_rcv_buffer());
  EXPECT_EQ(28U, sample.ms_rcv_buffer());
  EXPECT_EQ(30U, sample.pkt_reorder_tolerance());
}

TEST(ExtSrt, TakesWhatBothSidesHaveFromTheSender) {
  const Media::SRTStreamStatsData sample = Ext::from_srt(figures(), Ext::SrtSide::Sender);
  EXPECT_EQ(1003U, sample.packets_lost());
  EXPECT_EQ(8.5, sample.bitrate());
  EXPECT_EQ(26, sample.latency());
  EXPECT_EQ(1002U, sample.packets_received());
}

TEST(ExtSrt, NegativeCountsAreNone) {
  SRT_TRACEBSTATS from{};
  from.pktFlightSize = -1;
  from.msTimeStamp = -1;
  EXPECT_EQ(Media::SRTStreamStatsData(), Ext::from_srt(from));
}

}  // namespace
}  // namespace Korvane
