// A host that uses every class of the interface: makes, copies and reads values, implements
// interfaces and catches exceptions by type. Prints what is not as it should be. With the argument
// "other-run-time" it leaves out exceptions, which only meet within one C++ run time.

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <exception>
#include <string>
#include <vector>

#include "module.h"

namespace Korvane {
namespace Media {
namespace {

int failures = 0;

void check(bool holds, const char* what) {
  if (holds) return;
  ++failures;
  std::printf("not so: %s\n", what);
}

bool same(const char* left, const char* right) { return std::strcmp(left, right) == 0; }
bool same(const wchar_t* left, const wchar_t* right) { return std::wcscmp(left, right) == 0; }

// Everything that listeners are told, in order.
std::string& story() {
  static std::string text;
  return text;
}

void tell(const char* what, unsigned long long number) {
  story() += what + std::to_string(number) + ' ';
}

class Timecodes : public TimecodeListener {
 public:
  void timecode_received(unsigned long long frame_index, const Timecode& timecode) override {
    tell("received", frame_index + static_cast<unsigned long long>(timecode.frame_count()));
  }
  void timecode_missing(unsigned long long frame_index) override { tell("missing", frame_index); }
};

class Frames : public FrameListener {
 public:
  void frame_received(const FramePtr& frame) override { tell("frame", frame->number()); }
};

class Samples : public MediaSampleListener {
 public:
  void sample_received(const MediaSampleSharedPtr& sample) override {
    tell("sample", sample->data()[0]);
  }
  void track_ended(unsigned int track_id) override { tell("ended", track_id); }
};

class Statistics : public StreamStatsListener {
 public:
  void stream_connected(const char* stream) override { tell(stream, 1); }
  void stream_disconnected(const char* stream, const char* reason) override {
    tell(stream, std::strlen(reason));
  }
  void srt_stats_received(const char* stream, const SRTStreamStatsData& stats) override {
    tell(stream, stats.timestamp());
  }
  void st2110_stats_received(const char* stream, const ST2110StreamStatsData& stats) override {
    tell(stream, stats.timestamp());
  }
  void bit_rates_received(const char* stream, const TrackBitRatesList& rates) override {
    tell(stream, rates.track_at(0)->bit_rate());
  }
  void frames_dropped(const char* stream, unsigned long long count) override {
    tell(stream, count);
  }
};

class Ticks : public TickCountProvider {
 public:
  unsigned long long tick_count() const override { return 0x123456789ULL; }
};

class Processes : public IAdditionalProcessHandler {
 public:
  void set_new_process(int process) override { last = process; }
  int last = 0;
};

class Storages : public IStorageAuthentication {
 public:
  void authenticate_storage(const wchar_t* storage) override { last = storage; }
  std::wstring last;
};

// The library copies it by clone().
class Descriptor : public TrackDescriptor {
 public:
  TrackDescriptor* clone() const override { return new Descriptor(*this); }
  const char* get_key_value(const char* key) const override {
    return same(key, "own") ? "yes" : TrackDescriptor::get_key_value(key);
  }
};

class OwnInfo : public IUmidInfo {
 public:
  OwnInfo() : tape_(L""), master_(L""), source_(L"") {}
  UmidKind umid_kind() override { return static_cast<UmidKind>(3); }
  const Umid* tape_mob_id() const override { return &tape_; }
  void tape_mob_id(const Umid& id) override { tape_ = id; }
  const Umid* master_mob_id() const override { return &master_; }
  void master_mob_id(const Umid& id) override { master_ = id; }
  const Umid* source_mob_id() const override { return &source_; }
  void source_mob_id(const Umid& id) override { source_ = id; }

