#include "module.h"

namespace Client {
namespace {

int objects = 0;
unsigned long long bytes = 0;

class Counted {
 public:
  Counted() { ++objects; }
  Counted(const Counted& /*other*/) { ++objects; }
  Counted& operator=(const Counted& /*other*/) { return *this; }
  ~Counted() { --objects; }
};

class ModuleSample : public Korvane::Media::ExtendedMediaSample {
 public:
  explicit ModuleSample(unsigned int number)
      : timecode_(25, 900000LL + number, false), number_(number) {
    descriptor_.track_id(7);
  }
  const unsigned char* data() const override {
    return reinterpret_cast<const unsigned char*>(&number_);
  }
  Korvane::size_t size() const override { return sizeof number_; }
  unsigned int track_id() const override { return 7; }
  Korvane::Media::TrackDescriptorEssenceKind essence_kind() const override {
    return Korvane::Media::EssenceUncompressed;
  }
  Korvane::Rational32 time_rate() const override { return Korvane::Rational32{25, 1}; }
  long long presentation_time() const override { return number_; }
  long long decode_time() const override { return -static_cast<long long>(number_); }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return number_ == 0; }
  const Korvane::Timecode* timecode() const override { return &timecode_; }
  const Korvane::Media::TrackDescriptor* descriptor() const override { return &descriptor_; }
  bool is_discontinuous() const override { return number_ == 2; }
  const char* property(const char* name) const override { return name; }

 private:
  Counted counted_;
  Korvane::Timecode timecode_;
  Korvane::Media::PictureTrackDescriptor descriptor_;
  unsigned int number_;
};

class ModuleFrame : public Korvane::Media::IFrame {
 public:
  explicit ModuleFrame(unsigned int number) : sample_(new ModuleSample(number)), number_(number) {}
  unsigned long long number() const override { return number_; }
  Korvane::Rational32 edit_rate() const override { return sample_->time_rate(); }
  const Korvane::Timecode* timecode() const override { return sample_->timecode(); }
  long long capture_time() const override { return 40LL * number_; }
  bool is_discontinuous() const override { return number_ == 2; }
  bool is_repeated() const override { return number_ == 1; }
  Korvane::size_t sample_count() const override { return 1; }
  Korvane::Media::MediaSampleSharedPtr sample_at(Korvane::size_t index) const override {
    return index == 0 ? sample_ : Korvane::Media::MediaSampleSharedPtr();
  }
  const Korvane::Media::TrackDescriptor* descriptor_at(Korvane::size_t index) const override {
    return index == 0 ? static_cast<const ModuleSample*>(sample_.get())->descriptor() : nullptr;
  }

 private:
  Counted counted_;
  Korvane::Media::MediaSampleSharedPtr sample_;
  unsigned int number_;
};

class ModuleFrames : public Korvane::Media::IFrameProvider {
 public:
  void start() override { next_ = 0; }
  void stop() override { next_ = 3; }
  void open(const char* /*source*/) override { track_.track_id(7); }
  void close() override { stop(); }
  Korvane::Rational32 edit_rate() const override { return Korvane::Rational32{25, 1}; }
  long long frame_count() const override { return 3; }
  Korvane::size_t track_count() const override { return 1; }
  const Korvane::Media::TrackDescriptor* track_at(Korvane::size_t index) const override {
    return index == 0 ? &track_ : nullptr;
  }
  bool seek(unsigned long long number) override {
    next_ = static_cast<unsigned int>(number);
    return number < 3;
  }
  Korvane::Media::FramePtr read_frame() override {
    return at_end() ? Korvane::Media::FramePtr()
                    : Korvane::Media::FramePtr(new ModuleFrame(next_++));
  }
  bool at_end() const override { return next_ >= 3; }

 private:
  Counted counted_;
  Korvane::Media::PictureTrackDescriptor track_;
  unsigned int next_ = 3;
};

class ModuleSamples : public Korvane::Media::ISampleProvider {
 public:
  Korvane::Media::MediaSampleSharedPtr read_sample() override {
    return at_end() ? Korvane::Media::MediaSampleSharedPtr()
                    : Korvane::Media::MediaSampleSharedPtr(new ModuleSample(next_++));
  }
  bool seek(long long presentation_time) override {
    next_ = static_cast<unsigned int>(presentation_time);
    return true;
  }
  bool at_end() const override { return next_ >= 3; }

 private:
  Counted counted_;
  unsigned int next_ = 0;
};

class ModuleEncoder : public Korvane::Media::IEncodingPerfListener {
 public:
  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     Korvane::size_t size) override {
    bytes += size;
  }
  void frame_dropped(unsigned long long number) override { bytes -= number; }

 private:
  Counted counted_;
};

class ModuleEncoders : public Korvane::Media::IEncodingPerfListenerProvider {
 public:
  Korvane::Media::IEncodingPerfListenerPtr new_encoding_perf_listener(const char* name) override {
    Korvane::exception_enforce(name[0] != 'r', Korvane::NotSupported, "No such encoder", true);
    return Korvane::Media::IEncodingPerfListenerPtr(new ModuleEncoder);
  }
};

}  // namespace

Korvane::Media::FrameProviderPtr new_frames() {
  return Korvane::Media::FrameProviderPtr(new ModuleFrames);
}

Korvane::Media::ISampleProviderPtr new_samples() {
  return Korvane::Media::ISampleProviderPtr(new ModuleSamples);
}

int alive() { return objects; }

Korvane::Media::IEncodingPerfListenerProvider& encoders() {
  static ModuleEncoders instance;
  return instance;
}

unsigned long long encoded_bytes() { return bytes; }

void report(Korvane::TimecodeListener& timecodes, Korvane::Media::FrameListener& frames,
            Korvane::Media::MediaSampleListener& samples,
            Korvane::Media::StreamStatsListener& statistics) {
  timecodes.timecode_received(1, Korvane::Timecode(25, 1LL, false));
  timecodes.timecode_missing(2);
  frames.frame_received(Korvane::Media::FramePtr(new ModuleFrame(1)));
  samples.sample_received(Korvane::Media::MediaSampleSharedPtr(new ModuleSample(2)));
  samples.track_ended(3);
  Korvane::Media::SRTStreamStatsData srt;
  srt.timestamp(1);
  Korvane::Media::ST2110StreamStatsData st2110;
  st2110.timestamp(2);
  Korvane::Media::TrackBitRatesList rates;
  rates.add_track(Korvane::Media::TrackBitRates(Korvane::Media::EssencePcm, 3));
  statistics.stream_connected("one");
  statistics.stream_disconnected("two", "why");
  statistics.srt_stats_received("three", srt);
  statistics.st2110_stats_received("four", st2110);
  statistics.bit_rates_received("five", rates);
  statistics.frames_dropped("six", 6);
}

unsigned long long tick_of(const Korvane::TickCountProvider& ticks) { return ticks.tick_count(); }

void name_material(Korvane::Media::IUmidInfo& info) {
  info.tape_mob_id(Korvane::Media::Umid(L"01"));
  info.master_mob_id(Korvane::Media::Umid(L"02"));
  info.source_mob_id(Korvane::Media::Umid(L"03"));
}

void fail() { throw Korvane::Exception(Korvane::InvalidArgument, "Raised by the module"); }

}  // namespace Client
