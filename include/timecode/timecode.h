// Time-of-day label of a video frame, as SMPTE ST 12-1 counts it: hours, minutes, seconds and
// frames at a nominal integer frame rate, with drop-frame counting at 30 and 60 and a field mark at
// the double rates.
//
// Vocabulary. The *frame count* runs on beyond a day and below zero; the *absolute frame count* is
// the same count brought into one day; the *label* (hours ... field mark) is derived from it, and
// `days` tells how many days were taken off. At the *double rates* (48, 50 and 60) the label counts
// pairs of frames, and the *field mark* is set on the second frame of a pair;
// frames_ignore_field_mark gives the frame number at full rate:
//
//   Timecode tc(50, 49LL, false);
//   tc.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);       // "00:00:00:24.1"
//   tc.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames);  // "00:00:00:49"
//   ++tc;                                                                       // 00:00:01:00.0
//
// Supported rates: 24, 25, 30, 50 and 60. Drop-frame is kept at 30 and 60 and silently off
// elsewhere.
//
// Errors of construction, in the order in which they are checked:
//   NotSupported     "Frame rate not supported."
//   InvalidArgument  "Hours cannot be lower than 0 and higher than 24."  (24 itself passes)
//   InvalidArgument  "Minutes cannot be lower than 0 and higher than 59."
//   InvalidArgument  "Seconds cannot be lower than 0 and higher than 59."
//   InvalidArgument  "Frames cannot be lower than 0 and higher than the frame rate value."
//   InvalidArgument  "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame
//   rates."
// Arithmetic never fails; near the limits of 64 bits the frame count wraps.
//
// A value: copies are independent. Moving copies. One instance is not synchronised, and its const
// text operations write its text buffers.

#ifndef KV_ENGINE_TIMECODE_TIMECODE_H
#define KV_ENGINE_TIMECODE_TIMECODE_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/rational32.h"
#include "foundation/record_ptr.h"
#include "timecode/time_data.h"

namespace Korvane {

struct TimecodePrivate;

class KV_ENGINE_API Timecode {
 public:
  // What stands before the frames of a drop-frame timecode. Any value but 0 acts as 1.
  enum DropFrameIndication : unsigned int {
    DropFrameSemicolon = 0,  // ";"
    DropFrameColon = 1       // ":", as for every other timecode
  };

  // How frames and field mark are written. Values above 3 write no frames at all.
  enum FieldMarkIndication : unsigned int {
    FieldMarkDotSuffix = 0,       // frames of the label, at double rates with ".0" or ".1" behind
    FieldMarkFullRateFrames = 1,  // at double rates the frame number at full rate
    FieldMarkOmitted = 2,         // frames of the label
    FieldMarkFramesDashed = 3     // "--"
  };

  // From a label; `frames` and `field_mark` as the label counts them, in pairs at double rates.
  // Hour 24 becomes hour 0 of the next day. The field mark counts at double rates only.
  Timecode(unsigned short rate, unsigned char hours, unsigned char minutes, unsigned char seconds,
           unsigned char frames, bool drop_frame, bool field_mark);

  // From a label with frame 0. A label that drop-frame counting leaves out is accepted here and
  // becomes the frame before: at 30 drop-frame 00:01:00 gives 00:00:59;28.
  Timecode(unsigned short rate, unsigned char hours, unsigned char minutes, unsigned char seconds,
           bool drop_frame);

  // From the 32-bit word of to_12m. Hour 24 stays hour 24, with `days` 0.
  Timecode(unsigned short rate, unsigned int st12);

  // From a time of day (the date is not read): the frame that starts last at or before it, counted
  // at `edit_rate`. The milliseconds of the day are counted in 32 bits, the rest in 64, divided
  // unsigned. A zero denominator gives frame 0.
  Timecode(unsigned short rate, TimeData clock, bool drop_frame, Rational32 edit_rate);

  // From a frame count; any count is valid.
  Timecode(unsigned short rate, long long frame_count, bool drop_frame);

  // 00:00:00:00.
  Timecode(unsigned short rate, bool drop_frame);

  // The copy has the frame count and label of the original, but `days` 0 until it is next stepped.
  Timecode(const Timecode& other);
  Timecode& operator=(const Timecode& other);
  virtual ~Timecode();

