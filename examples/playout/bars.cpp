#include "bars.h"

#include <array>
#include <cstddef>

namespace Playout {
namespace {

struct Colour {
  unsigned char y, cb, cr;
};

// Rec. ITU-R BT.601, 8 bits, for R', G' and B' of 0 or 0.75:
//   Y' = 0.299 R' + 0.587 G' + 0.114 B'     Y  =  16 + 219 Y'
//   Cb = 128 + 224 (B' - Y') / 1.772        Cr = 128 + 224 (R' - Y') / 1.402
// clang-format off
constexpr std::array<Colour, 8> kBars = {{
    //  Y    Cb   Cr              exactly
    {180, 128, 128},  // white    180.25  128     128
    {162,  44, 142},  // yellow   161.53   44     141.66
    {131, 156,  44},  // cyan     131.14  156.35   44
    {112,  72,  58},  // green    112.41   72.35   57.66
    { 84, 184, 198},  // magenta   83.84  183.65  198.34
    { 65, 100, 212},  // red       65.11   99.65  212
    { 35, 212, 114},  // blue      34.72  212     114.34
    { 16, 128, 128},  // black     16     128     128
}};
// clang-format on

constexpr std::size_t kBarWidth = kWidth / kBars.size();
static_assert(kBarWidth * kBars.size() == kWidth, "the bars fill the line");
static_assert(kBarWidth % 2 == 0, "two pixels share their colour");

}  // namespace

std::vector<unsigned char> make_bars() {
  std::vector<unsigned char> line;
  for (const Colour& colour : kBars)
    for (std::size_t x = 0; x < kBarWidth; x += 2)
      line.insert(line.end(), {colour.cb, colour.y, colour.cr, colour.y});

  std::vector<unsigned char> picture;
  picture.reserve(line.size() * kHeight);
  for (unsigned int y = 0; y < kHeight; ++y)
    picture.insert(picture.end(), line.begin(), line.end());
  return picture;
}

}  // namespace Playout
