// Free functions on timecodes: reading text and 64-bit words, carrying fields that overflow,
// minutes, and the log line for a discontinuity. Where a function passes on "the errors of
// construction", timecode.h lists them.

#ifndef KV_ENGINE_TIMECODE_TIMECODE_UTILS_H
#define KV_ENGINE_TIMECODE_TIMECODE_UTILS_H

#include "foundation/export.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace TimecodeUtils {

// Whether a timecode at `rate` counts drop-frame when `drop` is asked for: at 30 and 60 only.
KV_ENGINE_API bool frame_rate_drop_frame_filter(unsigned short rate, bool drop);

// Strict reading of "hours:minutes:seconds;frames". The character before the frames may be any: ";"
// makes the timecode drop-frame, every other does not. At 50 and 60 `field_mark` tells what
// follows:
//   FieldMarkDotSuffix       frames of the label and ".0" or ".1" for the field mark: required
//   FieldMarkFullRateFrames  frames at full rate
//   any other                frames of the label
// At other rates, and with the last two, a ".f" behind the frames is refused.
//
// Each number is read as the C library's scanf reads "%d": leading white space and a sign are
// allowed; a number that does not fit is saturated at 64 bits and then cut, on every platform. Text
// behind the last number is ignored. Numbers are then cut to 8 bits.
//
// Errors, in this order: InvalidArgument "Timecode mapping currently only supports semicolon
// indication" for a `drop_frame` other than DropFrameSemicolon; InvalidArgument "Received invalid
// timecode" for any other form, and for null; the errors of construction. The wide form also raises
// StringConversionFailed "Unable to convert from wstring to string", before all others.
KV_ENGINE_API Timecode load_timecode_from_string(unsigned short rate, const char* text,
                                                 Timecode::DropFrameIndication drop_frame,
                                                 Timecode::FieldMarkIndication field_mark);
KV_ENGINE_API Timecode load_timecode_from_string(unsigned short rate, const wchar_t* text,
                                                 Timecode::DropFrameIndication drop_frame,
                                                 Timecode::FieldMarkIndication field_mark);

// Lenient reading: fields parted by ";", "," or ":", where a "-" counts as "0", a field that is no
// number counts as 0, fields after the fourth are ignored, and fields past their range carry into
// the next (00:00:75:00 is 00:01:15:00). Each number is saturated at 64 bits and cut to 8 bits
// before it carries. Empty text and "--:--:--:--" give 00:00:00:00. The frames are those of the
// label. Every failure, null and fewer than four fields among them, is raised as NotSupported
// "Frame rate not supported."
KV_ENGINE_API Timecode string_to_timecode(const char* text, unsigned short rate, bool drop_frame);

// Builds a timecode from fields past their range: seconds carry into minutes and minutes into
// hours, hours are taken modulo 24, and `frames` are then added and may run into following days.
// Frames count at full rate when `frames_are_full_rate`, else as the label does (pairs above rate
// 30). A label that drop-frame counting leaves out becomes the frame before, as in the
// five-argument constructor. Sums wrap at 64 bits. Raises NotSupported "Frame rate not supported."
KV_ENGINE_API Timecode timecode_fixer(unsigned short rate, unsigned long long hours,
                                      unsigned long long minutes, unsigned long long seconds,
                                      unsigned long long frames, bool drop_frame,
                                      bool frames_are_full_rate);

// Steps `tc` by the frames that lie between 00:00:00:00 and that many minutes, either sign. Minutes
// count modulo 24 hours: 1500 minutes are one hour.
KV_ENGINE_API void add_minutes(Timecode& tc, int minutes);

// Writes one line to the log when `current` is not the frame after `previous`; days do not count:
//   LABEL: Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02
// A null `label` counts as empty.
KV_ENGINE_API void log_timecode_difference(const char* label, const Timecode& previous,
                                           const Timecode& current);

// Reads the 64-bit word of Timecode::to_12m_full. The bit of the parity, 59 at 50 and 27 at 60, is
// read as field mark unless `ignore_field_mark`: pass true for words that carry parity there, those
// of to_12m_full among them. Raises the errors of construction, also for digits out of range.
KV_ENGINE_API Timecode load_timecode_from_full_st12m(unsigned short rate, unsigned long long word,
                                                     bool ignore_field_mark);

}  // namespace TimecodeUtils
}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIMECODE_UTILS_H
