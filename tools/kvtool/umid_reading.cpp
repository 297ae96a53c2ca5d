#include "umid_reading.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "media/umid.h"

namespace Korvane::Tool {
namespace {

constexpr std::string_view kUrn = "urn:smpte:umid:";

constexpr char lower_case(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool starts_with_urn(std::string_view text) {
  return text.size() >= kUrn.size() &&
         std::equal(kUrn.begin(), kUrn.end(), text.begin(),
                    [](char expected, char c) { return expected == lower_case(c); });
}

}  // namespace

std::string umid_digits_of(const std::string& text) {
  std::string digits = starts_with_urn(text) ? text.substr(kUrn.size()) : text;
  for (const char* const prefix : {"0x", "0X"})
    for (std::size_t at = digits.find(prefix); at != std::string::npos; at = digits.find(prefix))
      digits.erase(at, 2);
  return digits;
}

std::optional<std::string> read_umid(const std::string& text) {
  // Byte by byte: no character but those of ASCII is a digit.
  std::wstring wide;
  for (const char c : text) wide += static_cast<wchar_t>(static_cast<unsigned char>(c));
  try {
    const Media::Umid umid(wide.c_str());
    std::string read;
    for (const wchar_t* digit = umid.c_str(); *digit != L'\0'; ++digit)
      read += static_cast<char>(*digit);
    return read;
  } catch (const std::out_of_range&) {
    return std::nullopt;
  }
}

}  // namespace Korvane::Tool
