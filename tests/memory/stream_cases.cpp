#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

using Media::SdpConfig;
using Media::SdpConfigSet;
using Media::SrtSettings;
using Media::SRTStreamStatsData;
using Media::SRTStreamStatsDataList;
using Media::ST2110StreamStatsData;
using Media::ST2110StreamStatsDataList;
using Media::TrackBitRates;
using Media::TrackBitRatesList;

constexpr unsigned long long kCount = 7;
constexpr double kReading = 7.5;
const wchar_t* const kOldAddress = L"an address too long for a short buffer";
const wchar_t* const kNewAddress = L"another address too long for the buffer of the former one";

void add_endpoints(Cases& cases) {
  ClassCases config(cases, [] { return SdpConfig(Media::SdpAudio, kOldAddress, 5004); });
  config.constructor<Media::SdpType>(Media::SdpVideo);
  config.constructor<Media::SdpType, const wchar_t*, int>(Media::SdpVideo, kNewAddress, 1);
  config.constructor<Media::SdpType, const wchar_t*, int>(Media::SdpVideo, nullptr, 1);
  const SdpConfig other(Media::SdpAnc, kNewAddress, 7);
  config.copying([=] { return other; });
  config.getter("type", &SdpConfig::type);
  config.getter("ip_address", &SdpConfig::ip_address);
  config.getter("port", &SdpConfig::port);
  config.method("operator==", &SdpConfig::operator==, other);
  config.method("operator!=", &SdpConfig::operator!=, other);

  ClassCases set(cases, [] { return SdpConfigSet(SdpConfig(Media::SdpVideo, kOldAddress, 1)); });
  set.constructor<>();
  set.constructor<SdpConfig>(other);
  set.constructor<SdpConfig, SdpConfig>(other, other);
  set.constructor<SdpConfig, SdpConfig, SdpConfig>(other, other, other);
  set.copying([=] { return SdpConfigSet(other, other, other); });
  set.getter("video_sdp", &SdpConfigSet::video_sdp);
  set.getter("audio_sdp", &SdpConfigSet::audio_sdp);
  set.getter("anc_sdp", &SdpConfigSet::anc_sdp);
}

void add_srt_settings(Cases& cases) {
  ClassCases settings(cases, [] { return SrtSettings(7, 70); });
  settings.constructor<>();
  settings.constructor<unsigned short, unsigned int>(8, 80);
  settings.copying([] { return SrtSettings(); });
  settings.getter("days_to_preserve_stats", &SrtSettings::days_to_preserve_stats);
  settings.getter("polling_period", &SrtSettings::polling_period);
  settings.method("operator==", &SrtSettings::operator==, SrtSettings());
  settings.method("operator!=", &SrtSettings::operator!=, SrtSettings());
}

