#include "wide_text.h"

#include <optional>

namespace Korvane::Tool {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// The lowest character that is written in so many bytes.
constexpr char32_t kLowest[] = {0, 0, 0x80, 0x800, 0x10000};

constexpr bool is_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }
constexpr bool is_leading_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_trailing_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

constexpr unsigned int sequence_length(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC0 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF8 ? 4 : 0;
}

struct Decoded {
  char32_t character;
  std::size_t units;
};

// `text` is not empty.
std::optional<Decoded> decode(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const unsigned int length = sequence_length(lead);
  if (length == 1) return Decoded{lead, 1};
  if (length == 0 || length > text.size()) return std::nullopt;
  char32_t character = lead & (0x7FU >> length);
  for (unsigned int i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80) return std::nullopt;
    character = character << 6U | (byte & 0x3FU);
  }
  if (character < kLowest[length] || character > 0x10FFFF || is_surrogate(character))
    return std::nullopt;
  return Decoded{character, length};
}

Decoded decode(std::wstring_view text) {
  const auto first = static_cast<char32_t>(text[0]);
  const auto second = text.size() > 1 ? static_cast<char32_t>(text[1]) : char32_t{0};
  if (is_leading_surrogate(first) && is_trailing_surrogate(second))
    return {0x10000 + ((first & 0x3FFU) << 10U) + (second & 0x3FFU), 2};
  const bool is_character = first <= 0x10FFFF && !is_surrogate(first);
  return {is_character ? first : kReplacement, 1};
}

void append(std::wstring& text, char32_t character) {
  if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
    text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10U));
    text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FFU));
  } else {
    text += static_cast<wchar_t>(character);
  }
}

void append(std::string& text, char32_t character) {
  unsigned int length = 1;
  while (length < 4 && (length == 1 ? character >= 0x80 : character >= kLowest[length + 1]))
    ++length;
  if (length == 1) {
    text += static_cast<char>(character);
    return;
  }
  const unsigned int marks = 0xF00U >> length;
  text += static_cast<char>((marks & 0xFFU) | character >> (6 * (length - 1)));
  for (unsigned int left = length - 1; left > 0; --left)
    text += static_cast<char>(0x80U | (character >> (6 * (left - 1)) & 0x3FU));
}

}  // namespace

std::wstring wide_of(std::string_view utf8) {
  std::wstring wide;
  while (!utf8.empty()) {
    const Decoded next = decode(utf8).value_or(Decoded{kReplacement, 1});
    append(wide, next.character);
    utf8.remove_prefix(next.units);
  }
  return wide;
}

std::string utf8_of(std::wstring_view wide) {
  std::string utf8;
  while (!wide.empty()) {
    const Decoded next = decode(wide);
    append(utf8, next.character);
    wide.remove_prefix(next.units);
  }
  return utf8;
}

}  // namespace Korvane::Tool
