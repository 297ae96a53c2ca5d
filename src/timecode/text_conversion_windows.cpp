#include <windows.h>

#include <limits>
#include <string>
#include <string_view>

#include "timecode/text_conversion.h"
#include "timecode/utf8_reader.h"

namespace Korvane {
namespace {

// Windows takes some neighbouring ill-formed parts for one (ED A0 of a surrogate, E0 80 of an
// overlong form), so it is given U+FFFD in their place.
std::string without_ill_formed_parts(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const Utf8CodePoint next = read_utf8(text);
    const auto size = static_cast<std::size_t>(next.size);
    result += next.well_formed ? text.substr(0, size) : std::string_view("\xEF\xBF\xBD");
    text.remove_prefix(size);
  }
  return result;
}

int to_wide(const char* text, int size, wchar_t* out, int capacity) {
  const std::string clean = without_ill_formed_parts({text, static_cast<std::size_t>(size)});
  if (clean.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return 0;
  return MultiByteToWideChar(CP_UTF8, 0, clean.data(), static_cast<int>(clean.size()), out,
                             capacity);
}

int to_utf8(const wchar_t* text, int size, char* out, int capacity) {
  return WideCharToMultiByte(CP_UTF8, 0, text, size, out, capacity, nullptr, nullptr);
}

}  // namespace

const TextConverter& platform_text_converter() {
  static constexpr TextConverter kConverter = {to_wide, to_utf8};
  return kConverter;
}

}  // namespace Korvane
