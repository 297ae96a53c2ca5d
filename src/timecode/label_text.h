// Writes labels as text without a stream.

#ifndef KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
#define KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H

#include <string>
#include <string_view>

#include "timecode/timecode.h"
#include "timecode/timecode_state.h"

namespace Korvane {

// Holds every label: "24:00:00;00.0" is of the longest.
constexpr int kLabelTextCapacity = 16;

// Writes the zero-terminated label into `text`.
void write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                 Timecode::FieldMarkIndication field_mark, char (&text)[kLabelTextCapacity]);

// `pattern` with every %HH, %MM, %SS and %FF replaced. What a replacement writes is digits, which
// belong to no token, so one pass gives what four successive replacements give.
std::string expand_pattern(const TimecodeState& state, std::string_view pattern);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_LABEL_TEXT_H
