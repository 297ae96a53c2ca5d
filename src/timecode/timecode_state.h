// The numbers of one timecode. `frame_count` rules; after normalize() all others follow from it,
// from the rate and from the drop-frame flag.

#ifndef KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H
#define KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H

#include "foundation/wrapping.h"
#include "timecode/frame_rate.h"

namespace Korvane {

// What a step within a minute changes beside the frame count.
enum class Stepping : unsigned char {
  Derived,  // everything is derived anew: in hour 24, near the ends of 64 bits, in a fresh copy
  Single,   // the frames, and after the last one the seconds
  Pairs     // likewise, with every second step; the field mark with each
};

// Its frames count pairs at double rates, and the field mark tells the second of a pair.
struct Label {
  unsigned char hours = 0, minutes = 0, seconds = 0, frames = 0;
  bool field_mark = false;
};

struct TimecodeState : Label {
  bool drop_frame;  // only at rates that can drop frames
  unsigned short frame_rate;
  long long frame_count;
  long long to_first_day = 0;  // what brings the frame count into one day
  short days = 0;              // 0 in a copy until it is stepped
  Stepping stepping = Stepping::Derived;
  unsigned char last_frame = 0;  // of a second of labels, once the label is known to be right

  TimecodeState(unsigned short rate, bool drop, long long count, const Label& label = Label())
      : Label(label), drop_frame(drop), frame_rate(rate), frame_count(count) {}

  // Derives everything from the frame count; with `wrap` the label is brought into one day.
  void normalize(bool wrap);

  long long absolute_frame_count() const { return wrapping_add(frame_count, to_first_day); }

  // Of the second, from 0.
  unsigned char full_rate_frames() const {
    return static_cast<unsigned char>(is_double_rate(frame_rate) ? frames * 2 + (field_mark ? 1 : 0)
                                                                 : frames);
  }

  void add(long long n);

  // As add(1) and add(-1), but as little as can be for most.
  void step() {
    if (stepping != Stepping::Single || frames >= last_frame) return step_further();
    ++frames;
    ++frame_count;
  }
  void step_back() {
    if (stepping != Stepping::Single || frames <= kFirstNeverDropped) return step_further_back();
    --frames;
    --frame_count;
  }

 private:
  static constexpr int kFirstNeverDropped = 2;  // frame of a label at second 0

  void step_further();
  void step_further_back();
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H
