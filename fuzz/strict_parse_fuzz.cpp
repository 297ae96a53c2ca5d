// Strict reading, narrow and wide: what is read prints as a label that reads as the same timecode.

#include "core/exception.h"
#include "input.h"
#include "timecode/timecode_utils.h"

namespace {

using Korvane::Timecode;
using Korvane::TimecodeUtils::load_timecode_from_string;

void check(const Timecode& timecode) {
  const auto field_mark = Timecode::FieldMarkDotSuffix;
  const Timecode again = load_timecode_from_string(
      timecode.frame_rate(), timecode.c_str(Timecode::DropFrameSemicolon, field_mark),
      Timecode::DropFrameSemicolon, field_mark);
  Korvane::expect(again.frame_count() == timecode.absolute_frame_count());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Korvane::Input input(data, size);
  const unsigned short rate = input.take_rate();
  const auto field_mark = static_cast<Timecode::FieldMarkIndication>(input.take<std::uint8_t>());
  const auto drop_frame = static_cast<Timecode::DropFrameIndication>(input.take_below(4) / 3);
  const std::string text = input.rest();
  const char* const narrow = text.empty() ? nullptr : text.c_str();
  try {
    check(load_timecode_from_string(rate, narrow, drop_frame, field_mark));
  } catch (const Korvane::Exception&) {
  }
  const std::wstring letters(text.begin(), text.end());
  const wchar_t* const wide = text.empty() ? nullptr : letters.c_str();
  try {
    check(load_timecode_from_string(rate, wide, drop_frame, field_mark));
  } catch (const Korvane::Exception&) {
  }
  return 0;
}
