#include "media/umid.h"

#include <array>
#include <cwchar>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/required_text.h"

namespace Korvane::Media {
namespace {

// The value of each hexadecimal digit of ASCII, and -1 for the other characters.
constexpr std::array<signed char, 128> kDigitValues = [] {
  std::array<signed char, 128> values{};
  values.fill(-1);
  for (unsigned char value = 0; value < 16; ++value) {
    for (const char* digits : {"0123456789abcdef", "0123456789ABCDEF"})
      values[static_cast<unsigned char>(digits[value])] = static_cast<signed char>(value);
  }
  return values;
}();

// Under every locale; -1 for a character that is no digit.
constexpr int hexadecimal_value(wchar_t character) {
  const std::wint_t code = std::char_traits<wchar_t>::to_int_type(character);
  return code < kDigitValues.size() ? kDigitValues[code] : -1;
}

constexpr wchar_t hexadecimal_digit(unsigned int value) { return L"0123456789abcdef"[value & 15U]; }

// Moves `text` behind its next digit and returns the digit's value; -1 when there is none left.
int next_digit(const wchar_t*& text) {
  while (*text != L'\0') {
    const int value = hexadecimal_value(*text++);
    if (value >= 0) return value;
  }
  return -1;
}

std::vector<unsigned char> bytes_of(const wchar_t* text) {
  std::vector<unsigned char> bytes(std::wcslen(text) / 2);  // at most
  auto end = bytes.begin();
  for (int high = next_digit(text); high >= 0; high = next_digit(text)) {
    const int low = next_digit(text);
    // Callers know this failure as the standard library's own.
    if (low < 0) throw std::out_of_range("invalid string position");
    *end++ = static_cast<unsigned char>(high * 16 + low);
  }
  bytes.erase(end, bytes.end());
  return bytes;
}

}  // namespace

struct UmidPrivate {
  std::vector<unsigned char> bytes;
  std::wstring text;  // what c_str gave last
};

Umid::Umid(const wchar_t* text) : private_(new UmidPrivate{bytes_of(required_text(text)), {}}) {}

Umid::Umid(const Umid& other) = default;

Umid& Umid::operator=(const Umid& other) = default;

Umid::~Umid() = default;

const unsigned char* Umid::value() const {
  return private_->bytes.empty() ? nullptr : private_->bytes.data();
}

unsigned char& Umid::operator[](int index) { return private_->bytes.data()[index]; }

unsigned char Umid::operator[](int index) const { return private_->bytes.data()[index]; }

const wchar_t* Umid::c_str() const {
  std::wstring& text = private_->text;
  text.resize(private_->bytes.size() * 2);
  wchar_t* digit = text.data();
  for (const unsigned int byte : private_->bytes) {
    *digit++ = hexadecimal_digit(byte >> 4U);
    *digit++ = hexadecimal_digit(byte);
  }
  return text.c_str();
}

}  // namespace Korvane::Media
