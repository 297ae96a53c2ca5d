// How the library's values print: operator<<, Ext::to_text, std::format in C++20 where the standard
// library has it, and {fmt} where one of its headers was included before this one. Header-only,
// C++17; needs run-time type information.
//
//   std::cout << timecode << ' ' << descriptor << '\n';
//   log(std::format("{:>12} {}", timecode, settings));
//
// Everything prints as one line of UTF-8, in every locale alike:
//   Timecode            its label: "01:00:00;00", with ";" where it is drop-frame. The field mark
//   is
//                       left out, as the label on a screen does, so at 50 and 60 both frames of a
//                       pair print alike; label_with_mark and label_at_full_rate tell them apart
//   Rational32          "30000/1001"
//   TimeData            "2024-02-29T23:59:59.040"
//   ImageInfo           "1920x1080 interlaced, Uyvy, ColorimetryUnspecified"
//   AudioInfo           "2 x 24 bits, 48000 Hz"
//   enumerations        the name, and "Colorspaces(99)" of a value that has none
//   Umid                its hexadecimal digits
//   Exception           "InvalidArgument (15): Received invalid timecode"
//   lists               "[a, b]"
//   everything else     "SrtSettings{days_to_preserve_stats 2, polling_period 5}", descriptors by
//                       their dynamic type, without the attributes that are absent
// Texts stand in quotes, where quotes, backslashes and control characters are escaped as in JSON,
// and an unpaired UTF-16 unit is U+FFFD. Doubles show up to 15 digits. A password never prints: it
// is "(set)" or "(not set)".
//
// A std::setw or width counts for the whole. Printing reads only and copies what cannot be read
// without writing, so one value may be printed on several threads at once. A program should include
// this header wherever it prints these types in templates of its own, or nowhere.

#ifndef KV_ENGINE_EXT_PRINT_H
#define KV_ENGINE_EXT_PRINT_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <locale>
#include <ostream>
#include <sstream>
#include <string>
#include <type_traits>
#if __has_include(<version>)
#include <version>
#endif
#if defined(__cpp_lib_format)
#include <format>
#include <string_view>
#endif

#include "kv_engine.h"

