// How the host learns what encoders do: registered with EncodingPerfListenerSingleton for as long
// as it lives, where modules find it.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_ENCODER_LISTENERS_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_ENCODER_LISTENERS_H

#include "counted.h"
#include "kv_engine.h"

namespace Playout {

struct EncoderTotals {
  unsigned long long frames = 0;
  unsigned long long bytes = 0;
};

// Held by the module, but made here, and so destroyed by code of the host.
class EncoderListener : public Korvane::Media::IEncodingPerfListener {
 public:
  explicit EncoderListener(EncoderTotals& totals) : totals_(totals) {}

  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     Korvane::size_t size) override {
    ++totals_.frames;
    totals_.bytes += size;
  }
  void frame_dropped(unsigned long long /*number*/) override {}

 private:
  EncoderTotals& totals_;
  Counted<EncoderListener> counted_;
};

// Sums up one encoder; with several, each listener would need totals of its own.
class EncoderListeners : public Korvane::Media::IEncodingPerfListenerProvider {
 public:
  EncoderListeners() { registry().encoding_perf_listener_provider(this); }
  EncoderListeners(const EncoderListeners&) = delete;
  EncoderListeners& operator=(const EncoderListeners&) = delete;
  ~EncoderListeners() override { registry().encoding_perf_listener_provider(nullptr); }

  Korvane::Media::IEncodingPerfListenerPtr new_encoding_perf_listener(
      const char* /*name*/) override {
    return new EncoderListener(totals_);
  }

  const EncoderTotals& totals() const { return totals_; }

 private:
  static Korvane::Media::EncodingPerfListenerSingleton& registry() {
    return Korvane::Media::EncodingPerfListenerSingleton::instance();
  }

  EncoderTotals totals_;
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_ENCODER_LISTENERS_H