  // The nominal rate: 30 stands for 29.97, too.
  unsigned short frame_rate() const;

  // Frames since 00:00:00:00 at full rate; negative before it, past a day after 24 hours.
  long long frame_count() const;

  // The same within one day: 0 to the frames of a day less one.
  long long absolute_frame_count() const;

  // Whole days in the frame count, negative below zero; the count of days is kept in 16 bits.
  short days() const;

  // Whether labels are left out to keep up with the clock: at 30 and 60 only.
  bool drop_frame() const;

  // Whether this is the second frame of a pair; false at 24, 25 and 30.
  bool field_mark() const;

  // Of the label: 0 to 23; 24 where a word of to_12m said so.
  unsigned char hours() const;

  // Of the label: 0 to 59.
  unsigned char minutes() const;
  unsigned char seconds() const;

  // Of the label: pairs of frames at double rates.
  unsigned char frames() const;

  // At full rate: 0 to frame_rate() - 1.
  unsigned char frames_ignore_field_mark() const;

  // Steps by frames, or by days of the present rate and counting; both signs.
  void add(long long n);
  void add_days(long long n);
  void operator++();
  void operator--();

  // Equal when frame rate, drop-frame flag and the frames field agree; hours, minutes, seconds,
  // field mark and counts are not compared. Compare frame_count() to tell frames apart. Published
  // without const.
  bool operator==(const Timecode& other);
  bool operator!=(const Timecode& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<Timecode, Left, Right> operator==(Left&& left, Right&& right) {
    return left.operator==(right);
  }

  // Time since the start of the day in milliseconds, rounded toward zero, at `edit_rate` frames per
  // second. The product wraps at 64 bits. A zero numerator gives 0.
  unsigned long long to_ms(const Rational32& edit_rate) const;

  // The label as text, two digits a field: "01:02:03:04". The result stays valid until the next
  // call of c_str or text on this object, its assignment or its end.
  const char* c_str(DropFrameIndication drop_frame, FieldMarkIndication field_mark) const;
  const wchar_t* text(DropFrameIndication drop_frame, FieldMarkIndication field_mark) const;

  // `pattern` with every "%HH", "%MM", "%SS" and "%FF" replaced by two digits of the label; "%FF"
  // is the frames field, not the full-rate number. Narrow text is UTF-8, wide text UTF-16 on every
  // platform (outside Windows, too, one wchar_t holds one UTF-16 unit; a larger unit is read as the
  // code point that it is). Each maximal ill-formed part is read as U+FFFD where text is converted.
  // The result stays valid until the next call of formatter on this object, its assignment or its
  // end. Raises InvalidArgument "Text must not be null", and StringConversionFailed "Unable to
  // convert from string to wstring" or "Unable to convert from wstring to string" for a text that
  // the platform cannot convert (longer than 2147483647 units).
  const char* formatter(const char* pattern) const;
  const wchar_t* formatter(const wchar_t* pattern) const;

  // The label packed as binary-coded decimal, one byte a field, frames in the low byte: 01:02:03;04
  // is 0x01020344.
  //   bits  0-3   frames units     bits  4-5   frames tens      bit  6  drop-frame flag
  //   bits  8-11  seconds units    bits 12-14  seconds tens     bit 15  field mark, except at 50
  //   bits 16-19  minutes units    bits 20-22  minutes tens
  //   bits 24-27  hours units      bits 28-29  hours tens       bit 31  field mark at 50
  unsigned int to_12m() const;

  // The label as the 64-bit word of SMPTE ST 12-1, user bits and colour-frame flag zero.
  //   bits  0-3   frames units     bits  8-9   frames tens      bit 10  drop-frame flag
  //   bits 16-19  seconds units    bits 24-26  seconds tens     bit 27  parity, except at 25 and 50
  //   bits 32-35  minutes units    bits 40-42  minutes tens
  //   bits 48-51  hours units      bits 56-57  hours tens       bit 59  parity at 25 and 50
  // The parity bit is 1 when bits 0 to 15 hold an even number of ones. It takes the place of the
  // field mark, which this word does not carry.
  unsigned long long to_12m_full() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<TimecodePrivate> private_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIMECODE_H
