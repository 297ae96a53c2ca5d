// A module with one source: ten seconds of colour bars and tone, with timecode from 10:00:00:00.

#include <atomic>
#include <chrono>
#include <cstring>
#include <memory>
#include <vector>

#include "bars.h"
#include "kv_engine.h"
#include "module.h"
#include "objects.h"
#include "tone.h"

namespace Playout {
namespace {

using Korvane::Rational32;
using Korvane::Timecode;
using Korvane::Media::FramePtr;
using Korvane::Media::MediaSampleSharedPtr;
using Korvane::Media::TrackDescriptor;
using Korvane::Media::TrackDescriptorSharedPtr;

constexpr Rational32 kEditRate = {25, 1};
constexpr Rational32 kSoundTimeRate = {kSoundRate, 1};
constexpr long long kFrameCount = 250;
constexpr long long kFirstTimecode = 10LL * 3600 * 25;  // 10:00:00:00

constexpr unsigned int kPictureTrack = 1;
constexpr unsigned int kSoundTrack = 2;

TrackDescriptorSharedPtr picture_track() {
  auto track = std::make_unique<SourceTrack>();
  track->essence_kind(Korvane::Media::EssenceUncompressed);
  track->track_id(kPictureTrack);
  track->sample_rate(kEditRate);
  track->add_key_value("width", "720");
  track->add_key_value("height", "576");
  track->add_key_value("layout", "8-bit 4:2:2 UYVY");
  track->add_key_value("matrix", "BT.601");
  return track.release();
}

TrackDescriptorSharedPtr sound_track() {
  auto track = std::make_unique<SourceTrack>();
  track->essence_kind(Korvane::Media::EssencePcm);
  track->track_id(kSoundTrack);
  track->sample_rate(kSoundTimeRate);
  track->add_key_value("channels", "2");
  track->add_key_value("layout", "16-bit PCM, low byte first");
  return track.release();
}

// The sound samples before frame `number`. The difference for two frames that follow on each other
// is what the first one holds: 1920 at 25 frames per second; at 30000/1001 it would change.
long long sound_samples_before(long long number) {
  return number * kSoundRate * kEditRate.denominator / kEditRate.numerator;
}

class ToneAndBars : public Korvane::Media::IFrameProvider {
 public:
  void open(const char* source) override {
    close();
    Korvane::exception_enforce(std::strcmp(source, "tone-and-bars") == 0, Korvane::InvalidArgument,
                               "The only source is tone-and-bars.", true);
    bars_ = std::make_shared<const std::vector<unsigned char>>(make_bars());
    encoder_ = Korvane::Media::EncodingPerfListenerSingleton::instance().new_encoding_perf_listener(
        "tone-and-bars");
    tracks_ = {picture_track(), sound_track()};
    go_to(0);
  }

  void close() override {
    tracks_.clear();
    encoder_.reset();
    bars_.reset();
  }

  void start() override { running_ = true; }
  void stop() override { running_ = false; }

  Rational32 edit_rate() const override { return is_open() ? kEditRate : Rational32{0, 1}; }
  long long frame_count() const override { return is_open() ? kFrameCount : -1; }

  Korvane::size_t track_count() const override { return tracks_.size(); }
  const TrackDescriptor* track_at(Korvane::size_t index) const override {
    return index < tracks_.size() ? tracks_[index].get() : nullptr;
  }

  bool seek(unsigned long long number) override {
    if (!is_open() || number >= kFrameCount) return false;
    go_to(static_cast<long long>(number));
    return true;
  }

  FramePtr read_frame() override {
    if (!is_open() || !running_) return {};
    at_end_ = next_ == kFrameCount;
    if (at_end_) return {};

    const auto begin = std::chrono::steady_clock::now();
    FramePtr frame = make_frame(next_);
    const std::chrono::nanoseconds duration = std::chrono::steady_clock::now() - begin;
    encoder_->frame_encoded(frame->number(), static_cast<unsigned long long>(duration.count()),
                            size_of(*frame.get()));
    ++next_;
    discontinuous_ = false;
    return frame;
  }

  bool at_end() const override { return at_end_; }

 private:
  bool is_open() const { return !tracks_.empty(); }

  void go_to(long long number) {
    next_ = number;
    discontinuous_ = true;
    at_end_ = false;
  }

  FramePtr make_frame(long long number) const {
    const Timecode timecode(25, kFirstTimecode + number, false);
    const long long sound_begin = sound_samples_before(number);
    const long long sound_end = sound_samples_before(number + 1);

    const MediaSampleSharedPtr bars = new SourceSample({
        .track_id = kPictureTrack,
        .essence_kind = Korvane::Media::EssenceUncompressed,
        .time_rate = kEditRate,
        .begin = number,
        .end = number + 1,
        .timecode = timecode,
        .discontinuous = discontinuous_,
        .bytes = bars_,
        .signal = "75% colour bars",
    });
    const MediaSampleSharedPtr tone = new SourceSample({
        .track_id = kSoundTrack,
        .essence_kind = Korvane::Media::EssencePcm,
        .time_rate = kSoundTimeRate,
        .begin = sound_begin,
        .end = sound_end,
        .timecode = timecode,
        .discontinuous = discontinuous_,
        .bytes =
            std::make_shared<const std::vector<unsigned char>>(make_tone(sound_begin, sound_end)),
        .signal = "1 kHz at -18 dBFS",
    });

    auto frame = std::make_unique<SourceFrame>(static_cast<unsigned long long>(number), kEditRate,
                                               timecode, discontinuous_);
    frame->add({tracks_[0], bars});
    frame->add({tracks_[1], tone});
    return frame.release();
  }

  static Korvane::size_t size_of(const Korvane::Media::IFrame& frame) {
    Korvane::size_t bytes = 0;
    for (Korvane::size_t i = 0; i < frame.sample_count(); ++i) bytes += frame.sample_at(i)->size();
    return bytes;
  }

  std::vector<TrackDescriptorSharedPtr> tracks_;  // empty while nothing is open
  std::shared_ptr<const std::vector<unsigned char>> bars_;
  Korvane::Media::IEncodingPerfListenerPtr encoder_;  // the host's
  long long next_ = 0;
  bool discontinuous_ = true;
  bool at_end_ = false;
  std::atomic<bool> running_{false};  // start() and stop() come from any thread
  Counted<ToneAndBars> counted_;
};

}  // namespace
}  // namespace Playout

Korvane::Media::IFrameProvider* playout_new_frame_provider() { return new Playout::ToneAndBars; }

void playout_object_counts(Playout::ObjectCounts* counts) {
  using namespace Playout;
  *counts = {Counted<ToneAndBars>::count(), Counted<SourceTrack>::count(),
             Counted<SourceFrame>::count(), Counted<SourceSample>::count()};
}