namespace Korvane::Ext {

// The names of enumerators; null for a value without one.
// clang-format off

inline const char* name_of(Media::VideoFormats value) {
  switch (value) {
    case Media::Ntsc:            return "Ntsc";
    case Media::Pal:             return "Pal";
    case Media::Hd1080p2398:     return "Hd1080p2398";
    case Media::Hd1080p24:       return "Hd1080p24";
    case Media::Hd1080p25:       return "Hd1080p25";
    case Media::Hd1080p2997:     return "Hd1080p2997";
    case Media::Hd1080p30:       return "Hd1080p30";
    case Media::Hd1080p50:       return "Hd1080p50";
    case Media::Hd1080p50Alt:    return "Hd1080p50Alt";
    case Media::Hd1080p5994:     return "Hd1080p5994";
    case Media::Hd1080p5994Alt:  return "Hd1080p5994Alt";
    case Media::Hd1080p60:       return "Hd1080p60";
    case Media::Hd1080p60Alt:    return "Hd1080p60Alt";
    case Media::Hd1080i50:       return "Hd1080i50";
    case Media::Hd1080i5994:     return "Hd1080i5994";
    case Media::Hd1080i60:       return "Hd1080i60";
    case Media::Hd720p50:        return "Hd720p50";
    case Media::Hd720p5994:      return "Hd720p5994";
    case Media::Hd720p60:        return "Hd720p60";
    case Media::Hd1080p2997Alt:  return "Hd1080p2997Alt";
    case Media::Hd1080p25Alt:    return "Hd1080p25Alt";
    case Media::Hd1080p2398Alt:  return "Hd1080p2398Alt";
    case Media::Uhd2160p60:      return "Uhd2160p60";
    case Media::Uhd2160p60Alt:   return "Uhd2160p60Alt";
    case Media::Uhd2160p5994:    return "Uhd2160p5994";
    case Media::Uhd2160p5994Alt: return "Uhd2160p5994Alt";
    case Media::Uhd2160p50:      return "Uhd2160p50";
    case Media::Uhd2160p50Alt:   return "Uhd2160p50Alt";
    case Media::Uhd2160p30:      return "Uhd2160p30";
    case Media::Uhd2160p2997:    return "Uhd2160p2997";
    case Media::Uhd2160p25:      return "Uhd2160p25";
    case Media::Uhd2160p24:      return "Uhd2160p24";
    case Media::Uhd2160p2398:    return "Uhd2160p2398";
    case Media::Uhd2160p2997Alt: return "Uhd2160p2997Alt";
    case Media::Uhd2160p25Alt:   return "Uhd2160p25Alt";
    case Media::Uhd2160p2398Alt: return "Uhd2160p2398Alt";
    case Media::Hd1080p2997Alt2: return "Hd1080p2997Alt2";
    case Media::Hd1080p25Alt2:   return "Hd1080p25Alt2";
    case Media::UnknownFormat:   return "UnknownFormat";
  }
  return nullptr;
}

inline const char* name_of(Colorspaces value) {
  switch (value) {
    case ColorspaceUndefined: return "ColorspaceUndefined";
    case Yuv420p:             return "Yuv420p";
    case Yuv422p:             return "Yuv422p";
    case Uyvy:                return "Uyvy";
    case V210:                return "V210";
    case V216:                return "V216";
    case Colorspace6:         return "Colorspace6";
    case Colorspace7:         return "Colorspace7";
    case Yuv422p10le:         return "Yuv422p10le";
    case Yuv422p10leAlt:      return "Yuv422p10leAlt";
    case Colorspace10:        return "Colorspace10";
    case Rgb24:               return "Rgb24";
    case Argb:                return "Argb";
    case Rgba:                return "Rgba";
    case Rgba64:              return "Rgba64";
    case Rgba64Alt:           return "Rgba64Alt";
    case Dpx10:               return "Dpx10";
    case Smpte2110Yuv10:      return "Smpte2110Yuv10";
    case Yuv420pAlt:          return "Yuv420pAlt";
  }
  return nullptr;
}

inline const char* name_of(Colorimetry value) {
  switch (value) {
    case ColorimetryUnspecified: return "ColorimetryUnspecified";
  }
  return nullptr;
}

inline const char* name_of(Media::TrackDescriptorEssenceKind value) {
  switch (value) {
    case Media::EssenceNone:         return "EssenceNone";
    case Media::EssenceAudio:        return "EssenceAudio";
    case Media::EssenceDnxhd:        return "EssenceDnxhd";
    case Media::EssenceVideo3:       return "EssenceVideo3";
    case Media::EssenceOther4:       return "EssenceOther4";
    case Media::EssenceMpeg2:        return "EssenceMpeg2";
    case Media::EssenceVideo6:       return "EssenceVideo6";
    case Media::EssenceAudio7:       return "EssenceAudio7";
    case Media::EssencePcm:          return "EssencePcm";
    case Media::EssenceAiff:         return "EssenceAiff";
    case Media::EssenceAudio10:      return "EssenceAudio10";
    case Media::EssenceUncompressed: return "EssenceUncompressed";
    case Media::EssenceVideo12:      return "EssenceVideo12";
    case Media::EssenceVideo13:      return "EssenceVideo13";
    case Media::EssenceVideo14:      return "EssenceVideo14";
    case Media::EssenceAvcIntra:     return "EssenceAvcIntra";
    case Media::EssenceProres16:     return "EssenceProres16";
    case Media::EssenceProres17:     return "EssenceProres17";
    case Media::EssenceProres18:     return "EssenceProres18";
    case Media::EssenceProres19:     return "EssenceProres19";
    case Media::EssenceProres20:     return "EssenceProres20";
    case Media::EssenceProres21:     return "EssenceProres21";
    case Media::EssenceVideo22:      return "EssenceVideo22";
    case Media::EssenceDnx23:        return "EssenceDnx23";
    case Media::EssenceDnx24:        return "EssenceDnx24";
    case Media::EssenceDnx25:        return "EssenceDnx25";
    case Media::EssenceDnx26:        return "EssenceDnx26";
    case Media::EssenceDnx27:        return "EssenceDnx27";
    case Media::EssenceData:         return "EssenceData";
    case Media::EssenceOther29:      return "EssenceOther29";
    case Media::EssenceVideo30:      return "EssenceVideo30";
    case Media::EssenceVideo31:      return "EssenceVideo31";
    case Media::EssenceVideo32:      return "EssenceVideo32";
    case Media::EssenceVideo33:      return "EssenceVideo33";
    case Media::EssenceVideo34:      return "EssenceVideo34";
    case Media::EssenceVideo35:      return "EssenceVideo35";
    case Media::EssenceVideo36:      return "EssenceVideo36";
    case Media::EssenceVideo37:      return "EssenceVideo37";
    case Media::EssenceVideo38:      return "EssenceVideo38";
    case Media::EssenceVideo39:      return "EssenceVideo39";
  }
  return nullptr;
}

inline const char* name_of(Media::SdpType value) {
  switch (value) {
    case Media::SdpVideo: return "SdpVideo";
    case Media::SdpAudio: return "SdpAudio";
    case Media::SdpAnc:   return "SdpAnc";
  }
  return nullptr;
}

inline const char* name_of(ExceptionCode value) {
  switch (value) {
    case StringConversionFailed: return "StringConversionFailed";
    case InvalidArgument:        return "InvalidArgument";
    case NotSupported:           return "NotSupported";
    case UnmappedValue:          return "UnmappedValue";
    case MissingProperty:        return "MissingProperty";
  }
  return nullptr;
}

// clang-format on

namespace Detail {

// One static function for each type, which appends to a line. A struct, so that each finds all.
struct Printer {
  // Plain values.