void add_srt_data(Cases& cases) {
  ClassCases data(cases, [] { return SRTStreamStatsData(); });
  data.constructor<>();
  data.copying([] {
    SRTStreamStatsData other;
    other.bitrate(kReading);
    return other;
  });
  data.property("timestamp", &SRTStreamStatsData::timestamp, &SRTStreamStatsData::timestamp,
                kCount);
  data.property("packets_sent", &SRTStreamStatsData::packets_sent,
                &SRTStreamStatsData::packets_sent, kCount);
  data.property("packets_received", &SRTStreamStatsData::packets_received,
                &SRTStreamStatsData::packets_received, kCount);
  data.property("ms_rtt", &SRTStreamStatsData::ms_rtt, &SRTStreamStatsData::ms_rtt, kReading);
  data.property("packets_lost", &SRTStreamStatsData::packets_lost,
                &SRTStreamStatsData::packets_lost, kCount);
  data.property("bitrate", &SRTStreamStatsData::bitrate, &SRTStreamStatsData::bitrate, kReading);
  data.property("latency", &SRTStreamStatsData::latency, &SRTStreamStatsData::latency, kReading);
  data.property("packets_retransmitted", &SRTStreamStatsData::packets_retransmitted,
                &SRTStreamStatsData::packets_retransmitted, kCount);
  data.property("pkt_snd_loss", &SRTStreamStatsData::pkt_snd_loss,
                &SRTStreamStatsData::pkt_snd_loss, kCount);
  data.property("pkt_rcv_loss", &SRTStreamStatsData::pkt_rcv_loss,
                &SRTStreamStatsData::pkt_rcv_loss, kCount);
  data.property("pkt_retrans", &SRTStreamStatsData::pkt_retrans, &SRTStreamStatsData::pkt_retrans,
                kCount);
  data.property("pkt_sent_ack", &SRTStreamStatsData::pkt_sent_ack,
                &SRTStreamStatsData::pkt_sent_ack, kCount);
  data.property("pkt_recv_ack", &SRTStreamStatsData::pkt_recv_ack,
                &SRTStreamStatsData::pkt_recv_ack, kCount);
  data.property("pkt_sent_nak", &SRTStreamStatsData::pkt_sent_nak,
                &SRTStreamStatsData::pkt_sent_nak, kCount);
  data.property("pkt_recv_nak", &SRTStreamStatsData::pkt_recv_nak,
                &SRTStreamStatsData::pkt_recv_nak, kCount);
  data.property("mbps_send_rate", &SRTStreamStatsData::mbps_send_rate,
                &SRTStreamStatsData::mbps_send_rate, kReading);
  data.property("snd_duration", &SRTStreamStatsData::snd_duration,
                &SRTStreamStatsData::snd_duration, kCount);
  data.property("pkt_reorder_distance", &SRTStreamStatsData::pkt_reorder_distance,
                &SRTStreamStatsData::pkt_reorder_distance, kCount);
  data.property("pkt_rcv_avg_belated_time", &SRTStreamStatsData::pkt_rcv_avg_belated_time,
                &SRTStreamStatsData::pkt_rcv_avg_belated_time, kReading);
  data.property("pkt_rcv_belated", &SRTStreamStatsData::pkt_rcv_belated,
                &SRTStreamStatsData::pkt_rcv_belated, kCount);
  data.property("pkt_snd_drop", &SRTStreamStatsData::pkt_snd_drop,
                &SRTStreamStatsData::pkt_snd_drop, kCount);
  data.property("pkt_rcv_undecrypt", &SRTStreamStatsData::pkt_rcv_undecrypt,
                &SRTStreamStatsData::pkt_rcv_undecrypt, kCount);
  data.property("pkt_send_period", &SRTStreamStatsData::pkt_send_period,
                &SRTStreamStatsData::pkt_send_period, kReading);
  data.property("pkt_flow_window", &SRTStreamStatsData::pkt_flow_window,
                &SRTStreamStatsData::pkt_flow_window, kCount);
  data.property("pkt_congestion_window", &SRTStreamStatsData::pkt_congestion_window,
                &SRTStreamStatsData::pkt_congestion_window, kCount);
  data.property("pkt_flight_size", &SRTStreamStatsData::pkt_flight_size,
                &SRTStreamStatsData::pkt_flight_size, kCount);
  data.property("mbps_bandwidth", &SRTStreamStatsData::mbps_bandwidth,
                &SRTStreamStatsData::mbps_bandwidth, kReading);
  data.property("mbps_max_bandwidth", &SRTStreamStatsData::mbps_max_bandwidth,
                &SRTStreamStatsData::mbps_max_bandwidth, kReading);
  data.property("byte_mss", &SRTStreamStatsData::byte_mss, &SRTStreamStatsData::byte_mss, kCount);
  data.property("pkt_snd_buffer", &SRTStreamStatsData::pkt_snd_buffer,
                &SRTStreamStatsData::pkt_snd_buffer, kCount);
  data.property("ms_snd_buffer", &SRTStreamStatsData::ms_snd_buffer,
                &SRTStreamStatsData::ms_snd_buffer, kCount);
  data.property("ms_send_delay", &SRTStreamStatsData::ms_send_delay,
                &SRTStreamStatsData::ms_send_delay, kCount);
  data.property("pkt_rcv_buffer", &SRTStreamStatsData::pkt_rcv_buffer,
                &SRTStreamStatsData::pkt_rcv_buffer, kCount);
  data.property("ms_rcv_buffer", &SRTStreamStatsData::ms_rcv_buffer,
                &SRTStreamStatsData::ms_rcv_buffer, kCount);
  data.property("pkt_reorder_tolerance", &SRTStreamStatsData::pkt_reorder_tolerance,
                &SRTStreamStatsData::pkt_reorder_tolerance, kCount);
  data.method("operator==", &SRTStreamStatsData::operator==, SRTStreamStatsData());
  data.method("operator!=", &SRTStreamStatsData::operator!=, SRTStreamStatsData());
}

