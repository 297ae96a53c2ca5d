#include "printable.h"

namespace Korvane::Tool {
namespace {

constexpr std::size_t kLongestValue = 60;

void append_hex(std::string& text, unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  text += "\\x";
  text += kDigits[byte >> 4U];
  text += kDigits[byte & 0xFU];
}

constexpr bool is_control(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }

}  // namespace

std::string printable_name(std::string_view name) {
  std::string result;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (is_control(byte))
      append_hex(result, byte);
    else
      result += c;
  }
  return result;
}

std::string in_quotes(std::string_view value) {
  std::string result = "\"";
  for (const char c : value.substr(0, kLongestValue)) {
    const auto byte = static_cast<unsigned char>(c);
    if (is_control(byte) || byte > 0x7F)
      append_hex(result, byte);
    else
      result += c;
  }
  return result + (value.size() > kLongestValue ? "...\"" : "\"");
}

}  // namespace Korvane::Tool
