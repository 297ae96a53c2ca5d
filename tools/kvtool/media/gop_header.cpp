#include "media/gop_header.h"

#include <algorithm>
#include <array>

namespace Korvane::Tool {
namespace {

constexpr std::array<std::uint8_t, 3> kStartCodePrefix = {0, 0, 1};
constexpr std::uint8_t kPictureStart = 0x00;
constexpr std::uint8_t kGroupStart = 0xB8;

// drop_frame_flag(1) hours(5) minutes(6) marker(1) seconds(6) pictures(6), then 7 other bits.
GopTimecode unpack(std::span<const std::uint8_t, 4> bytes) {
  std::uint32_t bits = 0;
  for (const std::uint8_t byte : bytes) bits = bits << 8U | byte;
  const auto field = [bits](unsigned int shift, unsigned int mask) {
    return static_cast<unsigned char>(bits >> shift & mask);
  };
  return {field(31, 1) != 0, field(26, 0x1F), field(20, 0x3F), field(13, 0x3F), field(7, 0x3F)};
}

}  // namespace

std::optional<GopTimecode> find_gop_timecode(std::span<const std::uint8_t> picture) {
  auto rest = picture.begin();
  while (true) {
    rest = std::search(rest, picture.end(), kStartCodePrefix.begin(), kStartCodePrefix.end());
    if (picture.end() - rest < 4) return std::nullopt;
    rest += 3;
    const std::uint8_t code = *rest++;
    if (code == kPictureStart) return std::nullopt;
    if (code == kGroupStart && picture.end() - rest >= 4)
      return unpack(std::span<const std::uint8_t, 4>(rest, 4));
  }
}

}  // namespace Korvane::Tool