void add_st2110_data(Cases& cases) {
  using Data = ST2110StreamStatsData;
  ClassCases data(cases, [] { return Data(); });
  data.constructor<>();
  data.copying([] {
    Data other;
    other.error_frames(kCount);
    return other;
  });
  data.property("timestamp", &Data::timestamp, &Data::timestamp, kCount);
  data.property("error_frames", &Data::error_frames, &Data::error_frames, kCount);
  data.property("video_bps_rate", &Data::video_bps_rate, &Data::video_bps_rate, kReading);
  data.property("sound_bps_rate", &Data::sound_bps_rate, &Data::sound_bps_rate, kReading);
  data.method("operator==", &Data::operator==, Data());
  data.method("operator!=", &Data::operator!=, Data());
}

void add_bit_rates(Cases& cases) {
  ClassCases rates(cases, [] { return TrackBitRates(Media::EssencePcm, 7); });
  rates.constructor<>();
  rates.constructor<Media::TrackDescriptorEssenceKind, unsigned int>(Media::EssenceAiff, 8U);
  rates.copying([] { return TrackBitRates(); });
  rates.getter("essence_kind", &TrackBitRates::essence_kind);
  rates.method("essence_kind", &TrackBitRates::essence_kind, Media::EssenceAiff);
  rates.property("bit_rate", &TrackBitRates::bit_rate, &TrackBitRates::bit_rate, 8U);

  ClassCases list(cases, [] {
    TrackBitRatesList made;
    made.add_track(TrackBitRates(Media::EssencePcm, 1));
    made.add_track(TrackBitRates(Media::EssencePcm, 2));
    return made;
  });
  list.constructor<>();
  list.copying([] { return TrackBitRatesList(); });
  list.getter("size", &TrackBitRatesList::size);
  list.method("add_track", &TrackBitRatesList::add_track, TrackBitRates(Media::EssenceAiff, 3));
  list.method("track_at", &TrackBitRatesList::track_at, Korvane::size_t{1});
  list.reading([](const TrackBitRatesList& read) { return text_of(read.track_at(1)); });
}

template <typename List, typename Data>
void add_data_list(Cases& cases) {
  ClassCases list(cases, [] {
    List made;
    Data data;
    for (const unsigned int timestamp : {1U, 2U}) {
      data.timestamp(timestamp);
      made.add_value(data);
    }
    return made;
  });
  list.template constructor<>();
  list.copying([] { return List(); });
  list.getter("size", &List::size);
  list.method("add_value", &List::add_value, Data());
  list.method("value_at", &List::value_at, Korvane::size_t{1});
  list.reading([](const List& read) { return text_of(read.value_at(1)); });
}

}  // namespace

void add_stream_cases(Cases& cases) {
  add_endpoints(cases);
  add_srt_settings(cases);
  add_srt_data(cases);
  add_st2110_data(cases);
  add_bit_rates(cases);
  add_data_list<SRTStreamStatsDataList, SRTStreamStatsData>(cases);
  add_data_list<ST2110StreamStatsDataList, ST2110StreamStatsData>(cases);
}

}  // namespace Korvane::MemoryTests
