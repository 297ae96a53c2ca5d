// The numbers of one timecode. `frame_count` rules; after normalize() every field below it follows
// from it, from the rate and from the drop-frame flag.

#ifndef KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H
#define KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H

namespace Korvane {

struct TimecodeState {
  unsigned short frame_rate = 0;
  long long frame_count = 0;
  long long absolute_frame_count = 0;
  bool drop_frame = false;
  unsigned char hours = 0, minutes = 0, seconds = 0, frames = 0;
  bool field_mark = false;
  short days = 0;

  // All zero. `drop` is kept only at rates that can drop frames.
  TimecodeState(unsigned short rate, bool drop);
  TimecodeState(unsigned short rate, long long count, bool drop);

  // Raises the first error of rate and label; `check_drop_frame_label` also refuses the labels that
  // drop-frame counting leaves out.
  void validate(bool check_drop_frame_label) const;

  // The frame count of the label, which may be one that drop-frame counting leaves out.
  long long count_of_label() const;

  // Validates the label, takes the frame count from it and normalizes.
  void recompute_from_fields(bool wrap, bool check_drop_frame_label);

  // Derives everything from the frame count; with `wrap` the label is brought into one day.
  void normalize(bool wrap);
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_TIMECODE_STATE_H
