// Timecodes from the texts that the user or a file gives. The read_ functions return nothing when
// the text has not the form or its values are out of range; the no_ functions give the sentence
// that says so: `"VALUE" is no timecode at rate R (expected ...)`.

#ifndef KV_TOOLS_KVTOOL_READING_H
#define KV_TOOLS_KVTOOL_READING_H

#include <optional>
#include <string>

#include "rate.h"
#include "timecode/timecode.h"

namespace Korvane::Tool {

enum class WordSize { Bits32, Bits64 };

// "HH:MM:SS:FF" or "HH:MM:SS;FF", fields of one or two digits. At 50 and 60 a ".0" or ".1" behind
// is the field mark, and without it the frames count at full rate. With a drop-frame rate ":" is
// read as ";".
std::optional<Timecode> read_label(const std::string& text, const Rate& rate);
std::string no_label(const std::string& text, const Rate& rate);

// Hexadecimal with or without "0x". Drop-frame as the word's own flag says.
std::optional<Timecode> read_word(const std::string& text, const Rate& rate, WordSize size,
                                  bool ignore_field_mark);
std::string no_word(const std::string& text, const Rate& rate, WordSize size);

std::string no_timecode(const std::string& value, const Rate& rate, const std::string& expected);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_READING_H
