// How the tool writes one timecode: "01:02:03;04", at double rates with the field mark behind.

#ifndef KV_TOOLS_KVTOOL_LABEL_H
#define KV_TOOLS_KVTOOL_LABEL_H

#include <string>

#include "timecode/timecode.h"

namespace Korvane::Tool {

inline std::string label(const Timecode& timecode) {
  return timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
}

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_LABEL_H
