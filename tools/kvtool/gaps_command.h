// kvtool gaps: every discontinuity of a sequence of timecodes.

#ifndef KV_TOOLS_KVTOOL_GAPS_COMMAND_H
#define KV_TOOLS_KVTOOL_GAPS_COMMAND_H

#include <string>

#include "streams.h"

namespace Korvane::Tool {

struct GapsOptions {
  std::string file = "-";
  std::string input = "text";
  std::string rate;  // empty when not given
  bool drop_frame = false;
  bool field_mark = false;
  bool json = false;
};

// Raises InputError and UsageError; returns the exit code.
int run_gaps(const GapsOptions& options, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_GAPS_COMMAND_H
