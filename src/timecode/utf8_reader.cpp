#include "timecode/utf8_reader.h"

namespace Korvane {
namespace {

// Well-formed sequences by their lead byte (Unicode, table 3-7). The second byte has a range of its
// own, which keeps out overlong forms, surrogates and code points past U+10FFFF; further bytes are
// 80 to BF.
struct Row {
  unsigned char first_lead, last_lead;
  int size;
  unsigned char first_second, last_second;
};

// clang-format off
constexpr Row kRows[] = {
    {0x00, 0x7F, 1, 0x00, 0x00},
    {0xC2, 0xDF, 2, 0x80, 0xBF},
    {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F},
    {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF},
    {0xF4, 0xF4, 4, 0x80, 0x8F},
};
// clang-format on

const Row* row_of_lead(unsigned char lead) {
  for (const Row& row : kRows)
    if (row.first_lead <= lead && lead <= row.last_lead) return &row;
  return nullptr;
}

constexpr Utf8CodePoint ill_formed(int size) { return {U'\uFFFD', size, false}; }

}  // namespace

Utf8CodePoint read_utf8(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const Row* const row = row_of_lead(lead);
  if (row == nullptr) return ill_formed(1);

  // The lead byte of a sequence of n bytes carries its low 7 - n bits, one byte alone all 7.
  char32_t value = row->size == 1 ? lead : lead & (0x7FU >> row->size);
  for (int i = 1; i < row->size; ++i) {
    if (static_cast<std::size_t>(i) >= text.size()) return ill_formed(i);
    const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
    const unsigned char first = i == 1 ? row->first_second : 0x80;
    const unsigned char last = i == 1 ? row->last_second : 0xBF;
    if (byte < first || byte > last) return ill_formed(i);
    value = value << 6 | (byte & 0x3FU);
  }
  return {value, row->size, true};
}

}  // namespace Korvane
