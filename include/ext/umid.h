// UMIDs (SMPTE ST 330) from and to the texts and byte orders that other systems use. Header-only,
// C++17.
//
//   const auto umid = Korvane::Ext::parse_umid(text);   // URN, 0x..., dotted or plain
//   if (umid && Korvane::Ext::is_basic(*umid)) puts(Korvane::Ext::to_urn(*umid).c_str());
//
// Umid tells its bytes but not their number. These functions find it in a copy of their own, since
// Umid::c_str writes into the object: one UMID may be given to them on several threads at once.

#ifndef KV_ENGINE_EXT_UMID_H
#define KV_ENGINE_EXT_UMID_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string>
#include <string_view>

#include "core/exception.h"
#include "media/umid.h"

namespace Korvane::Ext {

inline constexpr std::size_t kBasicUmidSize = 32;
inline constexpr std::size_t kExtendedUmidSize = 64;

// A mob id as AAF keeps it in memory and in files, little-endian: label, length and instance as in
// a UMID, then the material as an AUID, whose Data1 (32 bits), Data2 and Data3 (16 bits) stand with
// their least byte first.
using AafMobId = std::array<std::uint8_t, kBasicUmidSize>;

namespace Detail {

inline constexpr std::string_view kUmidUrn = "urn:smpte:umid:";
inline constexpr char kUmidDigits[] = "0123456789ABCDEF";

constexpr bool is_hex(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Whether `text` begins with `prefix`, which is lower-case; of either case.
inline bool begins_with(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin(),
                    [](char left, char right) { return left == lower(right); });
}

// The bytes in upper case, with a dot before each `group` of them but the first; 0 for no dots.
inline std::string umid_text(const unsigned char* bytes, std::size_t size, std::size_t group) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) {
    if (group != 0 && i != 0 && i % group == 0) text += '.';
    text += kUmidDigits[bytes[i] >> 4U];
    text += kUmidDigits[bytes[i] & 0xFU];
  }
  return text;
}

// Without its dots, where they stand behind every `digits` digits; nothing otherwise.
inline std::optional<std::string> without_dots(std::string_view text, std::size_t digits) {
  std::string joined;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i % (digits + 1) != digits)
      joined += text[i];
    else if (text[i] != '.' || i + 1 == text.size())
      return std::nullopt;
  }
  return joined;
}

// Whether a material number says of itself that its halves are swapped: a UL of AAF in its second
// half, made by no defined method.
inline bool is_half_swapped(const unsigned char* label, const unsigned char* second_half) {
  constexpr unsigned char kPrefix[] = {0x06, 0x0E, 0x2B, 0x34, 0x7F, 0x7F};
  return label[11] == 0 && std::equal(std::begin(kPrefix), std::end(kPrefix), second_half);
}

}  // namespace Detail

// The number of bytes.
inline std::size_t size(const Media::Umid& umid) {
  // Umid::c_str writes into the object.
  const Media::Umid copy(umid);  // NOLINT(performance-unnecessary-copy-initialization)
  return std::wcslen(copy.c_str()) / 2;
}

// 32 bytes.
inline bool is_basic(const Media::Umid& umid) { return size(umid) == kBasicUmidSize; }

// 64 bytes: with the source pack.
inline bool is_extended(const Media::Umid& umid) { return size(umid) == kExtendedUmidSize; }

// Whether all bytes are equal, and equally many.
inline bool equal(const Media::Umid& left, const Media::Umid& right) {
  const std::size_t bytes = size(left);
  return bytes == size(right) && std::equal(left.value(), left.value() + bytes, right.value());
}

// The first `count` bytes at `bytes` as a UMID.
inline Media::Umid make_umid(const unsigned char* bytes, std::size_t count) {
  const std::string text = Detail::umid_text(bytes, count, 0);
  return Media::Umid(std::wstring(text.begin(), text.end()).c_str());
}

// "0x060A2B34..." in upper case.
inline std::string to_hex(const Media::Umid& umid) {
  return "0x" + Detail::umid_text(umid.value(), size(umid), 0);
}

