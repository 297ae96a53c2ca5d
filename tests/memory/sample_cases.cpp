#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

// A copyable concrete class of each interface.
struct BareSample final : Memory::Sample {
  const unsigned char* data() const override { return nullptr; }
  Korvane::size_t size() const override { return 0; }
};

template <typename Interface>
struct SampleOf : Interface {
  const unsigned char* data() const override { return nullptr; }
  Korvane::size_t size() const override { return 0; }
  unsigned int track_id() const override { return 0; }
  Media::TrackDescriptorEssenceKind essence_kind() const override { return Media::EssenceNone; }
  Rational32 time_rate() const override { return {25, 1}; }
  long long presentation_time() const override { return 0; }
  long long decode_time() const override { return 0; }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return nullptr; }
};

struct PlainSample final : SampleOf<Media::MediaSample> {};

struct ExtendedSample final : SampleOf<Media::ExtendedMediaSample> {
  const Media::TrackDescriptor* descriptor() const override { return nullptr; }
  bool is_discontinuous() const override { return false; }
  const char* property(const char* /*name*/) const override { return nullptr; }
};

struct Frame final : Media::IFrame {
  unsigned long long number() const override { return 0; }
  Rational32 edit_rate() const override { return {25, 1}; }
  const Timecode* timecode() const override { return nullptr; }
  long long capture_time() const override { return 0; }
  bool is_discontinuous() const override { return false; }
  bool is_repeated() const override { return false; }
  Korvane::size_t sample_count() const override { return 0; }
  Media::MediaSampleSharedPtr sample_at(Korvane::size_t /*index*/) const override { return {}; }
  const Media::TrackDescriptor* descriptor_at(Korvane::size_t /*index*/) const override {
    return nullptr;
  }
};

struct Control final : Media::IProviderCtrl {
  void start() override {}
  void stop() override {}
};

struct FrameProvider final : Media::IFrameProvider {
  void start() override {}
  void stop() override {}
  void open(const char* /*source*/) override {}
  void close() override {}
  Rational32 edit_rate() const override { return {25, 1}; }
  long long frame_count() const override { return -1; }
  Korvane::size_t track_count() const override { return 0; }
  const Media::TrackDescriptor* track_at(Korvane::size_t /*index*/) const override {
    return nullptr;
  }
  bool seek(unsigned long long /*number*/) override { return false; }
  Media::FramePtr read_frame() override { return {}; }
  bool at_end() const override { return true; }
};

struct SampleProvider final : Media::ISampleProvider {
  Media::MediaSampleSharedPtr read_sample() override { return {}; }
  bool seek(long long /*presentation_time*/) override { return false; }
  bool at_end() const override { return true; }
};

struct Frames final : Media::FrameListener {
  void frame_received(const Media::FramePtr& /*frame*/) override {}
};

struct Samples final : Media::MediaSampleListener {
  void sample_received(const Media::MediaSampleSharedPtr& /*sample*/) override {}
  void track_ended(unsigned int /*track_id*/) override {}
};

struct Streams final : Media::StreamStatsListener {
  void stream_connected(const char* /*stream*/) override {}
  void stream_disconnected(const char* /*stream*/, const char* /*reason*/) override {}
  void srt_stats_received(const char* /*stream*/,
                          const Media::SRTStreamStatsData& /*stats*/) override {}
  void st2110_stats_received(const char* /*stream*/,
                             const Media::ST2110StreamStatsData& /*stats*/) override {}
  void bit_rates_received(const char* /*stream*/,
                          const Media::TrackBitRatesList& /*rates*/) override {}
  void frames_dropped(const char* /*stream*/, unsigned long long /*count*/) override {}
};

struct PerfListener final : Media::IEncodingPerfListener {
  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     Korvane::size_t /*size*/) override {}
  void frame_dropped(unsigned long long /*number*/) override {}
};

struct PerfListenerProvider final : Media::IEncodingPerfListenerProvider {
  Media::IEncodingPerfListenerPtr new_encoding_perf_listener(const char* /*name*/) override {
    return {};
  }
};

}  // namespace

void add_sample_cases(Cases& cases) {
  add_interface_cases<Memory::Sample, BareSample>(cases);
  add_interface_cases<Media::MediaSample, PlainSample>(cases);
  add_interface_cases<Media::ExtendedMediaSample, ExtendedSample>(cases);
  add_interface_cases<Media::IFrame, Frame>(cases);
  add_interface_cases<Media::IProviderCtrl, Control>(cases);
  add_interface_cases<Media::IFrameProvider, FrameProvider>(cases);
  add_interface_cases<Media::ISampleProvider, SampleProvider>(cases);
  add_interface_cases<Media::FrameListener, Frames>(cases);
  add_interface_cases<Media::MediaSampleListener, Samples>(cases);
  add_interface_cases<Media::StreamStatsListener, Streams>(cases);
  add_interface_cases<Media::IEncodingPerfListener, PerfListener>(cases);
  add_interface_cases<Media::IEncodingPerfListenerProvider, PerfListenerProvider>(cases);
}

}  // namespace Korvane::MemoryTests
