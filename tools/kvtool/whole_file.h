// Results that go to a file of their own.

#ifndef KV_TOOLS_KVTOOL_WHOLE_FILE_H
#define KV_TOOLS_KVTOOL_WHOLE_FILE_H

#include <string>
#include <string_view>

namespace Korvane::Tool {

// Leaves the whole text in the file, or the file as it was. Raises InputError when it cannot be
// written.
void write_whole_file(const std::string& path, std::string_view text);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_WHOLE_FILE_H