  static void put(std::string& line, bool value) { line += value ? "true" : "false"; }

  template <typename Integer>
  static std::enable_if_t<std::is_integral_v<Integer>> put(std::string& line, Integer value) {
    line += std::to_string(value);
  }

  static void put(std::string& line, double value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(std::numeric_limits<double>::digits10);
    text << value;
    line += text.str();
  }

  static void put(std::string& line, const char* text) {
    line += '"';
    for (; *text != '\0'; ++text) put_character(line, static_cast<unsigned char>(*text), *text);
    line += '"';
  }

  static void put(std::string& line, const wchar_t* text) {
    line += '"';
    while (*text != L'\0') put_code_point(line, next_code_point(text));
    line += '"';
  }

  // Values of the library.

  static void put(std::string& line, const Timecode& timecode) {
    put_label(line, timecode, timecode.frames());
  }

  static void put(std::string& line, const Rational32& fraction) {
    line += std::to_string(fraction.numerator) + '/' + std::to_string(fraction.denominator);
  }

  static void put(std::string& line, const TimeData& time) {
    put_digits(line, time.year, 4);
    put_digits(line += '-', time.month, 2);
    put_digits(line += '-', time.day, 2);
    put_digits(line += 'T', time.hour, 2);
    put_digits(line += ':', time.minute, 2);
    put_digits(line += ':', time.second, 2);
    put_digits(line += '.', time.millisecond, 3);
  }

  static void put(std::string& line, const ImageInfo& image) {
    line += std::to_string(image.width) + 'x' + std::to_string(image.height);
    line += image.interlaced ? " interlaced, " : " progressive, ";
    put(line, image.colorspace);
    put(line += ", ", image.colorimetry);
  }

