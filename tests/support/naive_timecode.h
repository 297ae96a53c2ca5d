// Timecode counting done the plain way, to compare the library with: a label is stepped by hand and
// skips the numbers that drop-frame counting leaves out, minute starts are a table, texts and words
// are put together digit by digit. Nothing here calls the library.

#ifndef KV_ENGINE_TESTS_SUPPORT_NAIVE_TIMECODE_H
#define KV_ENGINE_TESTS_SUPPORT_NAIVE_TIMECODE_H

#include <algorithm>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "timecode/timecode.h"

namespace Korvane::Naive {

__extension__ using Int128 = __int128;

// As a 64-bit register keeps it.
inline long long wrapped(Int128 value) {
  return static_cast<long long>(static_cast<unsigned long long>(value));
}

struct Counting {
  const char* name;
  unsigned short rate;
  bool drop;
  long long frames_per_day;
};

// 86400 seconds of `rate` frames. Drop-frame leaves out 2 numbers (4 at 60) in 54 minutes of each
// of the 24 hours.
inline constexpr Counting kCountings[] = {
    {"Rate24", 24, false, 2073600},    {"Rate25", 25, false, 2160000},
    {"Rate30", 30, false, 2592000},    {"Rate30Drop", 30, true, 2589408},
    {"Rate50", 50, false, 4320000},    {"Rate60", 60, false, 5184000},
    {"Rate60Drop", 60, true, 5178816},
};

inline bool counts_pairs(const Counting& counting) { return counting.rate > 30; }

struct Label {
  int hours = 0;
  int minutes = 0;
  int seconds = 0;
  int frame = 0;  // at full rate
};

inline int frames_field(const Counting& counting, const Label& label) {
  return counts_pairs(counting) ? label.frame / 2 : label.frame;
}

inline bool field_mark(const Counting& counting, const Label& label) {
  return counts_pairs(counting) && label.frame % 2 == 1;
}

// Frames 0 and 1 (pairs 0 and 1 at 60) of each minute that is not divisible by ten.
inline bool is_dropped(const Counting& counting, const Label& label) {
  return counting.drop && label.minutes % 10 != 0 && label.seconds == 0 &&
         frames_field(counting, label) <= 1;
}

struct Frame {
  long long count = 0;
  long long absolute = 0;
  long long days = 0;
  Label label;
};

// The next number, dropped or not. Whether the day is over.
inline bool number_up(const Counting& counting, Label& label) {
  if (++label.frame < counting.rate) return false;
  label.frame = 0;
  if (++label.seconds < 60) return false;
  label.seconds = 0;
  if (++label.minutes < 60) return false;
  label.minutes = 0;
  if (++label.hours < 24) return false;
  label.hours = 0;
  return true;
}

// The number before. Whether it lies in the day before.
inline bool number_down(const Counting& counting, Label& label) {
  if (--label.frame >= 0) return false;
  label.frame = counting.rate - 1;
  if (--label.seconds >= 0) return false;
  label.seconds = 59;
  if (--label.minutes >= 0) return false;
  label.minutes = 59;
  if (--label.hours >= 0) return false;
  label.hours = 23;
  return true;
}

inline void step_up(const Counting& counting, Frame& frame) {
  ++frame.count;
  ++frame.absolute;
  bool new_day = number_up(counting, frame.label);
  while (is_dropped(counting, frame.label)) new_day |= number_up(counting, frame.label);
  if (!new_day) return;
  ++frame.days;
  frame.absolute = 0;
}

inline void step_down(const Counting& counting, Frame& frame) {
  --frame.count;
  --frame.absolute;
  bool new_day = number_down(counting, frame.label);
  while (is_dropped(counting, frame.label)) new_day |= number_down(counting, frame.label);
  if (!new_day) return;
  --frame.days;
  frame.absolute = counting.frames_per_day - 1;
}

// The frame of the same label with field mark `second`.
inline Frame with_field_mark(const Counting& counting, Frame frame, bool second) {
  if (!counts_pairs(counting)) return frame;
  const int move = (second ? 1 : 0) - frame.label.frame % 2;
  frame.count += move;
  frame.absolute += move;
  frame.label.frame += move;
  return frame;
}

// Counts and labels of a counting by the frames at which its minutes start, for 25 hours: hour 24
// is a valid label.
class Minutes {
 public:
  explicit Minutes(const Counting& counting) : counting_(counting) {
    long long start = 0;
    for (int minute = 0; minute < 25 * 60; ++minute) {
      starts_.push_back(start);
      start += counting.rate * 60 - dropped_in(minute);
    }
  }

