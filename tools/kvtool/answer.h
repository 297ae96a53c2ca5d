// Questions that the library may decline.

#ifndef KV_TOOLS_KVTOOL_ANSWER_H
#define KV_TOOLS_KVTOOL_ANSWER_H

#include <optional>

#include "core/exception.h"

namespace Korvane::Tool {

// What `ask` returns; nothing when the library raises instead.
template <typename Ask>
auto answer(const Ask& ask) -> std::optional<decltype(ask())> {
  try {
    return ask();
  } catch (const Exception&) {
    return std::nullopt;
  }
}

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_ANSWER_H
