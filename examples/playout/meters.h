// What the host measures in the bytes of a signal.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_METERS_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_METERS_H

#include <array>

namespace Playout {

// Red, green and blue in percent.
using Rgb = std::array<long, 3>;

// The colours in the middle of eight bars beside each other, on one line of an 8-bit UYVY picture.
std::array<Rgb, 8> measure_bars(const unsigned char* line, unsigned int width);

// Listens to one channel of a tone: 1 kHz at -18 dBFS, 48000 samples per second.
class ToneMeter {
 public:
  // `sample` in parts of full scale: -1 to 1.
  void measure(double sample);

  // The next sample does not follow on the last one.
  void restart() { has_last_ = false; }

  // 0 dBFS is full scale; the RMS of a full-scale sine is then -3.01.
  double peak_dbfs() const;
  double rms_dbfs() const;
  double frequency() const;

  // Steps between two samples that such a tone cannot make.
  unsigned int clicks() const { return clicks_; }

 private:
  double peak_ = 0;
  double sum_of_squares_ = 0;
  unsigned long long count_ = 0;
  unsigned long long rises_ = 0;
  unsigned int clicks_ = 0;
  double last_ = 0;
  bool has_last_ = false;
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_METERS_H
