// A timecode as the user types it: a label, a frame count, a word or a clock time.

#ifndef KV_TOOLS_KVTOOL_EXPRESSION_H
#define KV_TOOLS_KVTOOL_EXPRESSION_H

#include <string>

#include "rate.h"
#include "timecode/timecode.h"

namespace Korvane::Tool {

struct Expression {
  Timecode timecode;
  std::string repair_note;  // how strict and lenient reading differ; empty when they agree
};

//   -1500            frame count
//   0x01020304       32-bit word; with 9 to 16 digits the 64-bit word
//   10:00:00         clock time, also 10:00:00.500
//   10:00:00:00      label, read leniently when `repair`
// Raises InputError.
Expression read_expression(const std::string& text, const Rate& rate, bool repair);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_EXPRESSION_H
