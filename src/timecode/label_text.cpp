#include "timecode/label_text.h"

#include <array>
#include <cstddef>
#include <cstring>

#include "timecode/frame_rate.h"

namespace Korvane {
namespace {

struct TwoDigits {
  std::array<wchar_t, 2> wide;
  std::array<char, 2> narrow;
};

// "00", "01" ... "99". Longer than it need be, so that no byte lies outside.
using NumberTexts = std::array<TwoDigits, 256>;

consteval NumberTexts number_texts() {
  NumberTexts all{};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const auto tens = static_cast<char>('0' + i / 10 % 10);
    const auto ones = static_cast<char>('0' + i % 10);
    all[i] = {{static_cast<wchar_t>(tens), static_cast<wchar_t>(ones)}, {tens, ones}};
  }
  return all;
}

constexpr NumberTexts kNumberTexts = number_texts();

// Writes one text twice, narrow and wide.
class TwinWriter {
 public:
  TwinWriter(char* narrow, wchar_t* wide) : narrow_(narrow), wide_(wide) {}

  void unit(char value) {
    *narrow_++ = value;
    *wide_++ = static_cast<wchar_t>(static_cast<unsigned char>(value));
  }

  void number(unsigned char value) {
    const TwoDigits& digits = kNumberTexts[value];
    std::memcpy(narrow_, digits.narrow.data(), sizeof digits.narrow);
    std::memcpy(wide_, digits.wide.data(), sizeof digits.wide);
    narrow_ += digits.narrow.size();
    wide_ += digits.wide.size();
  }

  const char* end() const { return narrow_; }

 private:
  char* narrow_;
  wchar_t* wide_;
};

void write_frames(const TimecodeState& state, Timecode::FieldMarkIndication field_mark,
                  TwinWriter& out) {
  switch (field_mark) {
    case Timecode::FieldMarkDotSuffix:
      out.number(state.frames);
      if (!is_double_rate(state.frame_rate)) return;
      out.unit('.');
      return out.unit(state.field_mark ? '1' : '0');
    case Timecode::FieldMarkFullRateFrames:
      return out.number(state.full_rate_frames());
    case Timecode::FieldMarkOmitted:
      return out.number(state.frames);
    case Timecode::FieldMarkFramesDashed:
      out.unit('-');
      return out.unit('-');
  }
  // any other indication writes no frames
}

constexpr int kTokenLength = 3;  // "%HH"

using Field = unsigned char TimecodeState::*;
using FieldsOfLetters = std::array<Field, 256>;

consteval FieldsOfLetters fields_of_letters() {
  FieldsOfLetters fields{};  // null: no such token
  fields['H'] = &TimecodeState::hours;
  fields['M'] = &TimecodeState::minutes;
  fields['S'] = &TimecodeState::seconds;
  fields['F'] = &TimecodeState::frames;
  return fields;
}

constexpr FieldsOfLetters kFieldsOfLetters = fields_of_letters();

// What the token at `text` stands for; null when there is none.
Field field_at(const char* text) {
  if (*text != '%') return nullptr;
  const Field field = kFieldsOfLetters[static_cast<unsigned char>(text[1])];
  return field != nullptr && text[1] == text[2] ? field : nullptr;
}

}  // namespace

void write_label(const TimecodeState& state, Timecode::DropFrameIndication drop_frame,
                 Timecode::FieldMarkIndication field_mark, LabelText& text) {
  TwinWriter out(text.narrow, text.wide);
  out.number(state.hours);
  out.unit(':');
  out.number(state.minutes);
  out.unit(':');
  out.number(state.seconds);
  out.unit(state.drop_frame && drop_frame == Timecode::DropFrameSemicolon ? ';' : ':');
  write_frames(state, field_mark, out);
  out.unit('\0');
}

ExpandedPattern expand_pattern(const TimecodeState& state, const char* pattern, char* narrow,
                               wchar_t* wide) {
  TwinWriter out(narrow, wide);
  unsigned char all_bits = 0;
  while (*pattern != '\0') {
    if (const Field field = field_at(pattern)) {
      out.number(state.*field);
      pattern += kTokenLength;
    } else {
      all_bits |= static_cast<unsigned char>(*pattern);
      out.unit(*pattern++);
    }
  }
  const std::ptrdiff_t size = out.end() - narrow;
  out.unit('\0');
  return {static_cast<std::size_t>(size), all_bits < 0x80};
}

}  // namespace Korvane
