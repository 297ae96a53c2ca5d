// One object of each exported class, for the debuggers to show: transcript.txt has what they say.

#include "kv_engine.h"

namespace Host {

using namespace Korvane;
using namespace Korvane::Media;

struct Picture : MediaSample {
  const unsigned char* data() const override { return nullptr; }
  size_t size() const override { return 0; }
  unsigned int track_id() const override { return 1; }
  TrackDescriptorEssenceKind essence_kind() const override { return EssenceMpeg2; }
  Rational32 time_rate() const override { return {25, 1}; }
  long long presentation_time() const override { return 0; }
  long long decode_time() const override { return 0; }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return nullptr; }

  int lines = 1080;
};

struct ExtendedPicture : ExtendedMediaSample {
  const unsigned char* data() const override { return nullptr; }
  size_t size() const override { return 0; }
  unsigned int track_id() const override { return 1; }
  TrackDescriptorEssenceKind essence_kind() const override { return EssenceMpeg2; }
  Rational32 time_rate() const override { return {25, 1}; }
  long long presentation_time() const override { return 0; }
  long long decode_time() const override { return 0; }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return nullptr; }
  const TrackDescriptor* descriptor() const override { return nullptr; }
  bool is_discontinuous() const override { return false; }
  const char* property(const char* /*name*/) const override { return nullptr; }
};

struct Frame : IFrame {
  unsigned long long number() const override { return 0; }
  Rational32 edit_rate() const override { return {25, 1}; }
  const Timecode* timecode() const override { return nullptr; }
  long long capture_time() const override { return 0; }
  bool is_discontinuous() const override { return false; }
  bool is_repeated() const override { return false; }
  size_t sample_count() const override { return 0; }
  MediaSampleSharedPtr sample_at(size_t /*index*/) const override { return nullptr; }
  const TrackDescriptor* descriptor_at(size_t /*index*/) const override { return nullptr; }
};

struct FrameProvider : IFrameProvider {
  void start() override {}
  void stop() override {}
  void open(const char* /*source*/) override {}
  void close() override {}
  Rational32 edit_rate() const override { return {25, 1}; }
  long long frame_count() const override { return 0; }
  size_t track_count() const override { return 0; }
  const TrackDescriptor* track_at(size_t /*index*/) const override { return nullptr; }
  bool seek(unsigned long long /*number*/) override { return false; }
  FramePtr read_frame() override { return nullptr; }
  bool at_end() const override { return true; }
};

struct SampleProvider : ISampleProvider {
  MediaSampleSharedPtr read_sample() override { return nullptr; }
  bool seek(long long /*presentation_time*/) override { return false; }
  bool at_end() const override { return true; }
};

struct PerfListener : IEncodingPerfListener {
  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     size_t /*size*/) override {}
  void frame_dropped(unsigned long long /*number*/) override {}
};

struct PerfProvider : IEncodingPerfListenerProvider {
  IEncodingPerfListenerPtr new_encoding_perf_listener(const char* /*name*/) override {
    return nullptr;
  }
};

struct ProviderCtrl : IProviderCtrl {
  void start() override {}
  void stop() override {}
};

struct FrameWatcher : FrameListener {
  void frame_received(const FramePtr& /*frame*/) override {}
};

struct SampleWatcher : MediaSampleListener {
  void sample_received(const MediaSampleSharedPtr& /*sample*/) override {}
  void track_ended(unsigned int /*track_id*/) override {}
};

struct StatsWatcher : StreamStatsListener {
  void stream_connected(const char* /*stream*/) override {}
  void stream_disconnected(const char* /*stream*/, const char* /*reason*/) override {}
  void srt_stats_received(const char* /*stream*/, const SRTStreamStatsData& /*stats*/) override {}
  void st2110_stats_received(const char* /*stream*/,
                             const ST2110StreamStatsData& /*stats*/) override {}
  void bit_rates_received(const char* /*stream*/, const TrackBitRatesList& /*rates*/) override {}
  void frames_dropped(const char* /*stream*/, unsigned long long /*count*/) override {}
};

