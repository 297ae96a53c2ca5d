// Kinds of characters, whatever the locale.

#ifndef KV_TOOLS_KVTOOL_CHARACTERS_H
#define KV_TOOLS_KVTOOL_CHARACTERS_H

namespace Korvane::Tool {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_CHARACTERS_H
