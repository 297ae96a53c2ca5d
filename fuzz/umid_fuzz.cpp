// The text of a UMID: any text is read as its hexadecimal digits in pairs, an odd number of them is
// refused, and what is printed reads back.

#include <stdexcept>
#include <string_view>

#include "input.h"
#include "media/umid.h"

namespace {

// The digits of ASCII, in lower case.
std::wstring digits_of(const std::wstring& text) {
  std::wstring digits;
  for (const wchar_t c : text) {
    const std::size_t place = std::wstring_view(L"0123456789abcdefABCDEF").find(c);
    if (place != std::wstring_view::npos) digits += L"0123456789abcdefabcdef"[place];
  }
  return digits;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Korvane::Input input(data, size);
  const bool wide = input.take_bool();  // then each ends in the 8 bits of a digit
  std::wstring text;
  for (const char c : input.rest()) {
    const auto byte = static_cast<unsigned char>(c);
    text += static_cast<wchar_t>(wide ? byte * 256 + '1' : byte);
  }
  text = text.c_str();  // up to the first zero
  const std::wstring digits = digits_of(text);
  try {
    const Korvane::Media::Umid umid(text.c_str());
    Korvane::expect(digits.size() % 2 == 0);
    Korvane::expect(digits == umid.c_str());
    Korvane::expect((umid.value() == nullptr) == digits.empty());
    Korvane::expect(digits == Korvane::Media::Umid(umid.c_str()).c_str());
  } catch (const std::out_of_range&) {
    Korvane::expect(digits.size() % 2 == 1);
  }
  return 0;
}
