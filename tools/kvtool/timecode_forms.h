// One timecode in every form that the library gives it.

#ifndef KV_TOOLS_KVTOOL_TIMECODE_FORMS_H
#define KV_TOOLS_KVTOOL_TIMECODE_FORMS_H

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>

#include "rate.h"
#include "timecode/timecode.h"

namespace Korvane::Tool {

struct TimecodeForms {
  // The first is the label as the tool writes it everywhere else.
  std::string dot_suffix, dot_suffix_colon;
  std::string full_rate, full_rate_colon;
  std::string omitted, omitted_colon;
  unsigned short frame_rate;
  Rational32 edit_rate;
  bool drop_frame;
  int frame_number;  // in the second, at full rate
  bool field_mark;
  long long frame_count;
  long long absolute_frame_count;
  int day;
  unsigned long long milliseconds;
  std::string word_32, word_64;  // hexadecimal with "0x"
};

TimecodeForms forms_of(const Timecode& timecode, const Rational32& edit_rate);

// One form a line, each begun with `indent`; labels that read alike are written once.
void write_text(std::ostream& out, const TimecodeForms& forms, const std::string& indent);

void write_json(std::ostream& out, const TimecodeForms& forms);
nlohmann::ordered_json to_json(const TimecodeForms& forms);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TIMECODE_FORMS_H