  static void put(std::string& line, const AudioInfo& audio) {
    line += std::to_string(audio.channel_count) + " x " + std::to_string(audio.sampling_bits) +
            " bits, " + std::to_string(audio.sampling_rate) + " Hz";
  }

  static void put(std::string& line, Media::VideoFormats value) {
    put_name(line, value, "VideoFormats");
  }
  static void put(std::string& line, Colorspaces value) { put_name(line, value, "Colorspaces"); }
  static void put(std::string& line, Colorimetry value) { put_name(line, value, "Colorimetry"); }
  static void put(std::string& line, Media::TrackDescriptorEssenceKind value) {
    put_name(line, value, "TrackDescriptorEssenceKind");
  }
  static void put(std::string& line, Media::SdpType value) { put_name(line, value, "SdpType"); }
  static void put(std::string& line, ExceptionCode value) {
    put_name(line, value, "ExceptionCode");
  }

  static void put(std::string& line, const Exception& exception) {
    put(line, exception.code());
    line += " (" + std::to_string(static_cast<unsigned int>(exception.code())) + "): ";
    line += exception.message();
  }

  static void put(std::string& line, const Media::Umid& umid) {
    // Umid::c_str writes into the object.
    const Media::Umid copy(umid);  // NOLINT(performance-unnecessary-copy-initialization)
    for (const wchar_t* digit = copy.c_str(); *digit != L'\0'; ++digit)
      line += static_cast<char>(*digit);
  }

  // Descriptors, frames and samples.

  static void put(std::string& line, const Media::TrackDescriptor& track) {
    using namespace Media;
    const auto* const picture = dynamic_cast<const PictureTrackDescriptor*>(&track);
    const auto* const sound = dynamic_cast<const SoundTrackDescriptor*>(&track);
    Fields fields(line, picture != nullptr ? "PictureTrackDescriptor"
                        : sound != nullptr ? "SoundTrackDescriptor"
                        : dynamic_cast<const DataTrackDescriptor*>(&track) != nullptr
                            ? "DataTrackDescriptor"
                        : dynamic_cast<const CompoundTrackDescriptor*>(&track) != nullptr
                            ? "CompoundTrackDescriptor"
                            : "TrackDescriptor");
    fields("essence_kind", track.essence_kind())("track_id", track.track_id());
    fields("sample_rate", track.sample_rate())("pre_charge", track.pre_charge());
    fields("private_data", track.private_data());
    if (picture != nullptr) put_picture(fields, *picture);
    if (sound != nullptr) {
      fields("sampling_rate", sound->sampling_rate())("sampling_bits", sound->sampling_bits());
      fields("channel_count", sound->channel_count());
    }
  }

  static void put(std::string& line, const Media::TrackDescriptorSharedPtr& handle) {
    if (handle.get() != nullptr)
      put(line, *handle.get());
    else
      line += "null";
  }

  static void put(std::string& line, const Media::MediaSample& sample) {
    Fields fields(line, "MediaSample");
    fields("track_id", sample.track_id())("essence_kind", sample.essence_kind());
    fields("time_rate", sample.time_rate())("presentation_time", sample.presentation_time());
    fields("decode_time", sample.decode_time())("duration", sample.duration());
    fields("is_key_frame", sample.is_key_frame())("timecode", sample.timecode());
    fields("size", sample.size());
  }

  static void put(std::string& line, const Media::VideoFrame& frame) {
    Fields(line, "VideoFrame")("number", frame.number)("image", frame.image)(
        "sample", static_cast<const Media::MediaSample*>(frame.sample.get()));
  }

  static void put(std::string& line, const Media::VideoDescriptorFrame& frame) {
    Fields(line, "VideoDescriptorFrame")("number", frame.number)("descriptor", frame.descriptor);
  }

  static void put(std::string& line, const Media::TimecodeInfo& info) {
    Fields(line, "TimecodeInfo")("initial_timecode", info.initial_timecode());
  }

  // Settings.

