// Writes labels as text without a stream.

#ifndef KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
#define KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H

#include <cstddef>

#include "timecode/text_conversion.h"
#include "timecode/timecode.h"
#include "timecode/timecode_state.h"

namespace Korvane {

// Room for every label and its terminator: "24:00:00;00.0" is of the longest.
struct LabelText {
  wchar_t wide[16];
  char narrow[16];
};

void write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                 Timecode::FieldMarkIndication field_mark, LabelText& text);

struct ExpandedPattern {
  std::size_t size;
  bool ascii;

  // Else the wide text has to be converted from the narrow one.
  bool wide_is_right() const { return ascii && size <= kLongestConverted; }
};

// Writes the zero-terminated `pattern` with every %HH, %MM, %SS and %FF replaced into `narrow` and,
// unit by unit, into `wide`; each has room for the pattern and its terminator. What a replacement
// writes is digits, which belong to no token, so one pass gives what four successive replacements
// give.
ExpandedPattern expand_pattern(const TimecodeState& state, const char* pattern, char* narrow,
                               wchar_t* wide);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
