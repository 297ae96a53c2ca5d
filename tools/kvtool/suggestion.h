// What the user may have meant by a name that does not exist.

#ifndef KV_TOOLS_KVTOOL_SUGGESTION_H
#define KV_TOOLS_KVTOOL_SUGGESTION_H

#include <string>
#include <vector>

namespace Korvane::Tool {

// The name from which `text` differs by the fewest typing errors (characters too many, missing,
// wrong or swapped; the case of letters does not count), when those are at most a third of its
// characters; otherwise the only name that begins with it. Empty when there is neither.
std::string nearest_name(const std::string& text, const std::vector<std::string>& names);

// `; did you mean NAME?`; nothing without a name.
std::string did_you_mean(const std::string& name);

// "a, b or c".
std::string one_of(const std::vector<std::string>& names);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_SUGGESTION_H