  static void put(std::string& line, const Media::SdpConfig& endpoint) {
    Fields(line, "SdpConfig")("type", read(endpoint).type())("ip_address", endpoint.ip_address())(
        "port", endpoint.port());
  }

  static void put(std::string& line, const Media::SdpConfigSet& set) {
    Fields(line, "SdpConfigSet")("video", set.video_sdp())("audio", set.audio_sdp())("anc",
                                                                                     set.anc_sdp());
  }

  static void put(std::string& line, const Media::SrtSettings& settings) {
    Fields(line, "SrtSettings")("days_to_preserve_stats", settings.days_to_preserve_stats())(
        "polling_period", settings.polling_period());
  }

  static void put(std::string& line, const Media::MultiviewerConfig& config) {
    Fields fields(line, "MultiviewerConfig");
    fields("server_address", config.server_address())("port", config.port());
    fields("width", config.width())("height", config.height());
    fields("edit_rate", read(config).edit_rate());
    fields("keep_aspect_ratio", config.keep_aspect_ratio());
  }

  static void put(std::string& line, const Media::MultiviewerSource& tile) {
    Fields fields(line, "MultiviewerSource");
    fields("id", tile.id())("channel_id", tile.channel_id());
    fields("width", tile.width())("height", tile.height());
    fields("x_offset", tile.x_offset())("y_offset", tile.y_offset());
    fields("use_audio", tile.use_audio());
  }

  static void put(std::string& line, const Media::CameraInfo& camera) {
    Fields fields(line, "CameraInfo");
    fields("camera", static_cast<unsigned int>(read(camera).camera()));
    fields("state", static_cast<unsigned int>(read(camera).state()));
    fields("recording", camera.recording())("clip_name", camera.clip_name());
  }

  static void put(std::string& line, const Media::InterplayWebService& service) {
    Fields fields(line, "InterplayWebService");
    fields("server", service.server())("port", service.port());
    fields("workgroup", service.workgroup())("user", service.user());
    fields("password", Bare{*service.password() != '\0' ? "(set)" : "(not set)"});
    fields("use_https", service.use_https())("timeout", service.timeout());
  }

  static void put(std::string& line, const Media::SourceInfo& source) {
    Fields fields(line, "SourceInfo");
    fields("umid_kind", static_cast<unsigned int>(read(source).SourceInfo::umid_kind()));
    fields("tape_mob_id", source.tape_mob_id())("master_mob_id", source.master_mob_id());
    fields("source_mob_id", source.source_mob_id());
    fields("tape_name", source.tape_name());
  }

  // Statistics.

  static void put(std::string& line, const Media::SRTStreamStatsData& sample) {
    Fields fields(line, "SRTStreamStatsData");
    fields("timestamp", sample.timestamp())("packets_sent", sample.packets_sent());
    fields("packets_received", sample.packets_received())("ms_rtt", sample.ms_rtt());
    fields("packets_lost", sample.packets_lost())("bitrate", sample.bitrate());
    fields("latency", sample.latency());
    fields("packets_retransmitted", sample.packets_retransmitted());
    fields("pkt_snd_loss", sample.pkt_snd_loss())("pkt_rcv_loss", sample.pkt_rcv_loss());
    fields("pkt_retrans", sample.pkt_retrans())("pkt_sent_ack", sample.pkt_sent_ack());
    fields("pkt_recv_ack", sample.pkt_recv_ack())("pkt_sent_nak", sample.pkt_sent_nak());
    fields("pkt_recv_nak", sample.pkt_recv_nak())("mbps_send_rate", sample.mbps_send_rate());
    fields("snd_duration", sample.snd_duration());
    fields("pkt_reorder_distance", sample.pkt_reorder_distance());
    fields("pkt_rcv_avg_belated_time", sample.pkt_rcv_avg_belated_time());
    fields("pkt_rcv_belated", sample.pkt_rcv_belated())("pkt_snd_drop", sample.pkt_snd_drop());
    fields("pkt_rcv_undecrypt", sample.pkt_rcv_undecrypt());
    fields("pkt_send_period", sample.pkt_send_period());
    fields("pkt_flow_window", sample.pkt_flow_window());
    fields("pkt_congestion_window", sample.pkt_congestion_window());
    fields("pkt_flight_size", sample.pkt_flight_size());
    fields("mbps_bandwidth", sample.mbps_bandwidth());
    fields("mbps_max_bandwidth", sample.mbps_max_bandwidth())("byte_mss", sample.byte_mss());
    fields("pkt_snd_buffer", sample.pkt_snd_buffer())("ms_snd_buffer", sample.ms_snd_buffer());
    fields("ms_send_delay", sample.ms_send_delay())("pkt_rcv_buffer", sample.pkt_rcv_buffer());
    fields("ms_rcv_buffer", sample.ms_rcv_buffer());
    fields("pkt_reorder_tolerance", sample.pkt_reorder_tolerance());
  }

