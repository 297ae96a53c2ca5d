// The rate at which timecodes count, as the user gives it.

#ifndef KV_TOOLS_KVTOOL_RATE_H
#define KV_TOOLS_KVTOOL_RATE_H

#include <string>

#include "foundation/rational32.h"

namespace Korvane::Tool {

struct Rate {
  unsigned short nominal;
  Rational32 edit;  // frames per second
  bool drop_frame;
};

// Drop-frame at 30 and 60 implies the edit rates 30000/1001 and 60000/1001. Raises UsageError.
Rate parse_rate(const std::string& text, bool drop_frame);

// "30 drop-frame".
std::string describe(const Rate& rate);

// "30000/1001", "25".
std::string describe(const Rational32& edit_rate);

// The nominal rate of a measured frame rate, or 0 when no timecode counts at it. Containers round
// frame rates, hence a tolerance of 0.03 percent, a third of what parts 30 from 30000/1001.
unsigned short nominal_rate(const Rational32& frame_rate);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_RATE_H
