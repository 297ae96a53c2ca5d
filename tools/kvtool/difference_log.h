// Compares neighbouring timecodes by the library's own check, whose log line it receives while it
// lives. One at a time.

#ifndef KV_TOOLS_KVTOOL_DIFFERENCE_LOG_H
#define KV_TOOLS_KVTOOL_DIFFERENCE_LOG_H

#include <optional>
#include <string>

#include "timecode/timecode.h"

namespace Korvane::Tool {

struct Difference {
  std::string line;  // "POSITION: Found timecode difference, expected: ... actual: ..."
  std::string expected;
  std::string actual;
  long long frames;  // from expected to actual, the shorter way round the day
};

class DifferenceLog {
 public:
  DifferenceLog();
  DifferenceLog(const DifferenceLog&) = delete;
  DifferenceLog& operator=(const DifferenceLog&) = delete;
  ~DifferenceLog();

  // Nothing when `current` is the frame after `previous`, days not counted, and counts as that
  // does.
  std::optional<Difference> compare(const std::string& position, const Timecode& previous,
                                    const Timecode& current);

 private:
  static void collect(void* context, const char* text);

  std::string line_;
};

// " (+2 frames)".
std::string describe_jump(long long frames);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_DIFFERENCE_LOG_H
