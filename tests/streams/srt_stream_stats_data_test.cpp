#include "media/srt_stream_stats_data.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

namespace Korvane::Media::SrtStreamStatsDataTests {
namespace {

using Data = SRTStreamStatsData;
using Count = unsigned long long;

static_assert(sizeof(Data) == sizeof(void*));
static_assert(!std::is_polymorphic_v<Data>);
static_assert(std::is_same_v<decltype(&Data::operator==), bool (Data::*)(const Data&) const>);
static_assert(std::is_same_v<decltype(&Data::operator!=), bool (Data::*)(const Data&) const>);

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr Count kGreatest = std::numeric_limits<Count>::max();

template <typename T>
struct Field {
  const char* name;
  T (Data::*get)() const;
  void (Data::*set)(T);
};

constexpr Field<Count> kCounts[] = {
    {"timestamp", &Data::timestamp, &Data::timestamp},
    {"packets_sent", &Data::packets_sent, &Data::packets_sent},
    {"packets_received", &Data::packets_received, &Data::packets_received},
    {"packets_lost", &Data::packets_lost, &Data::packets_lost},
    {"packets_retransmitted", &Data::packets_retransmitted, &Data::packets_retransmitted},
    {"pkt_snd_loss", &Data::pkt_snd_loss, &Data::pkt_snd_loss},
    {"pkt_rcv_loss", &Data::pkt_rcv_loss, &Data::pkt_rcv_loss},
    {"pkt_retrans", &Data::pkt_retrans, &Data::pkt_retrans},
    {"pkt_sent_ack", &Data::pkt_sent_ack, &Data::pkt_sent_ack},
    {"pkt_recv_ack", &Data::pkt_recv_ack, &Data::pkt_recv_ack},
    {"pkt_sent_nak", &Data::pkt_sent_nak, &Data::pkt_sent_nak},
    {"pkt_recv_nak", &Data::pkt_recv_nak, &Data::pkt_recv_nak},
    {"snd_duration", &Data::snd_duration, &Data::snd_duration},
    {"pkt_reorder_distance", &Data::pkt_reorder_distance, &Data::pkt_reorder_distance},
    {"pkt_rcv_belated", &Data::pkt_rcv_belated, &Data::pkt_rcv_belated},
    {"pkt_snd_drop", &Data::pkt_snd_drop, &Data::pkt_snd_drop},
    {"pkt_rcv_undecrypt", &Data::pkt_rcv_undecrypt, &Data::pkt_rcv_undecrypt},
    {"pkt_flow_window", &Data::pkt_flow_window, &Data::pkt_flow_window},
    {"pkt_congestion_window", &Data::pkt_congestion_window, &Data::pkt_congestion_window},
    {"pkt_flight_size", &Data::pkt_flight_size, &Data::pkt_flight_size},
    {"byte_mss", &Data::byte_mss, &Data::byte_mss},
    {"pkt_snd_buffer", &Data::pkt_snd_buffer, &Data::pkt_snd_buffer},
    {"ms_snd_buffer", &Data::ms_snd_buffer, &Data::ms_snd_buffer},
    {"ms_send_delay", &Data::ms_send_delay, &Data::ms_send_delay},
    {"pkt_rcv_buffer", &Data::pkt_rcv_buffer, &Data::pkt_rcv_buffer},
    {"ms_rcv_buffer", &Data::ms_rcv_buffer, &Data::ms_rcv_buffer},
    {"pkt_reorder_tolerance", &Data::pkt_reorder_tolerance, &Data::pkt_reorder_tolerance},
};

constexpr Field<double> kDoubles[] = {
    {"ms_rtt", &Data::ms_rtt, &Data::ms_rtt},
    {"bitrate", &Data::bitrate, &Data::bitrate},
    {"latency", &Data::latency, &Data::latency},
    {"mbps_send_rate", &Data::mbps_send_rate, &Data::mbps_send_rate},
    {"pkt_rcv_avg_belated_time", &Data::pkt_rcv_avg_belated_time, &Data::pkt_rcv_avg_belated_time},
    {"pkt_send_period", &Data::pkt_send_period, &Data::pkt_send_period},
    {"mbps_bandwidth", &Data::mbps_bandwidth, &Data::mbps_bandwidth},
    {"mbps_max_bandwidth", &Data::mbps_max_bandwidth, &Data::mbps_max_bandwidth},
};

static_assert(std::size(kCounts) + std::size(kDoubles) == 35);

constexpr const char* kNotCompared = "packets_retransmitted";

// Field i of the counts holds first + i, field i of the doubles first + i + 0.5.
Data filled(Count first) {
  Data data;
  Count count = first;
  for (const auto& field : kCounts) (data.*field.set)(count++);
  double number = static_cast<double>(first) + 0.5;
  for (const auto& field : kDoubles) (data.*field.set)(number++);
  return data;
}

void expect_filled(const Data& data, Count first) {
  Count count = first;
  for (const auto& field : kCounts) EXPECT_EQ(count++, (data.*field.get)()) << field.name;
  double number = static_cast<double>(first) + 0.5;
  for (const auto& field : kDoubles) EXPECT_EQ(number++, (data.*field.get)()) << field.name;
}

// `count` and `number` in the fields of this name, 0 in all others.
void expect_zero_but(const Data& data, const std::string& name, Count count, double number) {
  for (const auto& field : kCounts)
    EXPECT_EQ(name == field.name ? count : 0, (data.*field.get)()) << field.name;
  for (const auto& field : kDoubles)
    EXPECT_EQ(name == field.name ? number : 0, (data.*field.get)()) << field.name;
}

// Both operators, in both directions.
void expect_equality(bool equal, const Data& a, const Data& b) {
  EXPECT_EQ(equal, a == b);
  EXPECT_EQ(equal, b == a);
  EXPECT_EQ(!equal, a != b);
  EXPECT_EQ(!equal, b != a);
}

TEST(SRTStreamStatsData, IsZeroAtFirst) { expect_zero_but(Data(), "", 0, 0); }

TEST(SRTStreamStatsData, SettingAFieldSetsNoOther) {
  for (const auto& field : kCounts) {
    SCOPED_TRACE(field.name);
    Data data;
    (data.*field.set)(kGreatest);
    expect_zero_but(data, field.name, kGreatest, 0);
  }
  for (const auto& field : kDoubles) {
    SCOPED_TRACE(field.name);
    Data data;
    (data.*field.set)(-2.5);
    expect_zero_but(data, field.name, 0, -2.5);
  }
}

TEST(SRTStreamStatsData, HoldsAllFieldsAtOnce) {
  expect_filled(filled(1), 1);
  expect_filled(filled(1000), 1000);
}

TEST(SRTStreamStatsData, StoresAnyDouble) {
  for (const double value : {std::numeric_limits<double>::max(),
                             std::numeric_limits<double>::denorm_min(), -HUGE_VAL, HUGE_VAL, -0.0})
    for (const auto& field : kDoubles) {
      Data data;
      (data.*field.set)(value);
      EXPECT_EQ(value, (data.*field.get)()) << field.name;
      EXPECT_EQ(std::signbit(value), std::signbit((data.*field.get)())) << field.name;
      (data.*field.set)(kNan);
      EXPECT_TRUE(std::isnan((data.*field.get)())) << field.name;
    }
}

TEST(SRTStreamStatsData, CopiesAreIndependent) {
  Data source = filled(1);
  const Data copy(source);
  Data assigned = filled(500);
  assigned = source;
  const Data moved(std::move(source));
  expect_filled(source, 1);  // NOLINT(bugprone-use-after-move): moving copies
  source = filled(1000);
  expect_filled(copy, 1);
  expect_filled(assigned, 1);
  expect_filled(moved, 1);
  assigned.timestamp(9);
  expect_filled(source, 1000);
}

TEST(SRTStreamStatsData, AssignmentToItselfDoesNothing) {
  Data data = filled(1);
  const Data& same = data;
  data = same;
  expect_filled(data, 1);
}

TEST(SRTStreamStatsData, IsEqualWhenTheFieldsAre) {
  expect_equality(true, Data(), Data());
  expect_equality(true, filled(1), filled(1));
  expect_equality(false, filled(1), filled(2));
}

TEST(SRTStreamStatsData, DiffersByEveryFieldButPacketsRetransmitted) {
  for (const auto& field : kCounts) {
    SCOPED_TRACE(field.name);
    Data other = filled(1);
    (other.*field.set)(kGreatest);
    expect_equality(std::string(field.name) == kNotCompared, filled(1), other);
  }
  for (const auto& field : kDoubles) {
    SCOPED_TRACE(field.name);
    Data other = filled(1);
    (other.*field.set)(-1.5);
    expect_equality(false, filled(1), other);
  }
}

TEST(SRTStreamStatsData, PacketsRetransmittedHidesNoOtherDifference) {
  Data data;
  Data other;
  data.packets_retransmitted(7);
  expect_equality(true, data, other);
  other.packets_sent(7);
  expect_equality(false, data, other);
  other.packets_retransmitted(7);
  expect_equality(false, data, other);
}

TEST(SRTStreamStatsData, DoesNotTakeBitRateForLatency) {
  Data data;
  Data other;
  data.bitrate(1.5);
  other.latency(1.5);
  expect_equality(false, data, other);
}

TEST(SRTStreamStatsData, ComparesDoublesExactly) {
  for (const auto& field : kDoubles) {
    SCOPED_TRACE(field.name);
    Data data;
    Data other;
    (data.*field.set)(1.0);
    (other.*field.set)(std::nextafter(1.0, 2.0));
    expect_equality(false, data, other);
    (data.*field.set)(0.0);
    (other.*field.set)(-0.0);
    expect_equality(true, data, other);
  }
}

TEST(SRTStreamStatsData, WithANanDiffersEvenFromItself) {
  for (const auto& field : kDoubles) {
    SCOPED_TRACE(field.name);
    Data data = filled(1);
    (data.*field.set)(kNan);
    expect_equality(false, data, data);
    expect_equality(false, data, Data(data));
    expect_equality(false, data, filled(1));
  }
}

}  // namespace
}  // namespace Korvane::Media::SrtStreamStatsDataTests
