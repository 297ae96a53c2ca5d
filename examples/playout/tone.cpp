#include "tone.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace Playout {
namespace {

constexpr int kPeriod = kSoundRate / 1000;  // 48 samples

// 18 dB below full scale: 32768 x 10^(-18/20) = 4125.25.
constexpr double kPeak = 4125.25;

}  // namespace

std::vector<unsigned char> make_tone(long long first, long long end) {
  std::vector<unsigned char> bytes;
  bytes.reserve(static_cast<std::size_t>(end - first) * 4);
  for (long long n = first; n < end; ++n) {
    const double phase = 2 * std::numbers::pi * static_cast<double>(n % kPeriod) / kPeriod;
    const auto value = static_cast<unsigned int>(std::lround(kPeak * std::sin(phase)));
    const auto low = static_cast<unsigned char>(value & 0xFF);
    const auto high = static_cast<unsigned char>(value >> 8 & 0xFF);
    bytes.insert(bytes.end(), {low, high, low, high});
  }
  return bytes;
}

}  // namespace Playout
