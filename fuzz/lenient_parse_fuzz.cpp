// Lenient reading: a timecode of this rate, or the one failure.

#include "core/exception.h"
#include "input.h"
#include "timecode/timecode_utils.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Korvane::Input input(data, size);
  const unsigned short rate = input.take_rate();
  const bool drop_frame = input.take_bool();
  try {
    const Korvane::Timecode timecode =
        Korvane::TimecodeUtils::string_to_timecode(input.rest().c_str(), rate, drop_frame);
    Korvane::expect(timecode.frame_rate() == rate && timecode.hours() < 24);
  } catch (const Korvane::Exception& exception) {
    Korvane::expect(exception.code() == Korvane::NotSupported);
  }
  return 0;
}
