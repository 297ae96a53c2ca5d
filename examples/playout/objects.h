// What the provider hands out: a descriptor for each track, and frames of samples. The host holds
// them in handles, so they may live on after the provider, but not after the module is closed.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_OBJECTS_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_OBJECTS_H

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "counted.h"
#include "kv_engine.h"

namespace Playout {

class SourceTrack : public Korvane::Media::TrackDescriptor {
 public:
  SourceTrack* clone() const override { return new SourceTrack(*this); }

 private:
  Counted<SourceTrack> counted_;
};

class SourceSample : public Korvane::Media::ExtendedMediaSample {
 public:
  struct Contents {
    unsigned int track_id;
    Korvane::Media::TrackDescriptorEssenceKind essence_kind;
    Korvane::Rational32 time_rate;
    long long begin, end;  // in units of time_rate
    Korvane::Timecode timecode;
    bool discontinuous;
    std::shared_ptr<const std::vector<unsigned char>> bytes;  // shared where all are the same
    const char* signal;
  };

  explicit SourceSample(Contents contents) : contents_(std::move(contents)) {}

  const unsigned char* data() const override { return contents_.bytes->data(); }
  Korvane::size_t size() const override { return contents_.bytes->size(); }

  unsigned int track_id() const override { return contents_.track_id; }
  Korvane::Media::TrackDescriptorEssenceKind essence_kind() const override {
    return contents_.essence_kind;
  }
  Korvane::Rational32 time_rate() const override { return contents_.time_rate; }
  long long presentation_time() const override { return contents_.begin; }
  long long decode_time() const override { return contents_.begin; }  // nothing is reordered
  long long duration() const override { return contents_.end - contents_.begin; }
  bool is_key_frame() const override { return true; }
  const Korvane::Timecode* timecode() const override { return &contents_.timecode; }

  const Korvane::Media::TrackDescriptor* descriptor() const override { return nullptr; }
  bool is_discontinuous() const override { return contents_.discontinuous; }
  const char* property(const char* name) const override {
    return std::strcmp(name, "signal") == 0 ? contents_.signal : nullptr;
  }

 private:
  Contents contents_;
  Counted<SourceSample> counted_;
};

class SourceFrame : public Korvane::Media::IFrame {
 public:
  struct Part {
    Korvane::Media::TrackDescriptorSharedPtr track;  // shared: it lives as long as the frame
    Korvane::Media::MediaSampleSharedPtr sample;
  };

  SourceFrame(unsigned long long number, Korvane::Rational32 edit_rate,
              const Korvane::Timecode& timecode, bool discontinuous)
      : number_(number),
        edit_rate_(edit_rate),
        timecode_(timecode),
        discontinuous_(discontinuous) {}

  // Only until the frame is shared.
  void add(const Part& part) { parts_.push_back(part); }

  unsigned long long number() const override { return number_; }
  Korvane::Rational32 edit_rate() const override { return edit_rate_; }
  const Korvane::Timecode* timecode() const override { return &timecode_; }
  long long capture_time() const override { return 0; }  // not live
  bool is_discontinuous() const override { return discontinuous_; }
  bool is_repeated() const override { return false; }

  Korvane::size_t sample_count() const override { return parts_.size(); }
  Korvane::Media::MediaSampleSharedPtr sample_at(Korvane::size_t index) const override {
    return index < parts_.size() ? parts_[index].sample : Korvane::Media::MediaSampleSharedPtr();
  }
  const Korvane::Media::TrackDescriptor* descriptor_at(Korvane::size_t index) const override {
    return index < parts_.size() ? parts_[index].track.get() : nullptr;
  }

 private:
  unsigned long long number_;
  Korvane::Rational32 edit_rate_;
  Korvane::Timecode timecode_;
  bool discontinuous_;
  std::vector<Part> parts_;
  Counted<SourceFrame> counted_;
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_OBJECTS_H
