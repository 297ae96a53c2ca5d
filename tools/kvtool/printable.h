// Foreign text made fit for a terminal line.

#ifndef KV_TOOLS_KVTOOL_PRINTABLE_H
#define KV_TOOLS_KVTOOL_PRINTABLE_H

#include <string>
#include <string_view>

namespace Korvane::Tool {

// Control characters are written as \xHH; everything else, UTF-8 among it, stays.
std::string printable_name(std::string_view name);

// In double quotes, cut after 60 bytes; whatever is not printable ASCII is written as \xHH.
std::string in_quotes(std::string_view value);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_PRINTABLE_H
