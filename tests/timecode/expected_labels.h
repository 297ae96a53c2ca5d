// What the timecode tests share: the messages of refused labels, and a label as text.

#ifndef KV_TESTS_TIMECODE_EXPECTED_LABELS_H
#define KV_TESTS_TIMECODE_EXPECTED_LABELS_H

#include <string>

#include "timecode/timecode.h"

namespace Korvane {

constexpr const char* kRateMessage = "Frame rate not supported.";
constexpr const char* kHoursMessage = "Hours cannot be lower than 0 and higher than 24.";
constexpr const char* kMinutesMessage = "Minutes cannot be lower than 0 and higher than 59.";
constexpr const char* kSecondsMessage = "Seconds cannot be lower than 0 and higher than 59.";
constexpr const char* kFramesMessage =
    "Frames cannot be lower than 0 and higher than the frame rate value.";
constexpr const char* kDropFrameMessage =
    "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.";

// As "01:02:03;04", with a dot before the frames of the second field.
inline std::string label(const Timecode& timecode) {
  return timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
}

}  // namespace Korvane
#endif  // KV_TESTS_TIMECODE_EXPECTED_LABELS_H
