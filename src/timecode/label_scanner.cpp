#include "timecode/label_scanner.h"

#include <limits>

namespace Korvane {
namespace {

constexpr bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool scan_character(const char*& text, char expected) {
  if (*text != expected) return false;
  ++text;
  return true;
}

bool scan_any_character(const char*& text, char& value) {
  if (*text == '\0') return false;
  value = *text++;
  return true;
}

// As scan_number(), quicker for two digits, which nearly every number of a label has.
inline bool scan_short_number(const char*& text, long long& value) {
  if (!is_digit(text[0]) || !is_digit(text[1]) || is_digit(text[2]))
    return scan_number(text, value);
  value = (text[0] - '0') * 10 + (text[1] - '0');
  text += 2;
  return true;
}

}  // namespace

bool scan_number(const char*& text, long long& value) {
  using Limits = std::numeric_limits<long long>;
  const char* next = text;
  while (is_space(*next)) ++next;
  const bool negative = *next == '-';
  if (*next == '-' || *next == '+') ++next;
  if (!is_digit(*next)) return false;

  long long number = 0;
  for (; is_digit(*next); ++next) {
    const int digit = *next - '0';
    if (negative)
      number = number < (Limits::min() + digit) / 10 ? Limits::min() : number * 10 - digit;
    else
      number = number > (Limits::max() - digit) / 10 ? Limits::max() : number * 10 + digit;
  }
  value = number;
  text = next;
  return true;
}

ScannedLabel scan_label(const char* text) {
  ScannedLabel label;
  if (!scan_short_number(text, label.hours)) return label;
  label.items = 1;
  if (!scan_character(text, ':') || !scan_short_number(text, label.minutes)) return label;
  label.items = 2;
  if (!scan_character(text, ':') || !scan_short_number(text, label.seconds)) return label;
  label.items = 3;
  if (!scan_any_character(text, label.separator)) return label;
  label.items = 4;
  if (!scan_short_number(text, label.frames)) return label;
  label.items = 5;
  if (!scan_character(text, '.') || !scan_short_number(text, label.field)) return label;
  label.items = 6;
  return label;
}

}  // namespace Korvane
