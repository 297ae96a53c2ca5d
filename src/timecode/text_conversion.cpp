#include "timecode/text_conversion.h"

#include "core/exception.h"

namespace Korvane {
namespace {

// Query the length, make room, convert. Too long a text counts as a failed query.
template <typename To, typename From>
std::basic_string<To> convert(std::basic_string_view<From> text,
                              int (*function)(const From*, int, To*, int), const char* query_failed,
                              const char* length_differs) {
  if (text.empty()) return {};
  const bool fits = text.size() <= kLongestConverted;
  const int size = fits ? static_cast<int>(text.size()) : 0;
  const int length = fits ? function(text.data(), size, nullptr, 0) : 0;
  exception_enforce(length > 0, StringConversionFailed, query_failed, true);

  std::basic_string<To> result(static_cast<std::size_t>(length), To());
  const int converted = function(text.data(), size, result.data(), length);
  exception_enforce(converted == length, StringConversionFailed, length_differs, true);
  return result;
}

}  // namespace

std::wstring utf8_to_wide(std::string_view text, const TextConverter& converter) {
  // The second text has always been the one of the other direction; callers may rely on it.
  return convert<wchar_t>(text, converter.to_wide, "Unable to convert from string to wstring",
                          "Unable to convert from wstring to string");
}

std::string wide_to_utf8(std::wstring_view text, const TextConverter& converter) {
  return convert<char>(text, converter.to_utf8, "Unable to convert from wstring to string",
                       "Unable to convert from wstring to string");
}

}  // namespace Korvane
