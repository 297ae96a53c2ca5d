// UTF-8 to UTF-16 and back, with the same result on every platform: each maximal ill-formed part
// (Unicode, section 3.9, "maximal subpart") becomes U+FFFD.

#ifndef KV_ENGINE_SRC_TIMECODE_TEXT_CONVERSION_H
#define KV_ENGINE_SRC_TIMECODE_TEXT_CONVERSION_H

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace Korvane {

// Longer texts are refused, as a failed query of their length.
constexpr std::size_t kLongestConverted = std::numeric_limits<int>::max();

// What a platform provides. Each function converts `size` units (at least one) into `out`, which
// has room for `capacity` units, and returns the number of units written; with capacity 0 it writes
// nothing and returns the number of units needed. 0 and below is a failure.
struct TextConverter {
  int (*to_wide)(const char* text, int size, wchar_t* out, int capacity);
  int (*to_utf8)(const wchar_t* text, int size, char* out, int capacity);
};

// The Windows code-page functions on Windows, our own converter elsewhere.
const TextConverter& platform_text_converter();

// Raises StringConversionFailed "Unable to convert from string to wstring" when the length query
// fails, and "Unable to convert from wstring to string" when the converted length is another.
std::wstring utf8_to_wide(std::string_view text,
                          const TextConverter& converter = platform_text_converter());

// Raises StringConversionFailed "Unable to convert from wstring to string" in both cases.
std::string wide_to_utf8(std::wstring_view text,
                         const TextConverter& converter = platform_text_converter());

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_TEXT_CONVERSION_H
