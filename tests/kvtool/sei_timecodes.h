// Gives every picture of an H.264 byte stream a timecode of the test's choice.

#ifndef KV_ENGINE_TESTS_KVTOOL_SEI_TIMECODES_H
#define KV_ENGINE_TESTS_KVTOOL_SEI_TIMECODES_H

#include <string>
#include <vector>

namespace Korvane::Tool {

struct ClockTimestamp {
  unsigned int hours, minutes, seconds, frames;
};

// `stream` must have pictures of one slice, each preceded by a picture-timing message that says no
// more than the picture structure "frame"; these are replaced.
std::string with_sei_timecodes(const std::string& stream,
                               const std::vector<ClockTimestamp>& timestamps);

}  // namespace Korvane::Tool
#endif  // KV_ENGINE_TESTS_KVTOOL_SEI_TIMECODES_H
