// The clips that the tests have made for them.

#ifndef KV_ENGINE_TESTS_KVTOOL_CLIPS_H
#define KV_ENGINE_TESTS_KVTOOL_CLIPS_H

#include <string>

namespace Korvane::Tool {

inline std::string clip(const std::string& name) { return KVTOOL_CLIPS + name; }

}  // namespace Korvane::Tool
#endif  // KV_ENGINE_TESTS_KVTOOL_CLIPS_H
