// Writes labels as text without a stream.

#ifndef KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
#define KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H

#include <cstddef>
#include <string_view>

#include "timecode/text_conversion.h"
#include "timecode/timecode.h"
#include "timecode/timecode_state.h"

namespace Korvane {

// Holds every label: "24:00:00;00.0" is of the longest.
constexpr int kLabelTextCapacity = 16;

// Writes the zero-terminated label into `text`.
void write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                 Timecode::FieldMarkIndication field_mark, char (&text)[kLabelTextCapacity]);

struct ExpandedPattern {
  std::size_t size;
  bool ascii;

  // Else the wide text has to be converted from the narrow one.
  bool wide_is_right() const { return ascii && size <= kLongestConverted; }
};

// Writes `pattern` with every %HH, %MM, %SS and %FF replaced into `narrow` and, unit by unit, into
// `wide`; each has room for the pattern and a terminator. What a replacement writes is digits,
// which belong to no token, so one pass gives what four successive replacements give.
ExpandedPattern expand_pattern(const TimecodeState& state, std::string_view pattern, char* narrow,
                               wchar_t* wide);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