  // A label that is left out counts as many frames before the start of its minute.
  long long count_at(const Label& label) const {
    const int minute = label.hours * 60 + label.minutes;
    return starts_[static_cast<std::size_t>(minute)] +
           static_cast<long long>(label.seconds) * counting_.rate + label.frame -
           dropped_in(minute);
  }

  Label label_at(long long absolute) const {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), absolute);
    const int minute = static_cast<int>(next - starts_.begin()) - 1;
    const auto number =
        static_cast<int>(absolute - starts_[static_cast<std::size_t>(minute)]) + dropped_in(minute);
    return {minute / 60, minute % 60, number / counting_.rate, number % counting_.rate};
  }

  Frame frame_at(long long count) const {
    Frame frame;
    frame.count = count;
    frame.days = count / counting_.frames_per_day;
    frame.absolute = count % counting_.frames_per_day;
    if (frame.absolute < 0) {
      --frame.days;
      frame.absolute += counting_.frames_per_day;
    }
    frame.label = label_at(frame.absolute);
    return frame;
  }

 private:
  int dropped_in(int minute) const {
    if (!counting_.drop || minute % 10 == 0) return 0;
    return counts_pairs(counting_) ? 4 : 2;
  }

  Counting counting_;
  std::vector<long long> starts_;
};

inline void append_two_digits(std::string& text, int number) {
  text += static_cast<char>('0' + number / 10);
  text += static_cast<char>('0' + number % 10);
}

// For the four named indications.
inline std::string text_of(const Counting& counting, const Label& label,
                           Timecode::DropFrameIndication drop_frame,
                           Timecode::FieldMarkIndication field_indication) {
  std::string text;
  append_two_digits(text, label.hours);
  text += ':';
  append_two_digits(text, label.minutes);
  text += ':';
  append_two_digits(text, label.seconds);
  text += counting.drop && drop_frame == Timecode::DropFrameSemicolon ? ';' : ':';
  if (field_indication == Timecode::FieldMarkFramesDashed) return text + "--";
  append_two_digits(text, field_indication == Timecode::FieldMarkFullRateFrames
                              ? label.frame
                              : frames_field(counting, label));
  if (field_indication == Timecode::FieldMarkDotSuffix && counts_pairs(counting))
    text += label.frame % 2 == 1 ? ".1" : ".0";
  return text;
}

// The hexadecimal number that reads as the decimal one.
inline unsigned int as_decimal_digits(int number) {
  return static_cast<unsigned int>(number / 10 * 16 + number % 10);
}

// The digits of a word of 32 bits; the frame is the number that stands there, in pairs above
// rate 30.
inline int field_of_word(unsigned int word, int units_bit, int tens_bits) {
  const unsigned int units = word >> units_bit & 0xF;
  const unsigned int tens = word >> (units_bit + 4) & ((1U << tens_bits) - 1);
  return static_cast<int>(tens * 10 + units);
}
inline Label label_of_word(unsigned int word) {
  return {field_of_word(word, 24, 2), field_of_word(word, 16, 3), field_of_word(word, 8, 3),
          field_of_word(word, 0, 2)};
}

