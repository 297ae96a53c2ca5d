// Both conversions: any bytes become well-formed text, and well-formed text stays as it is.

#include "input.h"
#include "timecode/text_conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = Korvane::Input(data, size).rest();
  const std::wstring wide = Korvane::utf8_to_wide(text);
  const std::string clean = Korvane::wide_to_utf8(wide);
  Korvane::expect(Korvane::utf8_to_wide(clean) == wide);

  std::wstring units;
  for (const char c : text) units += static_cast<wchar_t>(static_cast<unsigned char>(c) << 8);
  const std::string narrow = Korvane::wide_to_utf8(units);
  Korvane::expect(Korvane::wide_to_utf8(Korvane::utf8_to_wide(narrow)) == narrow);
  return 0;
}
