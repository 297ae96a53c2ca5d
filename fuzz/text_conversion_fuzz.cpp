// Both conversions: any bytes, or any units of 16 bits, become well-formed text, and well-formed
// text stays as it is.

#include "input.h"
#include "timecode/text_conversion.h"

using Korvane::expect;
using Korvane::Input;
using Korvane::utf8_to_wide;
using Korvane::wide_to_utf8;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  if (input.take_bool()) {
    const std::wstring wide = utf8_to_wide(input.rest());
    expect(utf8_to_wide(wide_to_utf8(wide)) == wide);
  } else {
    std::wstring units(size / 2, L'\0');
    for (wchar_t& unit : units) unit = static_cast<wchar_t>(input.take<unsigned short>());
    const std::string narrow = wide_to_utf8(units);
    expect(wide_to_utf8(utf8_to_wide(narrow)) == narrow);
  }
  return 0;
}
