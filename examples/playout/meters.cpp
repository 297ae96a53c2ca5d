#include "meters.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace Playout {
namespace {

constexpr double kSoundRate = 48000;

// The largest step of the tone: a sine of the peak p at f Hz moves by at most 2 p sin(pi f / rate)
// from one sample to the next, and by one unit of 16 bits more where both were rounded.
double largest_step() {
  const double peak = std::pow(10, -18.0 / 20);
  return 2 * peak * std::sin(std::numbers::pi * 1000 / kSoundRate) + 1.0 / 32768;
}

long percent(double value) { return std::lround(100 * value); }

}  // namespace

std::array<Rgb, 8> measure_bars(const unsigned char* line, unsigned int width) {
  std::array<Rgb, 8> bars{};
  for (std::size_t bar = 0; bar < bars.size(); ++bar) {
    const std::size_t x = (2 * bar + 1) * width / 16;
    const unsigned char* const pair = line + x / 2 * 4;  // Cb Y Cr Y
    const double cb = (pair[0] - 128) / 224.0;
    const double y = (pair[1] - 16) / 219.0;
    const double cr = (pair[2] - 128) / 224.0;
    // Rec. ITU-R BT.601.
    const double red = y + 1.402 * cr;
    const double blue = y + 1.772 * cb;
    const double green = (y - 0.299 * red - 0.114 * blue) / 0.587;
    bars[bar] = {percent(red), percent(green), percent(blue)};
  }
  return bars;
}

void ToneMeter::measure(double sample) {
  static const double limit = largest_step();
  if (has_last_) {
    if (last_ < 0 && sample >= 0) ++rises_;
    if (std::abs(sample - last_) > limit) ++clicks_;
  }
  last_ = sample;
  has_last_ = true;
  peak_ = std::max(peak_, std::abs(sample));
  sum_of_squares_ += sample * sample;
  ++count_;
}

double ToneMeter::peak_dbfs() const { return 20 * std::log10(peak_); }

double ToneMeter::rms_dbfs() const {
  return 10 * std::log10(sum_of_squares_ / static_cast<double>(count_));
}

double ToneMeter::frequency() const {
  return static_cast<double>(rises_) * kSoundRate / static_cast<double>(count_);
}

}  // namespace Playout
