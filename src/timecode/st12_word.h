// Binary-coded decimal fields in the timecode words of SMPTE ST 12-1.

#ifndef KV_ENGINE_SRC_TIMECODE_ST12_WORD_H
#define KV_ENGINE_SRC_TIMECODE_ST12_WORD_H

#include "timecode/frame_rate.h"
#include "timecode/timecode_state.h"

namespace Korvane {

// A two-digit field: four bits of units, and as many bits of tens as the mask holds.
struct BcdField {
  int units_bit;
  int tens_bit;
  unsigned int tens_mask;

  constexpr unsigned long long pack(unsigned int value) const {
    return static_cast<unsigned long long>(value % 10) << units_bit |
           static_cast<unsigned long long>(value / 10 & tens_mask) << tens_bit;
  }

  // Units of 10 to 15 are taken at their value.
  constexpr unsigned char unpack(unsigned long long word) const {
    return static_cast<unsigned char>((word >> tens_bit & tens_mask) * 10 +
                                      (word >> units_bit & 0xF));
  }
};

struct St12Layout {
  BcdField frames, seconds, minutes, hours;
  int drop_frame_bit;
  int field_mark_bit;  // at every rate but 50
  int field_mark_bit_at_50;

  constexpr int field_mark_bit_at(unsigned short rate) const {
    return rate == 50 ? field_mark_bit_at_50 : field_mark_bit;
  }
};

constexpr St12Layout kSt12Word32 = {{0, 4, 3}, {8, 12, 7}, {16, 20, 7}, {24, 28, 3}, 6, 15, 31};
constexpr St12Layout kSt12Word64 = {{0, 8, 3}, {16, 24, 7}, {32, 40, 7}, {48, 56, 3}, 10, 27, 59};

constexpr bool bit(unsigned long long word, int number) { return (word >> number & 1) != 0; }

constexpr unsigned long long with_bit(unsigned long long word, int number, bool value) {
  return (word & ~(1ULL << number)) | static_cast<unsigned long long>(value) << number;
}

// What a word says, right or wrong.
constexpr Label label_of_word(const St12Layout& layout, unsigned short rate,
                              unsigned long long word) {
  return {layout.hours.unpack(word), layout.minutes.unpack(word), layout.seconds.unpack(word),
          layout.frames.unpack(word),
          is_double_rate(rate) && bit(word, layout.field_mark_bit_at(rate))};
}

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_ST12_WORD_H
