// What can be read of a value, as text, so that a value before and after can be compared.

#ifndef KV_ENGINE_TESTS_MEMORY_VALUES_TEXT_H
#define KV_ENGINE_TESTS_MEMORY_VALUES_TEXT_H

#include <string>
#include <type_traits>

#include "kv_engine.h"

namespace Korvane::MemoryTests {

template <typename Number>
requires(std::is_arithmetic_v<Number> || std::is_enum_v<Number>) std::string text_of(Number value) {
  if constexpr (std::is_enum_v<Number>)
    return std::to_string(static_cast<unsigned int>(value));
  else
    return std::to_string(value);
}

inline std::string text_of(const char* text) {
  return text != nullptr ? '"' + std::string(text) + '"' : "none";
}

inline std::string text_of(const wchar_t* text) {
  std::string units;
  for (; *text != L'\0'; ++text) units += std::to_string(static_cast<unsigned int>(*text)) + ' ';
  return '"' + units + '"';
}

inline std::string text_of(Rational32 value) {
  return std::to_string(value.numerator) + '/' + std::to_string(value.denominator);
}

inline std::string text_of(const Timecode& timecode) {
  return std::to_string(timecode.frame_rate()) + ' ' + std::to_string(timecode.frame_count()) +
         ' ' + std::to_string(timecode.days()) + ' ' +
         timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
}

inline std::string text_of(const Media::Umid& umid) { return text_of(umid.c_str()); }

inline std::string text_of(Media::SdpConfig& config) {
  return text_of(config.type()) + ' ' + text_of(config.ip_address()) + ' ' + text_of(config.port());
}

inline std::string text_of(const Media::SRTStreamStatsData& data) {
  return text_of(data.timestamp()) + ' ' + text_of(data.bitrate());
}

inline std::string text_of(const Media::ST2110StreamStatsData& data) {
  return text_of(data.timestamp()) + ' ' + text_of(data.video_bps_rate());
}

inline std::string text_of(const Media::TrackBitRates& rates) { return text_of(rates.bit_rate()); }

inline std::string text_of(const Media::MultiviewerSource& source) {
  return text_of(source.id()) + ' ' + text_of(source.channel_id());
}

inline std::string text_of(const Media::TrackDescriptor& track) {
  return text_of(track.essence_kind());
}

inline std::string text_of(const ImageInfo& image) {
  return text_of(image.width) + 'x' + text_of(image.height) + ' ' + text_of(image.interlaced) +
         ' ' + text_of(image.colorspace) + ' ' + text_of(image.colorimetry);
}

// Objects in handles are not looked into.
inline std::string text_of(const Memory::Sample* sample) {
  return sample != nullptr ? "sample" : "none";
}

template <typename Value>
requires requires(Value& value) { text_of(value); }
std::string text_of(Value* value) { return value != nullptr ? text_of(*value) : "none"; }

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_VALUES_TEXT_H
