// The rate at which timecodes count, as the user gives it.

#ifndef KV_TOOLS_KVTOOL_RATE_H
#define KV_TOOLS_KVTOOL_RATE_H

#include <string>
#include <vector>

#include "foundation/rational32.h"

namespace Korvane::Tool {

struct Rate {
  unsigned short nominal;
  Rational32 edit;  // frames per second
  bool drop_frame;
};

// What parse_rate takes.
std::vector<std::string> rate_names();

// `drop_frame` also sets the edit rate, as counting does. Raises UsageError.
Rate parse_rate(const std::string& text, bool drop_frame);

// `rate` for a timecode that counts so: drop-frame exists for the edit rates 30000/1001 and
// 60000/1001.
Rate counting(const Rate& rate, bool drop_frame);

// "30 drop-frame".
std::string describe(const Rate& rate);

// "30000/1001", "25".
std::string describe(const Rational32& edit_rate);

// "16/9", "25/1".
std::string describe_ratio(const Rational32& ratio);

// The nominal rate of a measured frame rate, or 0 when no timecode counts at it. A tolerance of
// 0.03 percent is allowed for.
unsigned short nominal_rate(const Rational32& frame_rate);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_RATE_H