  static void put(std::string& line, const Media::ST2110StreamStatsData& sample) {
    Fields fields(line, "ST2110StreamStatsData");
    fields("timestamp", sample.timestamp())("error_frames", sample.error_frames());
    fields("video_bps_rate", sample.video_bps_rate())("sound_bps_rate", sample.sound_bps_rate());
  }

  static void put(std::string& line, const Media::TrackBitRates& track) {
    Fields(line, "TrackBitRates")("essence_kind", read(track).essence_kind())("bit_rate",
                                                                              track.bit_rate());
  }

  // Lists.

  static void put(std::string& line, const Media::UIntList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, *list.value_at(i)); });
  }

  static void put(std::string& line, const Media::TrackDescriptorList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, *list.track_at(i)); });
  }

  static void put(std::string& line, const Media::TrackBitRatesList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, *list.track_at(i)); });
  }

  static void put(std::string& line, const Media::SRTStreamStatsDataList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, *list.value_at(i)); });
  }

  static void put(std::string& line, const Media::ST2110StreamStatsDataList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, *list.value_at(i)); });
  }

  static void put(std::string& line, const Media::MultiviewerSourceList& list) {
    put_list(line, list.size(), [&](std::size_t i) { put(line, list.source_at(i)); });
  }

  static void put(std::string& line, const Media::AudioTrackConfig& list) {
    put_list(line, list.source_channel_count(), [&](std::size_t i) {
      put(line, list.source_channel_for_index(static_cast<unsigned int>(i)));
    });
  }

  static void put(std::string& line, const Media::AudioPowerList& list) {
    put_list(line, list.size(), [&](std::size_t i) {
      put(line, *list.track_at(i));
      if (list.track_muted_at(i)) line += " muted";
    });
  }

  // It does not tell its keys.
  static void put(std::string& line, const ValueMap& map) {
    Fields(line, "ValueMap")("size", map.size());
  }

  // Hours, minutes, seconds and `frames`.
  static void put_label(std::string& line, const Timecode& timecode, unsigned int frames) {
    put_digits(line, timecode.hours(), 2);
    put_digits(line += ':', timecode.minutes(), 2);
    put_digits(line += ':', timecode.seconds(), 2);
    put_digits(line += timecode.drop_frame() ? ';' : ':', frames, 2);
  }

 private:
  // A text without quotes.
  struct Bare {
    const char* text;
  };

  static void put(std::string& line, Bare bare) { line += bare.text; }

  // Writes "Name{field value, field value}".
  class Fields {
   public:
    Fields(std::string& line, const char* name) : line_(line) { line_.append(name) += '{'; }
    Fields(const Fields&) = delete;
    Fields& operator=(const Fields&) = delete;
    ~Fields() { line_ += '}'; }

    // A null `value` of a class or number is absent, and leaves the field out.
    template <typename T>
    Fields& operator()(const char* name, const T& value) {
      if constexpr (std::is_pointer_v<T> && !kIsText<T>) {
        if (value != nullptr) (*this)(name, *value);
      } else {
        if (!first_) line_ += ", ";
        first_ = false;
        put(line_.append(name) += ' ', value);
      }
      return *this;
    }

   private:
    template <typename T>
    static constexpr bool kIsText =
        std::is_same_v<T, const char*> || std::is_same_v<T, const wchar_t*>;

    std::string& line_;
    bool first_ = true;
  };

  static void put_picture(Fields& fields, const Media::PictureTrackDescriptor& picture) {
    fields("width", picture.width())("height", picture.height());
    fields("interlaced", picture.interlaced())("aspect_ratio", picture.aspect_ratio());
    fields("bit_rate", picture.bit_rate())("component_depth", picture.component_depth());
    fields("colorspace", picture.colorspace())("colorimetry", picture.colorimetry());
  }

  // For getters that were published without const, and change nothing.
  template <typename T>
  static T& read(const T& object) {
    return const_cast<T&>(object);
  }

  template <typename PutAt>
  static void put_list(std::string& line, std::size_t size, PutAt put_at) {
    line += '[';
    for (std::size_t i = 0; i < size; ++i) {
      if (i != 0) line += ", ";
      put_at(i);
    }
    line += ']';
  }

  template <typename Enum>
  static void put_name(std::string& line, Enum value, const char* type) {
    const char* const name = name_of(value);
    if (name != nullptr)
      line += name;
    else
      line.append(type) += '(' + std::to_string(static_cast<unsigned int>(value)) + ')';
  }

  static void put_digits(std::string& line, unsigned int value, std::size_t width) {
    const std::string digits = std::to_string(value);
    if (digits.size() < width) line.append(width - digits.size(), '0');
    line += digits;
  }

  // A character of a quoted text: `code` tells what it is, `plain` how it is written otherwise.
  static void put_character(std::string& line, std::uint32_t code, char plain) {
    constexpr char kDigits[] = "0123456789abcdef";
    if (code == '"' || code == '\\') {
      line += '\\';
      line += plain;
    } else if (code < 0x20 || code == 0x7F) {
      line += code == '\n' ? "\\n" : code == '\r' ? "\\r" : code == '\t' ? "\\t" : "\\u00";
      if (line.back() == '0') (line += kDigits[code >> 4U]) += kDigits[code & 0xFU];
    } else {
      line += plain;
    }
  }

  // Steps `text` on. Outside Windows a unit may also be a whole code point.
  static std::uint32_t next_code_point(const wchar_t*& text) {
    const std::uint32_t unit = static_cast<char32_t>(*text++);
    if (unit < 0xD800 || unit > 0xDFFF) return unit <= 0x10FFFF ? unit : 0xFFFD;
    const std::uint32_t next = static_cast<char32_t>(*text);
    if (unit > 0xDBFF || next < 0xDC00 || next > 0xDFFF) return 0xFFFD;
    ++text;
    return 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00);
  }

  static void put_code_point(std::string& line, std::uint32_t code) {
    const auto trail = [&line, code](unsigned int shift) {
      line += static_cast<char>(0x80U | (code >> shift & 0x3FU));
    };
    if (code < 0x80) return put_character(line, code, static_cast<char>(code));
    if (code < 0x800) {
      line += static_cast<char>(0xC0U | code >> 6U);
    } else if (code < 0x10000) {
      line += static_cast<char>(0xE0U | code >> 12U);
      trail(6);
    } else {
      line += static_cast<char>(0xF0U | code >> 18U);
      trail(12);
      trail(6);
    }
    trail(0);
  }
};

