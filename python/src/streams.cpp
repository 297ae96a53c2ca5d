#include "binding.h"
#include "media/sdp_config.h"
#include "media/sdp_config_set.h"
#include "media/sdp_type.h"
#include "media/srt_settings.h"
#include "media/srt_stream_stats_data.h"
#include "media/st2110_stream_stats_data.h"
#include "media/track_bit_rates.h"

namespace Korvane::Python {
namespace {

using Media::SdpConfig;
using Media::SdpConfigSet;
using Media::SdpType;
using Media::SrtSettings;
using Media::SRTStreamStatsData;
using Media::ST2110StreamStatsData;
using Media::TrackBitRates;

// In the order of the header.
constexpr const char* kSrtFields[] = {"timestamp",
                                      "packets_sent",
                                      "packets_received",
                                      "ms_rtt",
                                      "packets_lost",
                                      "bitrate",
                                      "latency",
                                      "packets_retransmitted",
                                      "pkt_snd_loss",
                                      "pkt_rcv_loss",
                                      "pkt_retrans",
                                      "pkt_sent_ack",
                                      "pkt_recv_ack",
                                      "pkt_sent_nak",
                                      "pkt_recv_nak",
                                      "mbps_send_rate",
                                      "snd_duration",
                                      "pkt_reorder_distance",
                                      "pkt_rcv_avg_belated_time",
                                      "pkt_rcv_belated",
                                      "pkt_snd_drop",
                                      "pkt_rcv_undecrypt",
                                      "pkt_send_period",
                                      "pkt_flow_window",
                                      "pkt_congestion_window",
                                      "pkt_flight_size",
                                      "mbps_bandwidth",
                                      "mbps_max_bandwidth",
                                      "byte_mss",
                                      "pkt_snd_buffer",
                                      "ms_snd_buffer",
                                      "ms_send_delay",
                                      "pkt_rcv_buffer",
                                      "ms_rcv_buffer",
                                      "pkt_reorder_tolerance"};

void bind_sdp(py::module_& module) {
  enumeration<SdpType>(module, "", "SdpType");

  Class<SdpConfig> config(module, "SdpConfig");
  config.def(py::init<SdpType>(), py::arg("type"));
  config.factory([](SdpType type, const Wide& ip_address,
                    int port) { return SdpConfig(type, ip_address.value.c_str(), port); },
                 py::arg("type"), py::arg("ip_address"), py::arg("port"));
  config.copies()
      .equality()
      .getter("type", &SdpConfig::type)
      .getter("port", &SdpConfig::port)
      .text("ip_address", &SdpConfig::ip_address)
      .repr({"type", "ip_address", "port"});

  Class<SdpConfigSet> set(module, "SdpConfigSet");
  set.def(py::init<>());
  set.constructor<SdpConfig>(py::arg("video"));
  set.def(py::init<SdpConfig, SdpConfig>(), py::arg("video"), py::arg("audio"));
  set.def(py::init<SdpConfig, SdpConfig, SdpConfig>(), py::arg("video"), py::arg("audio"),
          py::arg("anc"));
  const auto endpoint = [&set](const char* name, SdpConfig& (SdpConfigSet::*place)() const) {
    set.read_write(
        name, [place](const SdpConfigSet& self) { return SdpConfig((self.*place)()); },
        [place](SdpConfigSet& self, const SdpConfig& value) { (self.*place)() = value; });
  };
  endpoint("video_sdp", &SdpConfigSet::video_sdp);
  endpoint("audio_sdp", &SdpConfigSet::audio_sdp);
  endpoint("anc_sdp", &SdpConfigSet::anc_sdp);
  set.copies().repr({"video_sdp", "audio_sdp", "anc_sdp"});
}

void bind_srt(py::module_& module) {
  Class<SrtSettings> settings(module, "SrtSettings");
  settings.constructor<>();
  settings.def(py::init<unsigned short, unsigned int>(), py::arg("days_to_preserve_stats"),
               py::arg("polling_period"));
  settings.copies()
      .equality()
      .getter("days_to_preserve_stats", &SrtSettings::days_to_preserve_stats)
      .getter("polling_period", &SrtSettings::polling_period)
      .repr({"days_to_preserve_stats", "polling_period"});

  using Stats = SRTStreamStatsData;
  Class<Stats> type(module, "SRTStreamStatsData");
  type.constructor<>();
  type.copies();
  type.equality();
  type.property("timestamp", &Stats::timestamp, &Stats::timestamp);
  type.property("packets_sent", &Stats::packets_sent, &Stats::packets_sent);
  type.property("packets_received", &Stats::packets_received, &Stats::packets_received);
  type.property("ms_rtt", &Stats::ms_rtt, &Stats::ms_rtt);
  type.property("packets_lost", &Stats::packets_lost, &Stats::packets_lost);
  type.property("bitrate", &Stats::bitrate, &Stats::bitrate);
  type.property("latency", &Stats::latency, &Stats::latency);
  type.property("packets_retransmitted", &Stats::packets_retransmitted,
                &Stats::packets_retransmitted);
  type.property("pkt_snd_loss", &Stats::pkt_snd_loss, &Stats::pkt_snd_loss);
  type.property("pkt_rcv_loss", &Stats::pkt_rcv_loss, &Stats::pkt_rcv_loss);
  type.property("pkt_retrans", &Stats::pkt_retrans, &Stats::pkt_retrans);
  type.property("pkt_sent_ack", &Stats::pkt_sent_ack, &Stats::pkt_sent_ack);
  type.property("pkt_recv_ack", &Stats::pkt_recv_ack, &Stats::pkt_recv_ack);
  type.property("pkt_sent_nak", &Stats::pkt_sent_nak, &Stats::pkt_sent_nak);
  type.property("pkt_recv_nak", &Stats::pkt_recv_nak, &Stats::pkt_recv_nak);
  type.property("mbps_send_rate", &Stats::mbps_send_rate, &Stats::mbps_send_rate);
  type.property("snd_duration", &Stats::snd_duration, &Stats::snd_duration);
  type.property("pkt_reorder_distance", &Stats::pkt_reorder_distance, &Stats::pkt_reorder_distance);
  type.property("pkt_rcv_avg_belated_time", &Stats::pkt_rcv_avg_belated_time,
                &Stats::pkt_rcv_avg_belated_time);
  type.property("pkt_rcv_belated", &Stats::pkt_rcv_belated, &Stats::pkt_rcv_belated);
  type.property("pkt_snd_drop", &Stats::pkt_snd_drop, &Stats::pkt_snd_drop);
  type.property("pkt_rcv_undecrypt", &Stats::pkt_rcv_undecrypt, &Stats::pkt_rcv_undecrypt);
  type.property("pkt_send_period", &Stats::pkt_send_period, &Stats::pkt_send_period);
  type.property("pkt_flow_window", &Stats::pkt_flow_window, &Stats::pkt_flow_window);
  type.property("pkt_congestion_window", &Stats::pkt_congestion_window,
                &Stats::pkt_congestion_window);
  type.property("pkt_flight_size", &Stats::pkt_flight_size, &Stats::pkt_flight_size);
  type.property("mbps_bandwidth", &Stats::mbps_bandwidth, &Stats::mbps_bandwidth);
  type.property("mbps_max_bandwidth", &Stats::mbps_max_bandwidth, &Stats::mbps_max_bandwidth);
  type.property("byte_mss", &Stats::byte_mss, &Stats::byte_mss);
  type.property("pkt_snd_buffer", &Stats::pkt_snd_buffer, &Stats::pkt_snd_buffer);
  type.property("ms_snd_buffer", &Stats::ms_snd_buffer, &Stats::ms_snd_buffer);
  type.property("ms_send_delay", &Stats::ms_send_delay, &Stats::ms_send_delay);
  type.property("pkt_rcv_buffer", &Stats::pkt_rcv_buffer, &Stats::pkt_rcv_buffer);
  type.property("ms_rcv_buffer", &Stats::ms_rcv_buffer, &Stats::ms_rcv_buffer);
  type.property("pkt_reorder_tolerance", &Stats::pkt_reorder_tolerance,
                &Stats::pkt_reorder_tolerance);
  // What is not 0: most samples are of one side only, and half of the fields belong to the other.
  type.def("__repr__", [](const py::object& self) {
    std::vector<const char*> names;
    for (const char* const name : kSrtFields)
      if (!py::object(self.attr(name)).equal(py::int_(0))) names.push_back(name);
    return repr_of(self, names);
  });
}

void bind_rates(py::module_& module) {
  using Stats = ST2110StreamStatsData;
  Class<Stats>(module, "ST2110StreamStatsData")
      .constructor<>()
      .copies()
      .equality()
      .property("timestamp", &Stats::timestamp, &Stats::timestamp)
      .property("error_frames", &Stats::error_frames, &Stats::error_frames)
      .property("video_bps_rate", &Stats::video_bps_rate, &Stats::video_bps_rate)
      .property("sound_bps_rate", &Stats::sound_bps_rate, &Stats::sound_bps_rate)
      .repr({"timestamp", "error_frames", "video_bps_rate", "sound_bps_rate"});

  Class<TrackBitRates> rates(module, "TrackBitRates");
  rates.constructor<>();
  rates.def(py::init<Media::TrackDescriptorEssenceKind, unsigned int>(), py::arg("kind"),
            py::arg("bit_rate"));
  rates.copies()
      .property("essence_kind", &TrackBitRates::essence_kind, &TrackBitRates::essence_kind)
      .property("bit_rate", &TrackBitRates::bit_rate, &TrackBitRates::bit_rate)
      .repr({"essence_kind", "bit_rate"});
}

}  // namespace

void bind_streams(py::module_& module) {
  bind_sdp(module);
  bind_srt(module);
  bind_rates(module);
}

}  // namespace Korvane::Python
