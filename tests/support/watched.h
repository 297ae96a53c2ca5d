// Objects for handles: one concrete class for each interface that is shared, which tells a Watch
// when it is destroyed.

#ifndef KV_ENGINE_TESTS_SUPPORT_WATCHED_H
#define KV_ENGINE_TESTS_SUPPORT_WATCHED_H

#include <atomic>
#include <functional>
#include <string>
#include <type_traits>

#include "kv_engine.h"

namespace Korvane {

struct Watch {
  std::atomic<long> created{0};
  std::atomic<long> destroyed{0};
  std::function<void()> when_destroyed = [] {};

  long alive() const { return created - destroyed; }
};

class Watched {
 public:
  explicit Watched(Watch& watch) : watch_(watch) { ++watch_.created; }
  Watched(const Watched&) = delete;
  Watched& operator=(const Watched&) = delete;
  ~Watched() {
    ++watch_.destroyed;
    watch_.when_destroyed();
  }

 private:
  Watch& watch_;
};

struct WatchedFrame final : Media::IFrame, Watched {
  using Watched::Watched;
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

struct WatchedFrameProvider final : Media::IFrameProvider, Watched {
  using Watched::Watched;
  void start() override {}
  void stop() override {}
  void open(const char* /*source*/) override {}
  void close() override {}
  Rational32 edit_rate() const override { return {0, 1}; }
  long long frame_count() const override { return -1; }
  Korvane::size_t track_count() const override { return 0; }
  const Media::TrackDescriptor* track_at(Korvane::size_t /*index*/) const override {
    return nullptr;
  }
  bool seek(unsigned long long /*number*/) override { return false; }
  Media::FramePtr read_frame() override { return {}; }
  bool at_end() const override { return true; }
};

struct WatchedSampleProvider final : Media::ISampleProvider, Watched {
  using Watched::Watched;
  Media::MediaSampleSharedPtr read_sample() override { return {}; }
  bool seek(long long /*presentation_time*/) override { return false; }
  bool at_end() const override { return true; }
};

struct WatchedPerfListener final : Media::IEncodingPerfListener, Watched {
  using Watched::Watched;
  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     Korvane::size_t /*size*/) override {}
  void frame_dropped(unsigned long long /*number*/) override {}
};

// For a media sample, plain or extended.
template <typename Interface>
struct WatchedSampleOf : Interface, Watched {
  using Watched::Watched;
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

using WatchedSample = WatchedSampleOf<Media::MediaSample>;

struct WatchedExtendedSample final : WatchedSampleOf<Media::ExtendedMediaSample> {
  using WatchedSampleOf::WatchedSampleOf;
  const Media::TrackDescriptor* descriptor() const override { return nullptr; }
  bool is_discontinuous() const override { return false; }
  const char* property(const char* /*name*/) const override { return nullptr; }
};

class WatchedDescriptor final : public Media::TrackDescriptor, public Watched {
 public:
  explicit WatchedDescriptor(Watch& watch) : Watched(watch), watch_(watch) {}
  WatchedDescriptor* clone() const override { return new WatchedDescriptor(watch_); }

 private:
  Watch& watch_;
};

// A handle class with the interface that it holds and a concrete class.
template <typename HandleClass, typename ObjectClass, typename ConcreteClass>
struct Shared {
  using Handle = HandleClass;
  using Object = ObjectClass;
  using Concrete = ConcreteClass;
};

using SharedFrame = Shared<Media::FramePtr, Media::IFrame, WatchedFrame>;
using SharedFrameProvider =
    Shared<Media::FrameProviderPtr, Media::IFrameProvider, WatchedFrameProvider>;
using SharedSampleProvider =
    Shared<Media::ISampleProviderPtr, Media::ISampleProvider, WatchedSampleProvider>;
using SharedPerfListener =
    Shared<Media::IEncodingPerfListenerPtr, Media::IEncodingPerfListener, WatchedPerfListener>;
using SharedSample = Shared<Media::MediaSampleSharedPtr, Media::MediaSample, WatchedSample>;
using SharedDescriptor =
    Shared<Media::TrackDescriptorSharedPtr, Media::TrackDescriptor, WatchedDescriptor>;

// Names the tests of a handle after it.
struct HandleNames {
  template <typename Kind>
  static std::string GetName(int /*index*/) {  // NOLINT(readability-identifier-naming)
    if constexpr (std::is_same_v<Kind, SharedFrame>) return "FramePtr";
    if constexpr (std::is_same_v<Kind, SharedFrameProvider>) return "FrameProviderPtr";
    if constexpr (std::is_same_v<Kind, SharedSampleProvider>) return "ISampleProviderPtr";
    if constexpr (std::is_same_v<Kind, SharedPerfListener>) return "IEncodingPerfListenerPtr";
    if constexpr (std::is_same_v<Kind, SharedSample>) return "MediaSampleSharedPtr";
    if constexpr (std::is_same_v<Kind, SharedDescriptor>) return "TrackDescriptorSharedPtr";
  }
};

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_WATCHED_H
