// The 80-bit word of linear timecode (SMPTE ST 12-1, LTC), as it is sent: the label, eight groups
// of user bits, the flags, a parity over the whole word, and the sync word. Header-only, C++17.
//
// Timecode::to_12m_full gives the 64 bits before the sync word with a parity over 16 of them and
// user bits zero; here all is as the standard has it. Bit n of the word, counted from the first
// that is sent, is bit n % 8 (from the least) of byte n / 8.
//
//   bits   0-3   frames units    8-9   frames tens     10  drop-frame flag   11  colour frame flag
//         16-19  seconds units  24-26  seconds tens    27  see below
//         32-35  minutes units  40-42  minutes tens    43  see below
//         48-51  hours units    56-57  hours tens      58  see below         59  see below
//   user bits: group 1 is bits 4-7, group 2 bits 12-15 ... group 8 bits 60-63
//   sync word: bits 64-79
//
//                      bit 27    bit 43    bit 58    bit 59
//   24, 30, 60         mark      BGF0      BGF1      BGF2
//   25, 50             BGF0      BGF2      BGF1      mark
//
// BGF0 to BGF2 are the binary group flags. The mark is the parity (biphase mark polarity
// correction), which makes the number of ones among the 80 bits even, so that each word starts with
// the same edge; in the words of VITC and of ancillary timecode (ST 12-2), which share this layout,
// it is the field mark instead.
//
// At 50 and 60 the frames are pairs, as in the label; a word with parity holds for both frames
// of a pair.

#ifndef KV_ENGINE_EXT_LTC_H
#define KV_ENGINE_EXT_LTC_H

#include <array>
#include <cstdint>

#include "core/exception.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane::Ext {

using LtcWord = std::array<std::uint8_t, 10>;

// What the mark bit is.
enum class LtcMark { Parity, FieldMark };

// What a word carries beside the label. User bits: group 1 in the lowest four bits.
struct LtcExtras {
  std::uint32_t user_bits = 0;
  bool color_frame = false;
  bool bgf0 = false;
  bool bgf1 = false;
  bool bgf2 = false;
};

namespace Detail {

inline constexpr std::uint8_t kLtcSync[] = {0xFC, 0xBF};

// Where the flags are, by rate.
struct LtcPlaces {
  unsigned int mark;
  unsigned int bgf0;
  unsigned int bgf1;
  unsigned int bgf2;
};

constexpr LtcPlaces ltc_places(unsigned int rate) {
  return rate == 25 || rate == 50 ? LtcPlaces{59, 27, 58, 43} : LtcPlaces{27, 43, 58, 59};
}

constexpr std::uint64_t ltc_bit(bool value, unsigned int place) {
  return std::uint64_t{value} << place;
}

constexpr bool is_odd(std::uint64_t bits) {
  bool odd = false;
  for (; bits != 0; bits &= bits - 1) odd = !odd;
  return odd;
}

inline std::uint64_t ltc_user_bits(std::uint32_t groups) {
  std::uint64_t bits = 0;
  for (unsigned int i = 0; i < 8; ++i)
    bits |= std::uint64_t{groups >> (4 * i) & 0xFU} << (8 * i + 4);
  return bits;
}

}  // namespace Detail

// The 64 bits before the sync word, bit 0 the least.
inline std::uint64_t ltc_data(const LtcWord& word) {
  std::uint64_t data = 0;
  for (unsigned int i = 0; i < 8; ++i) data |= std::uint64_t{word[i]} << (8 * i);
  return data;
}

inline bool has_ltc_sync(const LtcWord& word) {
  return word[8] == Detail::kLtcSync[0] && word[9] == Detail::kLtcSync[1];
}

// Whether the number of ones among the 80 bits is even, as parity makes it. Encoders are known
// that do not care.
inline bool has_even_ltc_parity(const LtcWord& word) {
  return !Detail::is_odd(ltc_data(word) ^ word[8] ^ word[9]);
}

// The word of `timecode`. Hours and frames are those of the label; days do not count.
inline LtcWord to_ltc(const Timecode& timecode, const LtcExtras& extras = {},
                      LtcMark mark = LtcMark::Parity) {
  const Detail::LtcPlaces places = Detail::ltc_places(timecode.frame_rate());
  std::uint64_t data = timecode.to_12m_full() & ~(std::uint64_t{1} << places.mark);
  data |= Detail::ltc_user_bits(extras.user_bits) | Detail::ltc_bit(extras.color_frame, 11) |
          Detail::ltc_bit(extras.bgf0, places.bgf0) | Detail::ltc_bit(extras.bgf1, places.bgf1) |
          Detail::ltc_bit(extras.bgf2, places.bgf2);
  // The sync word has an odd number of ones.
  const bool marked = mark == LtcMark::Parity ? !Detail::is_odd(data) : timecode.field_mark();
  data |= Detail::ltc_bit(marked, places.mark);

  LtcWord word{};
  for (unsigned int i = 0; i < 8; ++i) word[i] = static_cast<std::uint8_t>(data >> (8 * i) & 0xFFU);
  word[8] = Detail::kLtcSync[0];
  word[9] = Detail::kLtcSync[1];
  return word;
}

// The timecode of `word`, counted at `rate`: the field mark is read where `mark` says so, and false
// otherwise. Parity is not checked. Raises InvalidArgument "Invalid sync word", and the errors of
// construction of Timecode, also for digits out of range.
inline Timecode from_ltc(unsigned short rate, const LtcWord& word, LtcMark mark = LtcMark::Parity) {
  exception_enforce(has_ltc_sync(word), InvalidArgument, "Invalid sync word", true);
  return TimecodeUtils::load_timecode_from_full_st12m(rate, ltc_data(word),
                                                      mark == LtcMark::Parity);
}

// What `word` carries beside the label; the places of the flags depend on `rate`.
inline LtcExtras ltc_extras(unsigned short rate, const LtcWord& word) {
  const std::uint64_t data = ltc_data(word);
  const auto bit = [data](unsigned int place) { return (data >> place & 1U) != 0; };
  const Detail::LtcPlaces places = Detail::ltc_places(rate);
  LtcExtras extras;
  for (unsigned int i = 0; i < 8; ++i)
    extras.user_bits |= static_cast<std::uint32_t>(data >> (8 * i + 4) & 0xFU) << (4 * i);
  extras.color_frame = bit(11);
  extras.bgf0 = bit(places.bgf0);
  extras.bgf1 = bit(places.bgf1);
  extras.bgf2 = bit(places.bgf2);
  return extras;
}

}  // namespace Korvane::Ext
#endif  // KV_ENGINE_EXT_LTC_H