 private:
  Umid tape_;
  Umid master_;
  Umid source_;
};

void check_timecodes() {
  Timecode timecode(30, 0, 59, 59, 29, true, false);
  const Timecode copy(timecode);
  ++timecode;
  check(
      same(timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkOmitted), "01:00:00;00"),
      "the label behind 00:59:59;29 is 01:00:00;00");
  check(same(copy.text(Timecode::DropFrameColon, Timecode::FieldMarkFramesDashed), L"00:59:59:--"),
        "frames are dashed");
  check(timecode.frame_count() == 107892 && timecode.to_12m() == 0x01000040U, "frame 107892");
  check(timecode != copy, "timecodes compare");
  timecode = copy;
  check(timecode == copy && timecode.days() == 0, "timecodes are assigned");
  check(Timecode(25, TimeData{2026, 1, 1, 1, 0, 0, 40}, false, Rational32{25, 1}).frame_count() ==
            90001,
        "40 milliseconds behind 1 o'clock");
  check(TimecodeUtils::load_timecode_from_string(25, L"10:00:00:05", Timecode::DropFrameSemicolon,
                                                 Timecode::FieldMarkOmitted)
                .frame_count() == 900005,
        "wide text is read");
  TimecodeInfo info;
  check(info.initial_timecode() == nullptr, "there is no first timecode");
  info.initial_timecode(copy);
  check(info.initial_timecode()->seconds() == 59, "the first timecode is kept");
}

void check_descriptors() {
  PictureTrackDescriptor picture = TrackDescriptorDefaults::uyvy_pal(7);
  check(*picture.width() == 720 && *picture.height() == 576 && *picture.track_id() == 7, "PAL");
  check(picture.pre_charge() == nullptr, "what was never set is absent");
  check(VideoFormatsHelper::format_from_descriptor(picture) == Pal, "the format is found");
  check(TrackDescriptorUtils::is_dnx(EssenceDnx27), "DNx");
  check(VideoFormatsHelper::edit_rate(Hd1080i5994).numerator == 30000, "1080i at 29.97");
  SoundTrackDescriptor sound = TrackDescriptorDefaults::sound_pcm_48k(2, 8, 24);
  check(AudioInfo(sound) == AudioInfo(24, 8, 48000), "audio information of a descriptor");
  check(AudioInfo(sound).block_align() == 24, "8 channels of 3 bytes");
  DataTrackDescriptor data;
  CompoundTrackDescriptor compound;
  data.track_id(3);
  compound.track_id(4);
  check(*DataTrackDescriptor(data).track_id() == 3, "data descriptors are copied");
  check(*CompoundTrackDescriptor(compound).track_id() == 4, "compound descriptors are copied");

  ImageInfo image(picture);
  const ImageInfo wide(Hd1080i50, Uyvy, ColorimetryUnspecified);
  check(image != wide && wide.width == 1920 && wide.interlaced, "image information");
  image.update_info(wide);
  check(image == wide, "image information is replaced");
  check(ColorspacesUtils::stride_for_colorspace(Uyvy, 1920, 0) == 3840, "two bytes a pixel");

  Descriptor own;
  own.track_id(42);
  own.add_key_value("key", "value");
  TrackDescriptorList list;
  list.add_track(own);
  list.add_track(sound);
  const TrackDescriptorList copies(list);
  check(copies.size() == 2 && *copies.track_at(0)->track_id() == 42, "descriptors are cloned");
  check(same(copies.track_at(0)->get_key_value("own"), "yes") &&
            same(copies.track_at(0)->get_key_value("key"), "value"),
        "clones keep their class");
  check(copies.track_at(2) == nullptr, "there is no third descriptor");
  VideoDescriptorFrame frame(5, copies.track_at(0));
  frame = VideoDescriptorFrame(6, frame.descriptor);
  check(frame.number == 6 && *frame.descriptor->track_id() == 42, "a frame and its descriptor");
  TrackDescriptorSharedPtr handle(new Descriptor(own));
  TrackDescriptorSharedPtr other(handle);
  check(handle == other && *other->track_id() == 42, "handles share the descriptor");
  other.reset();
  check(other.get() == nullptr && handle.get() != nullptr, "one handle lets go");
}

void check_frames() {
  FrameProviderPtr provider = Client::new_frames();
  provider->open("anything");
  IProviderCtrl& control = *provider.get();
  control.start();
  check(provider->frame_count() == 3 && provider->edit_rate().numerator == 25, "three frames");
  check(provider->track_count() == 1 && *provider->track_at(0)->track_id() == 7, "one track");
  std::vector<FramePtr> frames;
  while (!provider->at_end()) frames.push_back(provider->read_frame());
  check(frames.size() == 3 && provider->read_frame().get() == nullptr, "three frames are read");
  check(provider->seek(1) && provider->read_frame()->number() == 1, "the provider seeks");
  const FramePtr second(frames[1]);
  check(second->capture_time() == 40 && second->is_repeated() && !second->is_discontinuous(),
        "what the second frame says");
  check(second->sample_count() == 1 && *second->descriptor_at(0)->track_id() == 7 &&
            second->timecode()->frame_count() == 900001,
        "what the second frame holds");
  VideoFrame video(second->sample_at(0), ImageInfo(2, 1, false, Uyvy, ColorimetryUnspecified), 9);
  VideoFrame moved(static_cast<VideoFrame&&>(video));
  const auto* sample = static_cast<const ExtendedMediaSample*>(moved.sample.get());
  check(sample->data()[0] == 1 && sample->size() == 4 && moved.number == 9, "a video frame");
  check(sample->presentation_time() == 1 && sample->decode_time() == -1 && !sample->is_key_frame(),
        "the times of a sample");
  check(sample->descriptor() != nullptr && same(sample->property("x"), "x"), "an extended sample");

  const MediaSample& media = *sample;
  const Memory::Sample& bytes = media;
  check(media.track_id() == 7 && media.duration() == 1 && bytes.data()[0] == 1, "its bases");

  ISampleProviderPtr samples = Client::new_samples();
  check(samples->seek(2) && samples->read_sample()->data()[0] == 2 && samples->at_end(),
        "the last sample");
  provider->close();
}

void check_listeners() {
  Timecodes timecodes;
  Frames frames;
  Samples samples;
  Statistics statistics;
  Client::report(timecodes, frames, samples, statistics);
  check(story() == "received2 missing2 frame1 sample2 ended3 one1 two3 three1 four2 five3 six6 ",
        "every listener is told");
  check(Client::tick_of(Ticks()) == 0x123456789ULL, "the tick arrives whole");

  IEncodingPerfListenerPtr listener =
      EncodingPerfListenerSingleton::instance().new_encoding_perf_listener("none");
  listener->frame_encoded(1, 2, 1000);
  check(Client::encoded_bytes() == 0, "without a provider nobody listens");
  EncodingPerfListenerSingleton::instance().encoding_perf_listener_provider(&Client::encoders());
  listener = EncodingPerfListenerSingleton::instance().new_encoding_perf_listener("encoder");
  listener->frame_encoded(1, 2, 1000);
  listener->frame_dropped(1);
  check(Client::encoded_bytes() == 999, "the module listens");

  Processes processes;
  AdditionalProcessHandlerSingleton::instance().set_handler_listener(&processes);
  IAdditionalProcessHandler& handler = AdditionalProcessHandlerSingleton::instance();
  handler.set_new_process(123);
  AdditionalProcessHandlerSingleton::instance().set_handler_listener(nullptr);
  check(processes.last == 123, "the process arrives");
  Storages storages;
  StorageAuthenticationSingleton::instance().set_storage_authentication_listener(&storages);
  StorageAuthenticationSingleton::instance().authenticate_storage(L"\\\\server");
  StorageAuthenticationSingleton::instance().set_storage_authentication_listener(nullptr);
  check(storages.last == L"\\\\server", "the storage arrives");
}

void check_statistics() {
  SRTStreamStatsData srt;
  srt.ms_rtt(1.5);
  srt.pkt_reorder_tolerance(35);
  SRTStreamStatsDataList srt_list;
  srt_list.add_value(srt);
  check(*srt_list.value_at(0) == srt && srt_list.value_at(1) == nullptr, "SRT statistics");
  ST2110StreamStatsData st2110;
  st2110.sound_bps_rate(2.25);
  ST2110StreamStatsDataList st2110_list;
  st2110_list.add_value(st2110);
  check(st2110_list.value_at(0)->sound_bps_rate() == 2.25, "ST 2110 statistics");
  const SrtSettings settings(30, 500);
  check(settings.polling_period() == 500 && settings.days_to_preserve_stats() == 30, "settings");
  UIntList numbers;
  numbers.add_value(4294967295U);
  check(*UIntList(numbers).value_at(0) == 4294967295U, "a list of numbers");
  ValueMap map;
  map.value_for_key(-1, -2);
  check(ValueMap(map).value_for_key(-1) == -2, "a map");
  AudioPowerList power;
  power.add_value(-20.5, true);
  check(*power.track_at(0) == -20.5 && power.track_muted_at(0), "audio power");
  AudioTrackConfig track;
  track.add_source_channel(16);
  check(track.source_channel_for_index(0) == 16, "source channels");
}

void check_settings() {
  SdpConfig video(SdpVideo, L"239.1.1.1", 5004);
  SdpConfigSet set(video);
  check(set.video_sdp() == video && set.audio_sdp().type() == SdpAudio, "endpoints of a stream");
  check(same(set.video_sdp().ip_address(), L"239.1.1.1"), "the address of an endpoint");
  MultiviewerConfig config(L"host", 1, 1280, 720, Rational32{50, 1}, true);
  check(config != MultiviewerConfig() && config.edit_rate().numerator == 50, "a multiviewer");
  MultiviewerSource source(1, L"channel", 640, 360, -1, 0, false);
  MultiviewerSourceList sources;
  sources.add_source(source);
  check(sources.source_at(0) == source && sources == MultiviewerSourceList(sources), "its tiles");
  CameraInfo camera(static_cast<Cameras>(2));
  camera.clip_name("clip");
  check(CameraInfo(camera) == camera && camera.camera() == 2, "a camera");
  const InterplayWebService service("server", 443, "group", "user", "password", true, 10);
  check(same(service.base_url(), "https://server:443"), "the address of a service");

  Umid umid(L"06 0A");
  umid[1] = 0x0B;
  check(same(umid.c_str(), L"060b") && umid.value()[0] == 6, "an identifier");
  OwnInfo own;
  SourceInfo info(static_cast<IUmidInfo::UmidKind>(4));
  Client::name_material(own);
  Client::name_material(info);
  info.tape_name(L"reel");
  check(same(own.source_mob_id()->c_str(), L"03") && same(own.tape_mob_id()->c_str(), L"01"),
        "the identifiers of an own class");
  check(same(info.master_mob_id()->c_str(), L"02") && info.umid_kind() == 4 && info.has_tape_name(),
        "the identifiers of a source");
}

void count_line(void* context, const char* /*text*/) { ++*static_cast<int*>(context); }

void check_log() {
  int lines = 0;
  Logging::Logger::instance().set_sink(count_line, &lines);
  TimecodeUtils::log_timecode_difference("label", Timecode(25, 0LL, false),
                                         Timecode(25, 2LL, false));
  TimecodeUtils::log_timecode_difference("label", Timecode(25, 0LL, false),
                                         Timecode(25, 1LL, false));
  Logging::Logger::instance().set_sink(nullptr, nullptr);
  check(lines == 1, "one line is logged");
}

// By the type of the product's own exception, raised by the library, by its core and by the module,
// by itself and through the library.
template <typename Function>
void check_raises(Function function, ExceptionCode code, const char* message) {
  try {
    function();
  } catch (const Exception& exception) {
    const Exception copy(exception);
    check(copy.code() == code && same(copy.message(), message), message);
    return;
  }
  check(false, message);
}

void check_exceptions() {
  check_raises([] { Timecode(48, false); }, NotSupported, "Frame rate not supported.");
  check_raises([] { VideoFormatsHelper::width(UnknownFormat); }, InvalidArgument,
               "Unsupported value for video parameters (width mapping)");
  check_raises([] { exception_throw(MissingProperty, "Raised by the core", true); },
               MissingProperty, "Raised by the core");
  check_raises(Client::fail, InvalidArgument, "Raised by the module");
  check_raises(
      [] { EncodingPerfListenerSingleton::instance().new_encoding_perf_listener("refused"); },
      NotSupported, "No such encoder");
  bool caught = false;
  try {
    const Umid odd(L"1");
  } catch (const std::exception&) {
    caught = true;
  }
  check(caught, "a standard exception leaves the library");
}

// 0 when everything was as it should be.
int run(bool with_exceptions) {
  check_timecodes();
  check_descriptors();
  check_frames();
  check_listeners();
  check_statistics();
  check_settings();
  check_log();
  if (with_exceptions) check_exceptions();
  EncodingPerfListenerSingleton::instance().encoding_perf_listener_provider(nullptr);
  check(Client::alive() == 0, "every object of the module is gone");
  std::printf("%d failures\n", failures);
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace Media
}  // namespace Korvane

int main(int argc, char** argv) {
  return Korvane::Media::run(argc == 1 || std::strcmp(argv[1], "other-run-time") != 0);
}
