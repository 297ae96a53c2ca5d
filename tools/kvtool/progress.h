// A line on the terminal that tells how far a long operation has come. It appears after a second
// and leaves nothing behind.

#ifndef KV_TOOLS_KVTOOL_PROGRESS_H
#define KV_TOOLS_KVTOOL_PROGRESS_H

#include <chrono>
#include <optional>
#include <string>

#include "streams.h"

namespace Korvane::Tool {

class Progress {
 public:
  // `total` is the size in bytes, if it is known. Writes to the error stream of `streams`, and only
  // when that is a terminal.
  Progress(Streams& streams, const std::string& name, std::optional<unsigned long long> total);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  // `bytes` read, `count` things found so far.
  void update(unsigned long long bytes, unsigned long long count);

  // Before anything else is written to the terminal.
  void erase();

 private:
  using Time = std::chrono::steady_clock::time_point;

  std::string text(unsigned long long bytes, unsigned long long count) const;

  Streams& streams_;
  std::string name_;
  std::optional<unsigned long long> total_;
  Time next_draw_;
  std::size_t drawn_ = 0;  // width on the terminal
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_PROGRESS_H
