#include "timecode_source.h"

namespace Korvane::Tool {

TimecodeSource::~TimecodeSource() = default;

unsigned long long TimecodeSource::take_following(Timecode& /*last*/) { return 0; }

std::string position_text(const std::string& name, const std::string& unit,
                          unsigned long long position) {
  return name + (unit == "line" ? ":" : ": " + unit + ' ') + std::to_string(position);
}

}  // namespace Korvane::Tool
