// kvtool umid: what identifiers of material say, read by the library.

#ifndef KV_TOOLS_KVTOOL_UMID_COMMAND_H
#define KV_TOOLS_KVTOOL_UMID_COMMAND_H

#include <string>
#include <vector>

#include "streams.h"

namespace Korvane::Tool {

struct UmidOptions {
  std::vector<std::string> texts;
  bool json = false;
};

const char* umid_footer();

// Raises InputError for the first text that is no UMID, before anything is printed. Returns the
// exit code: BadInput when the library would misread a text.
int run_umid(const UmidOptions& options, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_UMID_COMMAND_H
