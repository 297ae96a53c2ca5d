// The timecode in the header of a group of pictures (MPEG-1 and MPEG-2 video).

#ifndef KV_TOOLS_KVTOOL_MEDIA_GOP_HEADER_H
#define KV_TOOLS_KVTOOL_MEDIA_GOP_HEADER_H

#include <cstdint>
#include <optional>
#include <span>

namespace Korvane::Tool {

// Of the label; `pictures` count at full rate.
struct GopTimecode {
  bool drop_frame;
  unsigned char hours, minutes, seconds, pictures;
};

// From a coded picture. Nothing when no group of pictures begins with it.
std::optional<GopTimecode> find_gop_timecode(std::span<const std::uint8_t> picture);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_GOP_HEADER_H
