// kvtool timecode: one timecode in every form at once.

#ifndef KV_TOOLS_KVTOOL_TIMECODE_COMMAND_H
#define KV_TOOLS_KVTOOL_TIMECODE_COMMAND_H

#include <optional>
#include <string>

#include "streams.h"

namespace Korvane::Tool {

struct TimecodeOptions {
  std::string expression;
  std::string rate;
  bool drop_frame = false;
  bool repair = false;
  long long add = 0;
  int add_minutes = 0;
  long long days = 0;
  std::optional<std::string> format;
  bool json = false;
};

// Raises InputError and UsageError; returns the exit code.
int run_timecode(const TimecodeOptions& options, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TIMECODE_COMMAND_H
