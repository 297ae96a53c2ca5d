// kvtool multiviewer: a layout, checked and drawn.

#ifndef KV_TOOLS_KVTOOL_MULTIVIEWER_COMMAND_H
#define KV_TOOLS_KVTOOL_MULTIVIEWER_COMMAND_H

#include <optional>
#include <string>

#include "streams.h"

namespace Korvane::Tool {

struct MultiviewerOptions {
  std::string file;
  std::optional<std::string> svg;  // the file to write
  bool json = false;
};

const char* multiviewer_footer();

// Raises InputError; returns the exit code.
int run_multiviewer(const MultiviewerOptions& options, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MULTIVIEWER_COMMAND_H
