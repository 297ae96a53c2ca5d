// Session descriptions (SDP, RFC 8866) of streams whose essences travel apart (SMPTE ST 2110).

#ifndef KV_TOOLS_KVTOOL_MEDIA_SDP_TEXT_H
#define KV_TOOLS_KVTOOL_MEDIA_SDP_TEXT_H

#include <string>
#include <vector>

#include "media/sdp_type.h"

namespace Korvane::Tool {

// One medium that a description offers.
struct SdpMedium {
  Media::SdpType type;
  std::string address;   // IPv4 or IPv6
  int port;              // 1 to 65535
  std::string encoding;  // "raw", "L24", "smpte291", as the description writes it
  std::string file;      // as it is shown to the user
  std::size_t line;      // of "m=", counted from 1
  bool second_path;      // the same essence again by another way (SMPTE ST 2022-7)
};

// In the order of the text. Raises InputError with file and line for what cannot be sent to.
std::vector<SdpMedium> read_sdp(const std::string& file, const std::string& text);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_SDP_TEXT_H
