// Colours on a terminal: escape sequences around a text, or nothing.

#ifndef KV_TOOLS_KVTOOL_INK_H
#define KV_TOOLS_KVTOOL_INK_H

#include <string>
#include <string_view>

namespace Korvane::Tool {

class Ink {
 public:
  Ink() = default;
  explicit Ink(bool on) : on_(on) {}

  std::string heading(std::string_view text) const { return between("\x1b[1m", text); }

  // What the user has to look at: errors and gaps.
  std::string alarm(std::string_view text) const { return between("\x1b[1;31m", text); }

 private:
  std::string between(std::string_view start, std::string_view text) const {
    if (!on_) return std::string(text);
    return std::string(start).append(text).append("\x1b[0m");
  }

  bool on_ = false;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_INK_H