template <typename T, typename... Bases>
inline constexpr bool kIsAnyOf = (std::is_base_of_v<Bases, T> || ...);

template <typename T, typename... Types>
inline constexpr bool kIsPrintableEnum = (std::is_same_v<Types, T> || ...);

template <typename T>
inline constexpr bool kIsPrintableList =
    kIsAnyOf<T, Media::UIntList, Media::TrackDescriptorList, Media::TrackBitRatesList,
             Media::SRTStreamStatsDataList, Media::ST2110StreamStatsDataList,
             Media::MultiviewerSourceList, Media::AudioTrackConfig, Media::AudioPowerList>;

// What prints, but for the lists.
template <typename T>
inline constexpr bool kIsPrintableValue =
    kIsPrintableEnum<T, Media::VideoFormats, Colorspaces, Colorimetry,
                     Media::TrackDescriptorEssenceKind, Media::SdpType, ExceptionCode> ||
    kIsAnyOf<T, Timecode, Rational32, TimeData, ImageInfo, AudioInfo, Exception, Media::Umid,
             Media::TrackDescriptor, Media::TrackDescriptorSharedPtr, Media::MediaSample,
             Media::VideoFrame, Media::VideoDescriptorFrame, Media::TimecodeInfo, Media::SdpConfig,
             Media::SdpConfigSet, Media::SrtSettings, Media::MultiviewerConfig,
             Media::MultiviewerSource, Media::CameraInfo, Media::InterplayWebService,
             Media::SourceInfo, Media::SRTStreamStatsData, Media::ST2110StreamStatsData,
             Media::TrackBitRates, ValueMap>;

