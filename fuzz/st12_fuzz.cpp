// Both ST 12 words: what is read packs into a word that reads as the same timecode.

#include "core/exception.h"
#include "input.h"
#include "timecode/timecode_utils.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using Korvane::Timecode;
  using Korvane::TimecodeUtils::load_timecode_from_full_st12m;
  Korvane::Input input(data, size);
  const unsigned short rate = input.take_rate();
  try {
    const Timecode timecode(rate, input.take<unsigned int>());
    const Timecode again(rate, timecode.to_12m());
    Korvane::expect(again.frame_count() == timecode.frame_count());
  } catch (const Korvane::Exception&) {
  }
  try {
    const auto word = input.take<unsigned long long>();
    const Timecode timecode = load_timecode_from_full_st12m(rate, word, true);
    const Timecode again = load_timecode_from_full_st12m(rate, timecode.to_12m_full(), true);
    Korvane::expect(again.frame_count() == timecode.absolute_frame_count());
    load_timecode_from_full_st12m(rate, word, false);
  } catch (const Korvane::Exception&) {
  }
  return 0;
}
