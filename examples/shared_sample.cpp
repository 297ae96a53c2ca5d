// One sample, read by several threads: a handle for each, none of them locked. The last handle
// deletes the sample, on whichever thread that is.

#include <cstddef>
#include <cstdio>
#include <numeric>
#include <thread>
#include <vector>

#include "kv_engine.h"

namespace {

namespace Media = Korvane::Media;
using Korvane::Timecode;

// What a reader of a card makes of a frame. Nothing changes once it is shared.
class CapturedSample : public Media::MediaSample {
 public:
  CapturedSample(const Timecode& label, std::size_t bytes) : label_(label), bytes_(bytes, 0x80) {}
  ~CapturedSample() override { std::puts("the sample is gone"); }

  const unsigned char* data() const override { return bytes_.data(); }
  Korvane::size_t size() const override { return bytes_.size(); }
  unsigned int track_id() const override { return 1; }
  Media::TrackDescriptorEssenceKind essence_kind() const override {
    return Media::EssenceUncompressed;
  }
  Korvane::Rational32 time_rate() const override { return {25, 1}; }
  long long presentation_time() const override { return label_.frame_count(); }
  long long decode_time() const override { return label_.frame_count(); }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return &label_; }

 private:
  Timecode label_;
  std::vector<unsigned char> bytes_;
};

// Of every fourth byte, from `first` on.
unsigned int sum(const Media::MediaSample& sample, unsigned int first) {
  unsigned int total = 0;
  for (Korvane::size_t i = first; i < sample.size(); i += 4) total += sample.data()[i];
  return total;
}

}  // namespace

int main() {
  unsigned int sums[4] = {};
  std::vector<std::thread> readers;
  {
    const Media::MediaSampleSharedPtr sample(new CapturedSample(Timecode(25, 50LL, false), 4000));
    for (unsigned int i = 0; i < 4; ++i)
      // Copied here, so that the thread has a handle of its own.
      readers.emplace_back([&sums, i, own = sample] { sums[i] = sum(*own.get(), i); });
  }
  for (std::thread& reader : readers) reader.join();
  // A thread keeps what it was given until it ends; all have ended.
  std::printf("sum of all bytes: %u\n", std::accumulate(sums, sums + 4, 0U));
}
