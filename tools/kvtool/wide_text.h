// The library's wide texts, UTF-16 or UTF-32 as wchar_t is, from and to UTF-8.

#ifndef KV_TOOLS_KVTOOL_WIDE_TEXT_H
#define KV_TOOLS_KVTOOL_WIDE_TEXT_H

#include <string>
#include <string_view>

namespace Korvane::Tool {

// In both directions U+FFFD stands for each unit that makes no character.
std::wstring wide_of(std::string_view utf8);
std::string utf8_of(std::wstring_view wide);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_WIDE_TEXT_H
