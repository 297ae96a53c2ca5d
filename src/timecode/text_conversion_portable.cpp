// The converter of platforms without the Windows functions. Wide text holds UTF-16 units; where
// wchar_t is wider, a larger value is read as the code point that it is.

#include <limits>
#include <string_view>

#include "timecode/text_conversion.h"
#include "timecode/utf8_reader.h"

namespace Korvane {
namespace {

// Writes units while there is room and counts them all.
template <typename Unit>
class Output {
 public:
  Output(Unit* out, int capacity) : out_(out), capacity_(capacity) {}

  void put(char32_t unit) {
    if (count_ < capacity_) out_[count_] = static_cast<Unit>(unit);
    ++count_;
  }

  // 0, a failure, when the units did not fit or their number does not.
  int result() const {
    const bool query = capacity_ == 0;
    const bool fits = query ? count_ <= std::numeric_limits<int>::max() : count_ <= capacity_;
    return fits ? static_cast<int>(count_) : 0;
  }

 private:
  Unit* out_;
  int capacity_;
  long long count_ = 0;
};

void put_utf16(char32_t code_point, Output<wchar_t>& out) {
  if (code_point < 0x10000) {
    out.put(code_point);
  } else {
    out.put(0xD800 + ((code_point - 0x10000) >> 10));
    out.put(0xDC00 + (code_point & 0x3FF));
  }
}

void put_utf8(char32_t code_point, Output<char>& out) {
  if (code_point < 0x80) {
    out.put(code_point);
  } else if (code_point < 0x800) {
    out.put(0xC0 | code_point >> 6);
    out.put(0x80 | (code_point & 0x3F));
  } else if (code_point < 0x10000) {
    out.put(0xE0 | code_point >> 12);
    out.put(0x80 | (code_point >> 6 & 0x3F));
    out.put(0x80 | (code_point & 0x3F));
  } else {
    out.put(0xF0 | code_point >> 18);
    out.put(0x80 | (code_point >> 12 & 0x3F));
    out.put(0x80 | (code_point >> 6 & 0x3F));
    out.put(0x80 | (code_point & 0x3F));
  }
}

constexpr bool is_high_surrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool is_low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

int to_wide(const char* text, int size, wchar_t* out, int capacity) {
  Output<wchar_t> units(out, capacity);
  std::string_view rest(text, static_cast<std::size_t>(size));
  while (!rest.empty()) {
    const Utf8CodePoint next = read_utf8(rest);
    put_utf16(next.value, units);
    rest.remove_prefix(static_cast<std::size_t>(next.size));
  }
  return units.result();
}

int to_utf8(const wchar_t* text, int size, char* out, int capacity) {
  Output<char> bytes(out, capacity);
  for (int i = 0; i < size; ++i) {
    const auto unit = static_cast<char32_t>(text[i]);
    const char32_t next = i + 1 < size ? static_cast<char32_t>(text[i + 1]) : 0;
    if (is_high_surrogate(unit) && is_low_surrogate(next)) {
      put_utf8(0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00), bytes);
      ++i;
    } else if (is_high_surrogate(unit) || is_low_surrogate(unit) || unit > 0x10FFFF) {
      put_utf8(U'\uFFFD', bytes);
    } else {
      put_utf8(unit, bytes);
    }
  }
  return bytes.result();
}

}  // namespace

const TextConverter& platform_text_converter() {
  static constexpr TextConverter kConverter = {to_wide, to_utf8};
  return kConverter;
}

}  // namespace Korvane
