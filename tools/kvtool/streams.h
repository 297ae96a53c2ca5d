// What the tool reads, writes and asks of its surroundings; tests give their own.

#ifndef KV_TOOLS_KVTOOL_STREAMS_H
#define KV_TOOLS_KVTOOL_STREAMS_H

#include <chrono>
#include <functional>
#include <istream>
#include <ostream>
#include <string_view>

#include "ink.h"

namespace Korvane::Tool {

struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool err_is_terminal = false;
  std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;
  Ink out_ink = {};
  Ink err_ink = {};
};

// Writes what has failed as a line of standard error.
inline void complain(Streams& streams, std::string_view line) {
  streams.err << streams.err_ink.alarm("kvtool:") << ' ' << line << '\n';
}

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_STREAMS_H
