// The command line: options, help, and what a failed command says.

#ifndef KV_TOOLS_KVTOOL_RUN_H
#define KV_TOOLS_KVTOOL_RUN_H

#include <string>
#include <vector>

#include "streams.h"

namespace Korvane::Tool {

// `args` without the name of the program. Returns the exit code and lets no exception out.
int run(const std::vector<std::string>& args, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_RUN_H
