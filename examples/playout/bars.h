// Colour bars: white, yellow, cyan, green, magenta, red, blue and black, at 75%.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_BARS_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_BARS_H

#include <vector>

namespace Playout {

constexpr unsigned int kWidth = 720;
constexpr unsigned int kHeight = 576;

// One picture of 8-bit 4:2:2 in the order Cb Y Cr Y (UYVY), line by line from the top.
std::vector<unsigned char> make_bars();

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_BARS_H
