// What the tool reads, writes and asks of its surroundings; tests give their own.

#ifndef KV_TOOLS_KVTOOL_STREAMS_H
#define KV_TOOLS_KVTOOL_STREAMS_H

#include <chrono>
#include <functional>
#include <istream>
#include <ostream>

namespace Korvane::Tool {

struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool err_is_terminal = false;
  std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_STREAMS_H
