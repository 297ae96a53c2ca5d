// Both conversions: any bytes, or any units of 16 bits, become well-formed text, and well-formed
// text stays as it is. Too long a text, and too little room, is refused.

#include "timecode/text_conversion.h"

#include <vector>

#include "core/exception.h"
#include "input.h"
#include "timecode/label_text.h"

using Korvane::expect;
using Korvane::Input;
using Korvane::utf8_to_wide;
using Korvane::wide_to_utf8;

namespace {

void check_narrow(const std::string& bytes) {
  const std::wstring wide = utf8_to_wide(bytes);
  expect(utf8_to_wide(wide_to_utf8(wide)) == wide);
}

void check_wide(const std::wstring& units) {
  const std::string narrow = wide_to_utf8(units);
  expect(wide_to_utf8(utf8_to_wide(narrow)) == narrow);
}

template <typename Function>
bool is_refused(Function convert) {
  try {
    convert();
    return false;
  } catch (const Korvane::Exception& exception) {
    return exception.code() == Korvane::StringConversionFailed;
  }
}

// Refused before a unit of it is read, so there need be no such text.
void check_too_long(Input& input) {
  const std::size_t size = Korvane::kLongestConverted + 1 + input.take<unsigned int>();
  expect(is_refused([&] { utf8_to_wide(std::string_view("x", size)); }));
  expect(is_refused([&] { wide_to_utf8(std::wstring_view(L"x", size)); }));
  expect(!Korvane::ExpandedPattern{size, true}.wide_is_right());
}

// Either all of it fits and is written, or a failure is told; the sanitizer sees what goes beyond.
template <typename To, typename From>
void check_room(int (*convert)(const From*, int, To*, int), const std::basic_string<From>& text,
                int capacity) {
  if (text.empty()) return;
  const int size = static_cast<int>(text.size());
  const int needed = convert(text.data(), size, nullptr, 0);
  expect(needed > 0);
  std::vector<To> room(static_cast<std::size_t>(capacity));
  const int written = convert(text.data(), size, room.data(), capacity);
  expect(needed <= capacity ? written == needed : written <= 0);
}

std::wstring take_units(Input& input, std::size_t count) {
  std::wstring units(count, L'\0');
  for (wchar_t& unit : units) unit = static_cast<wchar_t>(input.take<unsigned short>());
  return units;
}

void check_room(Input& input) {
  const Korvane::TextConverter& converter = Korvane::platform_text_converter();
  const int capacity = 1 + static_cast<int>(input.take_below(32));
  const std::string bytes = input.rest();
  check_room(converter.to_wide, bytes, capacity);
  check_room(converter.to_utf8, take_units(input, bytes.size() / 2), capacity);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const unsigned int kind = input.take_below(16);
  if (kind == 14) {  // seldom, as exceptions take long
    check_too_long(input);
  } else if (kind == 15) {
    check_room(input);
  } else if (kind % 2 != 0) {
    check_narrow(input.rest());
  } else {
    check_wide(take_units(input, size / 2));
  }
  return 0;
}