template <typename T>
using IfPrintable = std::enable_if_t<kIsPrintableValue<T> || kIsPrintableList<T>, int>;

}  // namespace Detail

// What operator<< prints.
template <typename T, Detail::IfPrintable<T> = 0>
std::string to_text(const T& value) {
  std::string line;
  Detail::Printer::put(line, value);
  return line;
}

// The label with ".0" or ".1" behind it at the double rates, for the first and second frame of a
// pair: "00:00:00:24.1".
inline std::string label_with_mark(const Timecode& timecode) {
  std::string line = to_text(timecode);
  if (timecode.frame_rate() > 30) line += timecode.field_mark() ? ".1" : ".0";
  return line;
}

// The label with the frame number at full rate: "00:00:00:49".
inline std::string label_at_full_rate(const Timecode& timecode) {
  std::string line;
  Detail::Printer::put_label(line, timecode, timecode.frames_ignore_field_mark());
  return line;
}

template <typename T, Detail::IfPrintable<T> = 0>
std::ostream& operator<<(std::ostream& out, const T& value) {
  return out << to_text(value);
}

}  // namespace Korvane::Ext

// Where argument-dependent lookup finds it.
namespace Korvane {
using Ext::operator<<;
namespace Media {
using Ext::operator<<;
}  // namespace Media
}  // namespace Korvane

// Formatters of everything but the lists, which C++23 and <fmt/ranges.h> format as ranges, with
// ext/ranges.h; before, give them as Ext::to_text(list). They take what those of texts take:
// "{:>12}".
#if defined(__cpp_lib_format)
template <typename T>
requires Korvane::Ext::Detail::kIsPrintableValue<T>
struct std::formatter<T, char> {
  constexpr auto parse(std::format_parse_context& context) { return text_.parse(context); }
  template <typename Context>
  auto format(const T& value, Context& context) const {
    return text_.format(Korvane::Ext::to_text(value), context);
  }

 private:
  std::formatter<std::string_view, char> text_;  // no base: ranges would put quotes around it
};
#endif

#if defined(FMT_VERSION)
template <typename T>
struct fmt::formatter<T, char, std::enable_if_t<Korvane::Ext::Detail::kIsPrintableValue<T>>> {
  constexpr auto parse(fmt::format_parse_context& context) { return text_.parse(context); }
  template <typename Context>
  auto format(const T& value, Context& context) const {
    const std::string line = Korvane::Ext::to_text(value);
    return text_.format(fmt::string_view(line.data(), line.size()), context);
  }

 private:
  fmt::formatter<fmt::string_view, char> text_;  // no base: ranges would put quotes around it
};
#endif

#endif  // KV_ENGINE_EXT_PRINT_H
