// The private record of a timecode: its numbers, and the texts that it last handed out.

#ifndef KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H
#define KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H

#include <string>

#include "timecode/label_text.h"
#include "timecode/timecode_state.h"

namespace Korvane {

struct TimecodePrivate : TimecodeState {
  wchar_t text_wide[kLabelTextCapacity] = {};
  char text_narrow[kLabelTextCapacity] = {};
  std::wstring format_wide;
  std::string format_narrow;

  using TimecodeState::TimecodeState;

  // A copy does not carry the days, nor the texts.
  TimecodePrivate(const TimecodePrivate& other) : TimecodeState(other) { days = 0; }
  TimecodePrivate& operator=(const TimecodePrivate&) = delete;
  ~TimecodePrivate() = default;
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H
