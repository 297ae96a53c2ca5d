#include "timecode/label_text.h"

#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

// Decimal, at least two digits. Returns the end of what it wrote.
char* write_number(unsigned int value, char* out) {
  if (value >= 100) *out++ = static_cast<char>('0' + value / 100);
  *out++ = static_cast<char>('0' + value / 10 % 10);
  *out++ = static_cast<char>('0' + value % 10);
  return out;
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
      return write_number(pairs ? state.frames * 2U + (state.field_mark ? 1U : 0U) : state.frames,
                          out);
    case Timecode::FieldMarkOmitted:
      return write_number(state.frames, out);
    case Timecode::FieldMarkFramesDashed:
      *out++ = '-';
      *out++ = '-';
      return out;
  }
  return out;  // any other indication writes no frames
}

struct Token {
  std::string_view text;
  unsigned char TimecodeState::*field;
};

constexpr Token kTokens[] = {
    {"%HH", &TimecodeState::hours},
    {"%MM", &TimecodeState::minutes},
    {"%SS", &TimecodeState::seconds},
    {"%FF", &TimecodeState::frames},
};
constexpr std::size_t kTokenLength = 3;

// The token at the start of `text`, or null.
const Token* token_at_start(std::string_view text) {
  for (const Token& token : kTokens)
    if (text.substr(0, kTokenLength) == token.text) return &token;
  return nullptr;
}

}  // namespace

int write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                Timecode::FieldMarkIndication field_mark, char (&text)[kLabelTextCapacity]) {
  char* out = write_number(state.hours, text);
  *out++ = ':';
  out = write_number(state.minutes, out);
  *out++ = ':';
  out = write_number(state.seconds, out);
  *out++ = state.drop_frame && drop_frame == Timecode::DropFrameSemicolon ? ';' : ':';
  out = write_frames(state, field_mark, out);
  *out = '\0';
  return static_cast<int>(out - text);
}

std::string expand_pattern(const TimecodeState& state, std::string_view pattern) {
  std::string result;
  result.reserve(pattern.size());
  while (!pattern.empty()) {
    if (const Token* const token = token_at_start(pattern)) {
      char digits[kTokenLength];
      result.append(digits, write_number(state.*token->field, digits));
      pattern.remove_prefix(kTokenLength);
    } else {
      result += pattern.front();
      pattern.remove_prefix(1);
    }
  }
  return result;
}

}  // namespace Korvane
