// A sequence of timecodes, wherever it comes from.

#ifndef KV_TOOLS_KVTOOL_TIMECODE_SOURCE_H
#define KV_TOOLS_KVTOOL_TIMECODE_SOURCE_H

#include <optional>
#include <string>

#include "timecode/timecode.h"

namespace Korvane::Tool {

struct Entry {
  Timecode value;
  unsigned long long position;  // in the source's unit
  long long frames_on = 1;      // how many frames lie between the former entry and this one
};

class TimecodeSource {
 public:
  virtual ~TimecodeSource();

  // Nothing at the end. Raises InputError for what is no timecode.
  virtual std::optional<Entry> next() = 0;

  // Takes entries that follow `last`, the entry before, without a gap, as far as that is seen at a
  // glance; there may be more. Returns how many; `last` becomes the last of them.
  virtual unsigned long long take_following(Timecode& last);

  virtual unsigned short frame_rate() const = 0;

  // What positions count: "line", "frame", "sample".
  virtual const char* unit() const = 0;

  // Of the bytes of the input, for the progress bar.
  virtual unsigned long long bytes_read() const = 0;
};

// "list.txt:12" for a line, "clip.mxf: frame 12" for others.
std::string position_text(const std::string& name, const std::string& unit,
                          unsigned long long position);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TIMECODE_SOURCE_H
