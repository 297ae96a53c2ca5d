#include "timecode/timecode_state.h"

#include "foundation/wrapping.h"
#include "timecode/counting.h"

namespace Korvane {

void TimecodeState::normalize(bool wrap) {
  const auto work = [=, this](auto way) { normalize_by<decltype(way)>(*this, wrap); };
  with_counting(frame_rate, drop_frame, work);  // GCOVR_EXCL_BR_LINE: the rate is supported
}

void TimecodeState::add(long long n) {
  frame_count = wrapping_add(frame_count, n);
  normalize(true);
}

void TimecodeState::step_further() {
  if (stepping == Stepping::Derived) return add(1);
  if (stepping == Stepping::Pairs && !field_mark) {
    field_mark = true;
  } else if (frames < last_frame) {
    ++frames;
    field_mark = false;
  } else if (seconds < 59) {
    ++seconds;
    frames = 0;
    field_mark = false;
  } else {
    return add(1);
  }
  ++frame_count;
}

void TimecodeState::step_further_back() {
  if (stepping == Stepping::Derived) return add(-1);
  const bool pairs = stepping == Stepping::Pairs;
  const int first = drop_frame && seconds == 0 ? kFirstNeverDropped : 0;
  if (pairs && field_mark) {
    field_mark = false;
  } else if (frames > first) {
    --frames;
    field_mark = pairs;
  } else if (seconds > 0) {
    --seconds;
    frames = last_frame;
    field_mark = pairs;
  } else {
    return add(-1);
  }
  --frame_count;
}

}  // namespace Korvane
