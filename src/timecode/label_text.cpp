#include "timecode/label_text.h"

#include <array>
#include <cstddef>
#include <cstring>

#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

// "00", "01" ... "99". Longer than it need be, so that no byte lies outside.
using TwoDigits = std::array<std::array<char, 2>, 256>;

consteval TwoDigits two_digits() {
  TwoDigits all{};
  for (std::size_t i = 0; i < all.size(); ++i)
    all[i] = {static_cast<char>('0' + i / 10 % 10), static_cast<char>('0' + i % 10)};
  return all;
}

constexpr TwoDigits kTwoDigits = two_digits();

// Two digits. Returns the end of what it wrote.
char* write_number(unsigned char value, char* out) {
  std::memcpy(out, kTwoDigits[value].data(), 2);
  return out + 2;
}

char* write_frames(const TimecodeState& state, Timecode::FieldMarkIndication field_mark,
                   char* out) {
  const bool pairs = is_double_rate(state.frame_rate);
  switch (field_mark) {
    case Timecode::FieldMarkDotSuffix:
      out = write_number(state.frames, out);
      if (pairs) {
        *out++ = '.';
        *out++ = state.field_mark ? '1' : '0';
      }
      return out;
    case Timecode::FieldMarkFullRateFrames:
      return write_number(state.full_rate_frames(), out);
    case Timecode::FieldMarkOmitted:
      return write_number(state.frames, out);
    case Timecode::FieldMarkFramesDashed:
      *out++ = '-';
      *out++ = '-';
      return out;
  }
  return out;  // any other indication writes no frames
}

constexpr std::ptrdiff_t kTokenLength = 3;  // "%HH"

// What the token with this letter stands for; null when there is no such token.
const unsigned char* field_of_token(const TimecodeState& state, char letter) {
  switch (letter) {
    case 'H':
      return &state.hours;
    case 'M':
      return &state.minutes;
    case 'S':
      return &state.seconds;
    case 'F':
      return &state.frames;
    default:
      return nullptr;
  }
}

// What the token at `text` stands for; null when there is none.
const unsigned char* field_at(const TimecodeState& state, const char* text, const char* end) {
  if (*text != '%' || end - text < kTokenLength || text[1] != text[2]) return nullptr;
  return field_of_token(state, text[1]);
}

}  // namespace

void write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                 Timecode::FieldMarkIndication field_mark, char (&text)[kLabelTextCapacity]) {
  char* out = write_number(state.hours, text);
  *out++ = ':';
  out = write_number(state.minutes, out);
  *out++ = ':';
  out = write_number(state.seconds, out);
  *out++ = state.drop_frame && drop_frame == Timecode::DropFrameSemicolon ? ';' : ':';
  out = write_frames(state, field_mark, out);
  *out = '\0';
}

ExpandedPattern expand_pattern(const TimecodeState& state, std::string_view pattern, char* narrow,
                               wchar_t* wide) {
  std::size_t size = 0;
  unsigned char all_bits = 0;
  const char* const end = pattern.data() + pattern.size();
  for (const char* next = pattern.data(); next != end;) {
    if (const unsigned char* const field = field_at(state, next, end)) {
      for (const char digit : kTwoDigits[*field]) {
        narrow[size] = digit;
        wide[size] = static_cast<wchar_t>(digit);
        ++size;
      }
      next += kTokenLength;
    } else {
      const auto unit = static_cast<unsigned char>(*next++);
      all_bits |= unit;
      narrow[size] = static_cast<char>(unit);
      wide[size] = static_cast<wchar_t>(unit);
      ++size;
    }
  }
  narrow[size] = '\0';
  wide[size] = L'\0';
  return {size, all_bits < 0x80};
}

}  // namespace Korvane