// The order in which libavutil has the bytes of a word.
constexpr unsigned int bytes_reversed(unsigned int word) {
  return word >> 24 | (word >> 8 & 0xFF00) | (word << 8 & 0xFF0000) | word << 24;
}

// hhmmssff as eight digits.
inline unsigned int digits_of(const Counting& counting, const Label& label) {
  return as_decimal_digits(label.hours) << 24 | as_decimal_digits(label.minutes) << 16 |
         as_decimal_digits(label.seconds) << 8 | as_decimal_digits(frames_field(counting, label));
}

inline unsigned int word32_of(const Counting& counting, const Label& label) {
  unsigned int word = digits_of(counting, label);
  if (counting.drop) word |= 0x40;
  if (field_mark(counting, label)) word |= counting.rate == 50 ? 0x80000000 : 0x8000;
  return word;
}

// The bit that the 64-bit word has for the parity, and on reading for the field mark.
inline int parity_bit_of(unsigned short rate) { return rate == 25 || rate == 50 ? 59 : 27; }

// One digit in the low half of each byte, and the drop-frame flag.
inline unsigned long long word64_without_parity(const Counting& counting, const Label& label) {
  const unsigned int digits = digits_of(counting, label);
  unsigned long long word = counting.drop ? 0x400 : 0;
  for (int i = 0; i < 8; ++i)
    word |= static_cast<unsigned long long>(digits >> 4 * i & 0xF) << 8 * i;
  return word;
}

inline bool parity_of(unsigned long long word) {
  int ones = 0;
  for (int i = 0; i < 16; ++i)
    if ((word >> i & 1) != 0) ++ones;
  return ones % 2 == 0;
}

inline unsigned long long word64_of(const Counting& counting, const Label& label) {
  const unsigned long long word = word64_without_parity(counting, label);
  return parity_of(word) ? word | 1ULL << parity_bit_of(counting.rate) : word;
}

// Whether every number of `timecode` is that of `frame`; the days in their 16 bits.
inline bool same(const Counting& counting, const Frame& frame, const Timecode& timecode) {
  return timecode.frame_rate() == counting.rate && timecode.drop_frame() == counting.drop &&
         timecode.frame_count() == frame.count &&
         timecode.absolute_frame_count() == frame.absolute &&
         timecode.days() == static_cast<short>(frame.days) &&
         timecode.hours() == frame.label.hours && timecode.minutes() == frame.label.minutes &&
         timecode.seconds() == frame.label.seconds &&
         timecode.frames() == frames_field(counting, frame.label) &&
         timecode.field_mark() == field_mark(counting, frame.label) &&
         timecode.frames_ignore_field_mark() == frame.label.frame;
}

inline std::string show(const Counting& counting, const Frame& frame) {
  return std::string(counting.name) + " count " + std::to_string(frame.count) + " absolute " +
         std::to_string(frame.absolute) + " days " +
         std::to_string(static_cast<short>(frame.days)) + " label " +
         text_of(counting, frame.label, Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
}

inline std::string show(const Timecode& timecode) {
  return "rate " + std::to_string(timecode.frame_rate()) + " drop " +
         std::to_string(timecode.drop_frame()) + " count " +
         std::to_string(timecode.frame_count()) + " absolute " +
         std::to_string(timecode.absolute_frame_count()) + " days " +
         std::to_string(timecode.days()) + " label " + std::to_string(timecode.hours()) + "h " +
         std::to_string(timecode.minutes()) + "m " + std::to_string(timecode.seconds()) + "s " +
         std::to_string(timecode.frames()) + "f mark " + std::to_string(timecode.field_mark());
}

inline std::string show_word(unsigned long long word) {
  std::ostringstream text;
  text << "0x" << std::hex << word;
  return text.str();
}

// For GoogleTest's parameter output.
inline void PrintTo(const Counting& counting, std::ostream* out) { *out << counting.name; }

}  // namespace Korvane::Naive
#endif  // KV_ENGINE_TESTS_SUPPORT_NAIVE_TIMECODE_H
