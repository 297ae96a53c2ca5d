// Patterns, narrow and wide: every token is replaced, nothing else changes. Labels under any
// indication: what a pattern gives, with a separator and frames of their own.

#include "core/exception.h"
#include "input.h"
#include "timecode/timecode.h"

namespace {

using Korvane::expect;
using Korvane::Input;

void replace_all(std::string& text, const std::string& token, const std::string& value) {
  for (std::size_t at = 0; (at = text.find(token, at)) != std::string::npos; at += value.size())
    text.replace(at, token.size(), value);
}

void check_label(const Korvane::Timecode& timecode, Input& input) {
  using Korvane::Timecode;
  const auto drop_frame = static_cast<Timecode::DropFrameIndication>(input.take_below(3));
  const auto field_mark = static_cast<Timecode::FieldMarkIndication>(input.take_below(5));
  const std::string time = timecode.formatter("%HH:%MM:%SS");
  const std::string label = timecode.c_str(drop_frame, field_mark);
  expect(label.substr(0, time.size()) == time);
  const bool semicolon = timecode.drop_frame() && drop_frame == Timecode::DropFrameSemicolon;
  expect(label.substr(time.size(), 1) == (semicolon ? ";" : ":"));
  const bool wider = field_mark == Timecode::FieldMarkDotSuffix &&
                     (timecode.frame_rate() == 50 || timecode.frame_rate() == 60);
  expect(label.size() == (field_mark > Timecode::FieldMarkFramesDashed ? 9 : wider ? 13 : 11));
}

void check_pattern(const Korvane::Timecode& timecode, const std::string& pattern) {
  std::string expected = pattern;
  replace_all(expected, "%HH", "11");
  replace_all(expected, "%MM", "22");
  replace_all(expected, "%SS", "33");
  replace_all(expected, "%FF", "14");
  expect(expected == timecode.formatter(pattern.c_str()));

  const std::wstring wide(pattern.begin(), pattern.end());
  expect(timecode.formatter(wide.c_str()) != nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const unsigned short rates[] = {24, 25, 30, 50, 60};
  const unsigned short rate = rates[input.take_below(5)];
  const Korvane::Timecode timecode(rate, 11, 22, 33, 14, input.take_bool(), input.take_bool());
  if (input.take_below(8) == 0)
    check_label(timecode, input);
  else
    check_pattern(timecode, input.rest().c_str());
  return 0;
}