struct TimecodeWatcher : TimecodeListener {
  void timecode_received(unsigned long long /*frame_index*/,
                         const Timecode& /*timecode*/) override {}
  void timecode_missing(unsigned long long /*frame_index*/) override {}
};

struct ProcessHandler : IAdditionalProcessHandler {
  void set_new_process(int /*process*/) override {}
};

struct Credentials : IStorageAuthentication {
  void authenticate_storage(const wchar_t* /*storage*/) override {}
};

struct Ticks : TickCountProvider {
  unsigned long long tick_count() const override { return 0; }
};

struct Bytes : Memory::Sample {
  const unsigned char* data() const override { return nullptr; }
  size_t size() const override { return 0; }
};

void everything_is_made() { asm volatile(""); }

void make_everything(const FramePtr& frame_ptr) {
  // Timecodes: drop-frame, double rate, below zero, and memory where none is yet.
  Timecode timecode(30, 0, 59, 59, 29, true, false);
  ++timecode;
  Timecode second_field(50, 10, 20, 30, 24, false, true);
  Timecode before_midnight(25, -1LL, false);
  const Timecode& reference = timecode;
  alignas(Timecode) unsigned char memory[sizeof(Timecode)] = {};
  void* const unmade_memory = memory;
  const auto* const unmade = static_cast<const Timecode*>(unmade_memory);
  TimeData time_data = {2024, 2, 29, 7, 8, 9, 10};
  Rational32 rational = {30000, 1001};
  TimecodeInfo timecode_info;
  TimecodeInfo full_timecode_info;
  full_timecode_info.initial_timecode(timecode);

  // Descriptors, alone and as their base.
  PictureTrackDescriptor picture;
  picture.essence_kind(EssenceAvcIntra);
  picture.track_id(7);
  picture.width(1920);
  picture.height(1080);
  picture.interlaced(true);
  picture.aspect_ratio({16, 9});
  picture.colorspace(V210);
  picture.add_key_value("reel", "A001");
  picture.add_key_value("bin", "Rushes");
  picture.add_key_value("slate", "");
  SoundTrackDescriptor sound;
  sound.sample_rate({48000, 1});
  sound.private_data(-5);
  sound.sampling_bits(24);
  DataTrackDescriptor data;
  CompoundTrackDescriptor compound;
  compound.pre_charge(2);
  const TrackDescriptor& descriptor = sound;
  TrackDescriptorList descriptor_list;
  descriptor_list.add_track(sound);
  descriptor_list.add_track(data);
  VideoDescriptorFrame descriptor_frame(12, &data);

  ImageInfo image(1280, 720, false, Rgb24, ColorimetryUnspecified);
  AudioInfo audio(16, 2, 48000);
  TrackDescriptorSharedPtr descriptor_ptr(new SoundTrackDescriptor(sound));
  TrackDescriptorSharedPtr empty_ptr;
  MediaSampleSharedPtr sample_ptr(new Picture);
  VideoFrame video_frame(sample_ptr, image, 3);

  // Lists and maps.
  UIntList uints;
  for (unsigned int value = 10; value <= 30; value += 10) uints.add_value(value);
  UIntList no_uints;
  ValueMap value_map;
  const int keys[] = {5, -3, 8, 1, 7, 0};
  for (int key : keys) value_map.value_for_key(key, key * 100);
  AudioPowerList powers;
  for (int index = 0; index < 66; ++index) powers.add_value(-20.5 - index, index == 65);
  AudioTrackConfig channels;
  channels.add_source_channel(4);
  channels.add_source_channel(2);

  // Settings and statistics.
  SdpConfig sdp(SdpAudio, L"239.0.0.1", 5004);
  SdpConfigSet sdp_set(SdpConfig(SdpVideo, L"239.0.0.2", 20000), sdp);
  SrtSettings srt_settings(9, 30);
  SRTStreamStatsData srt_stats;
  srt_stats.timestamp(123456789012ULL);
  srt_stats.ms_rtt(1.5);
  srt_stats.pkt_reorder_tolerance(35);
  SRTStreamStatsDataList srt_stats_list;
  ST2110StreamStatsData st2110_stats;
  st2110_stats.timestamp(1);
  st2110_stats.error_frames(2);
  st2110_stats.video_bps_rate(1.25e9);
  st2110_stats.sound_bps_rate(4.5e6);
  ST2110StreamStatsDataList st2110_stats_list;
  st2110_stats_list.add_value(st2110_stats);
  TrackBitRates bit_rates(EssenceMpeg2, 50000000);
  TrackBitRatesList bit_rates_list;
  bit_rates_list.add_track(bit_rates);
  bit_rates_list.add_track(TrackBitRates());
  srt_stats_list.add_value(SRTStreamStatsData());
  CameraInfo camera(static_cast<Cameras>(2), static_cast<CameraState>(3), true, "Clip 0001");
  MultiviewerConfig multiviewer(L"mv.example", 8080, 1280, 720, {25, 1}, true);
  MultiviewerSource source(1, L"Caméra \"1\"", 640, 360, 0, -20, true);
  MultiviewerSourceList source_list;
  source_list.add_source(source);
  InterplayWebService web_service("mam.example", 443, "Group", "user", "S3cret", true, 30);
  Umid umid(L"060A2B340101010501010D4313000000");
  SourceInfo source_info(static_cast<IUmidInfo::UmidKind>(1));
  source_info.tape_name(L"TAPE 7");
  source_info.master_mob_id(umid);
  Exception exception(NotSupported, "Frame rate not supported.");

  // Interfaces and handles.
  FramePtr same_frame(frame_ptr);
  FrameProviderPtr frame_provider_ptr(new FrameProvider);
  ISampleProviderPtr sample_provider_ptr(new SampleProvider);
  IEncodingPerfListenerPtr perf_listener_ptr(new PerfListener);
  Picture whole_picture;
  const MediaSample& media_sample = whole_picture;
  ExtendedPicture extended_picture;
  const ExtendedMediaSample& extended_sample = extended_picture;
  const IFrame& frame = *frame_ptr.get();
  IFrameProvider& frame_provider = *frame_provider_ptr.get();
  ISampleProvider& sample_provider = *sample_provider_ptr.get();
  IEncodingPerfListener& perf_listener = *perf_listener_ptr.get();
  PerfProvider host_perf_provider;
  IEncodingPerfListenerProvider& perf_provider = host_perf_provider;
  ProviderCtrl host_ctrl;
  IProviderCtrl& ctrl = host_ctrl;
  FrameWatcher host_frame_listener;
  FrameListener& frame_listener = host_frame_listener;
  SampleWatcher host_sample_listener;
  MediaSampleListener& sample_listener = host_sample_listener;
  StatsWatcher host_stats_listener;
  StreamStatsListener& stats_listener = host_stats_listener;
  TimecodeWatcher host_timecode_listener;
  TimecodeListener& timecode_listener = host_timecode_listener;
  ProcessHandler host_process_handler;
  IAdditionalProcessHandler& process_handler = host_process_handler;
  Credentials host_credentials;
  IStorageAuthentication& storage_authentication = host_credentials;
  Ticks host_ticks;
  TickCountProvider& ticks = host_ticks;
  Bytes host_bytes;
  Memory::Sample& bytes = host_bytes;
  IUmidInfo& umid_info = source_info;

  // Singletons, one of them without a handler.
  const auto& process_singleton = AdditionalProcessHandlerSingleton::instance();
  process_singleton.set_handler_listener(&host_process_handler);
  const auto& storage_singleton = StorageAuthenticationSingleton::instance();
  auto& perf_singleton = EncodingPerfListenerSingleton::instance();
  perf_singleton.encoding_perf_listener_provider(&host_perf_provider);

  everything_is_made();
}

}  // namespace Host

int main() { Host::make_everything(Korvane::Media::FramePtr(new Host::Frame)); }