// "06.0A.2B.34. ..." in upper case, a dot after each byte but the last.
inline std::string to_dotted(const Media::Umid& umid) {
  return Detail::umid_text(umid.value(), size(umid), 1);
}

// The URN of SMPTE ST 2029: "urn:smpte:umid:060A2B34.01010105. ...", groups of eight upper-case
// digits. Raises InvalidArgument "UMID must have 32 or 64 bytes".
inline std::string to_urn(const Media::Umid& umid) {
  const std::size_t bytes = size(umid);
  exception_enforce(bytes == kBasicUmidSize || bytes == kExtendedUmidSize, InvalidArgument,
                    "UMID must have 32 or 64 bytes", true);
  return std::string(Detail::kUmidUrn) + Detail::umid_text(umid.value(), bytes, 4);
}

// A basic or extended UMID from one of its texts, in either case: a URN, digits behind "0x", digits
// alone, or bytes parted by dots. Nothing for every other text, where Umid would pass over what is
// no digit, and for every other length.
inline std::optional<Media::Umid> parse_umid(std::string_view text) {
  std::optional<std::string> digits;
  if (Detail::begins_with(text, Detail::kUmidUrn))
    digits = Detail::without_dots(text.substr(Detail::kUmidUrn.size()), 8);
  else if (Detail::begins_with(text, "0x"))
    digits = std::string(text.substr(2));
  else if (text.find('.') != std::string_view::npos)
    digits = Detail::without_dots(text, 2);
  else
    digits = std::string(text);
  if (!digits || !std::all_of(digits->begin(), digits->end(), Detail::is_hex)) return std::nullopt;
  if (digits->size() != 2 * kBasicUmidSize && digits->size() != 2 * kExtendedUmidSize)
    return std::nullopt;
  return Media::Umid(std::wstring(digits->begin(), digits->end()).c_str());
}

// A basic UMID as the mob id of AAF. The bytes of Data1 to Data3 are reversed; where the material
// number is a UL of AAF with its halves swapped (it begins 06 0E 2B 34 7F 7F, and byte 12 of the
// label is 0), as MXF keeps those of older systems, Data4 comes first in the UMID. Raises
// InvalidArgument "UMID must have 32 bytes".
inline AafMobId to_aaf_mob_id(const Media::Umid& umid) {
  exception_enforce(is_basic(umid), InvalidArgument, "UMID must have 32 bytes", true);
  const unsigned char* const bytes = umid.value();
  const bool swapped = Detail::is_half_swapped(bytes, bytes + 16);
  const unsigned char* const data1 = bytes + (swapped ? 24 : 16);
  const unsigned char* const data4 = bytes + (swapped ? 16 : 24);
  AafMobId mob_id{};
  std::copy(bytes, bytes + 16, mob_id.begin());
  std::reverse_copy(data1, data1 + 4, mob_id.begin() + 16);
  std::reverse_copy(data1 + 4, data1 + 6, mob_id.begin() + 20);
  std::reverse_copy(data1 + 6, data1 + 8, mob_id.begin() + 22);
  std::copy(data4, data4 + 8, mob_id.begin() + 24);
  return mob_id;
}

// The other way.
inline Media::Umid from_aaf_mob_id(const AafMobId& mob_id) {
  const bool swapped = Detail::is_half_swapped(mob_id.data(), mob_id.data() + 24);
  AafMobId bytes{};
  const auto data1 = bytes.begin() + (swapped ? 24 : 16);
  const auto data4 = bytes.begin() + (swapped ? 16 : 24);
  std::copy(mob_id.begin(), mob_id.begin() + 16, bytes.begin());
  std::reverse_copy(mob_id.begin() + 16, mob_id.begin() + 20, data1);
  std::reverse_copy(mob_id.begin() + 20, mob_id.begin() + 22, data1 + 4);
  std::reverse_copy(mob_id.begin() + 22, mob_id.begin() + 24, data1 + 6);
  std::copy(mob_id.begin() + 24, mob_id.end(), data4);
  return make_umid(bytes.data(), bytes.size());
}

}  // namespace Korvane::Ext
#endif  // KV_ENGINE_EXT_UMID_H
