// {fmt} first, as the header wants it.
#include <fmt/core.h>
#include <fmt/ranges.h>

// Then what is tested.
#include <gtest/gtest.h>

#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

#include "ext/print.h"
#include "ext/ranges.h"

namespace Korvane::PrintTests {
namespace {

template <typename T>
std::string printed(const T& value) {
  std::ostringstream out;
  out << value;
  EXPECT_EQ(out.str(), Ext::to_text(value));
  return out.str();
}

TEST(ExtPrint, TimecodePrintsAsItsLabel) {
  EXPECT_EQ("00:59:59;29", printed(Timecode(30, 0, 59, 59, 29, true, false)));
  EXPECT_EQ("00:59:59:29", printed(Timecode(30, 0, 59, 59, 29, false, false)));
  EXPECT_EQ("23:00:07:04", printed(Timecode(25, 23, 0, 7, 4, false, false)));
  EXPECT_EQ("24:00:00:00", printed(Timecode(25, 0x24000000U)));
}

TEST(ExtPrint, LabelLeavesOutTheFieldMarkThatOtherFormsTell) {
  const Timecode first(50, 48LL, false);
  const Timecode second(50, 49LL, false);
  EXPECT_EQ("00:00:00:24", printed(first));
  EXPECT_EQ("00:00:00:24", printed(second));
  EXPECT_EQ("00:00:00:24.0", Ext::label_with_mark(first));
  EXPECT_EQ("00:00:00:24.1", Ext::label_with_mark(second));
  EXPECT_EQ("00:00:00:48", Ext::label_at_full_rate(first));
  EXPECT_EQ("00:00:00:49", Ext::label_at_full_rate(second));
  EXPECT_EQ("00:00:00;29.1", Ext::label_with_mark(Timecode(60, 59LL, true)));
  EXPECT_EQ("00:00:01:00", Ext::label_with_mark(Timecode(25, 25LL, false)));
  EXPECT_EQ("00:00:01:00", Ext::label_at_full_rate(Timecode(25, 25LL, false)));
}

TEST(ExtPrint, SmallValues) {
  EXPECT_EQ("30000/1001", printed(Rational32{30000, 1001}));
  EXPECT_EQ("-1/0", printed(Rational32{-1, 0}));
  EXPECT_EQ("2024-02-29T23:59:59.040", printed(TimeData{2024, 2, 29, 23, 59, 59, 40}));
  EXPECT_EQ("0000-00-00T00:00:00.65535", printed(TimeData{0, 0, 0, 0, 0, 0, 65535}));
  EXPECT_EQ("1920x1080 interlaced, Uyvy, ColorimetryUnspecified",
            printed(ImageInfo(1920, 1080, true, Uyvy, ColorimetryUnspecified)));
  EXPECT_EQ("1280x720 progressive, Colorspaces(99), Colorimetry(7)",
            printed(ImageInfo(1280, 720, false, Colorspaces(99), Colorimetry(7))));
  EXPECT_EQ("2 x 24 bits, 48000 Hz", printed(AudioInfo(24, 2, 48000)));
  EXPECT_EQ("InvalidArgument (15): too late", printed(Exception(InvalidArgument, "too late")));
  EXPECT_EQ("ExceptionCode(99) (99): ", printed(Exception(ExceptionCode(99), "")));
  EXPECT_EQ("060a2b34", printed(Media::Umid(L"06:0A-2B 34")));
  EXPECT_EQ("", printed(Media::Umid(L"")));
}

TEST(ExtPrint, EnumeratorsByName) {
  EXPECT_EQ("Hd1080i5994", printed(Media::Hd1080i5994));
  EXPECT_EQ("UnknownFormat", printed(Media::UnknownFormat));
  EXPECT_EQ("VideoFormats(39)", printed(Media::VideoFormats(39)));
  EXPECT_EQ("Yuv420pAlt", printed(Yuv420pAlt));
  EXPECT_EQ("Colorspaces(19)", printed(Colorspaces(19)));
  EXPECT_EQ("ColorimetryUnspecified", printed(ColorimetryUnspecified));
  EXPECT_EQ("EssenceVideo39", printed(Media::EssenceVideo39));
  EXPECT_EQ("TrackDescriptorEssenceKind(40)", printed(Media::TrackDescriptorEssenceKind(40)));
  EXPECT_EQ("SdpAnc", printed(Media::SdpAnc));
  EXPECT_EQ("StringConversionFailed", printed(StringConversionFailed));
  EXPECT_EQ(nullptr, Ext::name_of(Media::SdpType(3)));
}

TEST(ExtPrint, DescriptorsByTheirDynamicTypeWithoutWhatIsAbsent) {
  Media::PictureTrackDescriptor picture;
  const Media::TrackDescriptor& track = picture;
  EXPECT_EQ(
      "PictureTrackDescriptor{essence_kind EssenceNone, colorspace ColorspaceUndefined, "
      "colorimetry ColorimetryUnspecified}",
      printed(track));
  picture.essence_kind(Media::EssenceMpeg2);
  picture.track_id(1);
  picture.sample_rate({30000, 1001});
  picture.pre_charge(2);
  picture.private_data(-3);
  picture.width(1920);
  picture.height(1080);
  picture.interlaced(true);
  picture.aspect_ratio({16, 9});
  picture.bit_rate(50000000);
  picture.component_depth(8);
  EXPECT_EQ(
      "PictureTrackDescriptor{essence_kind EssenceMpeg2, track_id 1, sample_rate 30000/1001, "
      "pre_charge 2, private_data -3, width 1920, height 1080, interlaced true, aspect_ratio 16/9, "
      "bit_rate 50000000, component_depth 8, colorspace ColorspaceUndefined, colorimetry "
      "ColorimetryUnspecified}",
      printed(track));

  Media::SoundTrackDescriptor sound;
  sound.sampling_rate(48000);
  sound.sampling_bits(0);
  sound.channel_count(2);
  EXPECT_EQ(
      "SoundTrackDescriptor{essence_kind EssenceNone, sampling_rate 48000, sampling_bits 0, "
      "channel_count 2}",
      printed(sound));
  EXPECT_EQ("DataTrackDescriptor{essence_kind EssenceNone}", printed(Media::DataTrackDescriptor()));
  EXPECT_EQ("CompoundTrackDescriptor{essence_kind EssenceNone}",
            printed(Media::CompoundTrackDescriptor()));
  EXPECT_EQ("DataTrackDescriptor{essence_kind EssenceNone}",
            printed(Media::TrackDescriptorSharedPtr(new Media::DataTrackDescriptor)));
  EXPECT_EQ("null", printed(Media::TrackDescriptorSharedPtr()));
}

struct OwnTrack : Media::TrackDescriptor {
  OwnTrack* clone() const override { return new OwnTrack(*this); }
};

TEST(ExtPrint, ADescriptorOfAnotherClassIsATrackDescriptor) {
  EXPECT_EQ("TrackDescriptor{essence_kind EssenceNone}", printed(OwnTrack()));
}

struct OwnSample : Media::MediaSample {
  const unsigned char* data() const override { return nullptr; }
  Korvane::size_t size() const override { return 3; }
  unsigned int track_id() const override { return 1; }
  Media::TrackDescriptorEssenceKind essence_kind() const override { return Media::EssencePcm; }
  Rational32 time_rate() const override { return {48000, 1}; }
  long long presentation_time() const override { return -1920; }
  long long decode_time() const override { return -1920; }
  long long duration() const override { return 1920; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return &label; }
  Timecode label{25, false};
};

TEST(ExtPrint, FramesAndSamples) {
  EXPECT_EQ(
      "VideoFrame{number 7, image 0x0 progressive, ColorspaceUndefined, ColorimetryUnspecified}",
      printed(Media::VideoFrame(Media::MediaSampleSharedPtr(), ImageInfo(), 7)));
  EXPECT_EQ(
      "VideoFrame{number 7, image 0x0 progressive, ColorspaceUndefined, ColorimetryUnspecified, "
      "sample MediaSample{track_id 1, essence_kind EssencePcm, time_rate 48000/1, "
      "presentation_time -1920, decode_time -1920, duration 1920, is_key_frame true, timecode "
      "00:00:00:00, size 3}}",
      printed(Media::VideoFrame(Media::MediaSampleSharedPtr(new OwnSample), ImageInfo(), 7)));
  const Media::DataTrackDescriptor data;
  EXPECT_EQ(
      "VideoDescriptorFrame{number 8, descriptor DataTrackDescriptor{essence_kind EssenceNone}}",
      printed(Media::VideoDescriptorFrame(8, &data)));
  EXPECT_EQ("VideoDescriptorFrame{number 8}", printed(Media::VideoDescriptorFrame(8, nullptr)));
  Media::TimecodeInfo info;
  EXPECT_EQ("TimecodeInfo{}", printed(info));
  info.initial_timecode(Timecode(25, 1LL, false));
  EXPECT_EQ("TimecodeInfo{initial_timecode 00:00:00:01}", printed(info));
}

TEST(ExtPrint, Settings) {
  EXPECT_EQ("SrtSettings{days_to_preserve_stats 2, polling_period 5}",
            printed(Media::SrtSettings()));
  EXPECT_EQ(
      "SdpConfigSet{video SdpConfig{type SdpVideo, ip_address \"239.0.0.1\", port 5004}, audio "
      "SdpConfig{type SdpAudio, ip_address \"\", port 0}, anc SdpConfig{type SdpAnc, ip_address "
      "\"\", port 0}}",
      printed(Media::SdpConfigSet(Media::SdpConfig(Media::SdpVideo, L"239.0.0.1", 5004))));
  EXPECT_EQ(
      "MultiviewerConfig{server_address \"mv\", port 9000, width 1920, height 1080, edit_rate "
      "25/1, keep_aspect_ratio true}",
      printed(Media::MultiviewerConfig(L"mv", 9000, 1920, 1080, {25, 1}, true)));
  EXPECT_EQ(
      "MultiviewerSource{id 1, channel_id \"A\", width 640, height 360, x_offset -1, y_offset 0, "
      "use_audio false}",
      printed(Media::MultiviewerSource(1, L"A", 640, 360, -1, 0, false)));
  EXPECT_EQ("CameraInfo{camera 2, state 1, recording true, clip_name \"A001\"}",
            printed(Media::CameraInfo(Media::Cameras(2), Media::CameraState(1), true, "A001")));
  Media::SourceInfo source(Media::IUmidInfo::UmidKind(3));
  EXPECT_EQ("SourceInfo{umid_kind 3, tape_name \"\"}", printed(source));
  source.master_mob_id(Media::Umid(L"AB"));
  source.tape_name(L"reel 1");
  EXPECT_EQ("SourceInfo{umid_kind 3, master_mob_id ab, tape_name \"reel 1\"}", printed(source));
}

TEST(ExtPrint, APasswordNeverPrints) {
  EXPECT_EQ(
      "InterplayWebService{server \"mam\", port 443, workgroup \"w\", user \"u\", password (set), "
      "use_https true, timeout 30}",
      printed(Media::InterplayWebService("mam", 443, "w", "u", "geheim", true, 30)));
  EXPECT_EQ(
      "InterplayWebService{server \"mam\", port 443, workgroup \"w\", user \"u\", password (not "
      "set), use_https true, timeout 30}",
      printed(Media::InterplayWebService("mam", 443, "w", "u", "", true, 30)));
}

// Each field has a number of its own, so that no two can be exchanged.
TEST(ExtPrint, Statistics) {
  Media::SRTStreamStatsData srt;
  srt.timestamp(1);
  srt.packets_sent(2);
  srt.packets_received(3);
  srt.ms_rtt(4.5);
  srt.packets_lost(5);
  srt.bitrate(6);
  srt.latency(7);
  srt.packets_retransmitted(8);
  srt.pkt_snd_loss(9);
  srt.pkt_rcv_loss(10);
  srt.pkt_retrans(11);
  srt.pkt_sent_ack(12);
  srt.pkt_recv_ack(13);
  srt.pkt_sent_nak(14);
  srt.pkt_recv_nak(15);
  srt.mbps_send_rate(16);
  srt.snd_duration(17);
  srt.pkt_reorder_distance(18);
  srt.pkt_rcv_avg_belated_time(19);
  srt.pkt_rcv_belated(20);
  srt.pkt_snd_drop(21);
  srt.pkt_rcv_undecrypt(22);
  srt.pkt_send_period(23);
  srt.pkt_flow_window(24);
  srt.pkt_congestion_window(25);
  srt.pkt_flight_size(26);
  srt.mbps_bandwidth(27);
  srt.mbps_max_bandwidth(28);
  srt.byte_mss(29);
  srt.pkt_snd_buffer(30);
  srt.ms_snd_buffer(31);
  srt.ms_send_delay(32);
  srt.pkt_rcv_buffer(33);
  srt.ms_rcv_buffer(34);
  srt.pkt_reorder_tolerance(35);
  EXPECT_EQ(
      "SRTStreamStatsData{timestamp 1, packets_sent 2, packets_received 3, ms_rtt 4.5, "
      "packets_lost 5, bitrate 6, latency 7, packets_retransmitted 8, pkt_snd_loss 9, "
      "pkt_rcv_loss 10, pkt_retrans 11, pkt_sent_ack 12, pkt_recv_ack 13, pkt_sent_nak 14, "
      "pkt_recv_nak 15, mbps_send_rate 16, snd_duration 17, pkt_reorder_distance 18, "
      "pkt_rcv_avg_belated_time 19, pkt_rcv_belated 20, pkt_snd_drop 21, pkt_rcv_undecrypt 22, "
      "pkt_send_period 23, pkt_flow_window 24, pkt_congestion_window 25, pkt_flight_size 26, "
      "mbps_bandwidth 27, mbps_max_bandwidth 28, byte_mss 29, pkt_snd_buffer 30, ms_snd_buffer "
      "31, ms_send_delay 32, pkt_rcv_buffer 33, ms_rcv_buffer 34, pkt_reorder_tolerance 35}",
      printed(srt));

  Media::ST2110StreamStatsData st2110;
  st2110.timestamp(std::numeric_limits<unsigned long long>::max());
  st2110.error_frames(1);
  st2110.video_bps_rate(1234567890.5);
  st2110.sound_bps_rate(-0.1);
  EXPECT_EQ(
      "ST2110StreamStatsData{timestamp 18446744073709551615, error_frames 1, video_bps_rate "
      "1234567890.5, sound_bps_rate -0.1}",
      printed(st2110));
  EXPECT_EQ("TrackBitRates{essence_kind EssencePcm, bit_rate 5}",
            printed(Media::TrackBitRates(Media::EssencePcm, 5)));
}

TEST(ExtPrint, Lists) {
  Media::UIntList numbers;
  EXPECT_EQ("[]", printed(numbers));
  numbers.add_value(3);
  numbers.add_value(4294967295U);
  EXPECT_EQ("[3, 4294967295]", printed(numbers));
  Media::TrackDescriptorList tracks;
  tracks.add_track(Media::DataTrackDescriptor());
  EXPECT_EQ("[DataTrackDescriptor{essence_kind EssenceNone}]", printed(tracks));
  Media::TrackBitRatesList rates;
  rates.add_track(Media::TrackBitRates());
  EXPECT_EQ("[TrackBitRates{essence_kind EssenceNone, bit_rate 0}]", printed(rates));
  EXPECT_EQ("[]", printed(Media::SRTStreamStatsDataList()));
  Media::ST2110StreamStatsDataList samples;
  samples.add_value(Media::ST2110StreamStatsData());
  EXPECT_EQ(
      "[ST2110StreamStatsData{timestamp 0, error_frames 0, video_bps_rate 0, sound_bps_rate 0}]",
      printed(samples));
  EXPECT_EQ("[]", printed(Media::MultiviewerSourceList()));
  Media::AudioTrackConfig channels;
  channels.add_source_channel(5);
  channels.add_source_channel(5);
  EXPECT_EQ("[5, 5]", printed(channels));
  Media::AudioPowerList powers;
  powers.add_value(-18.5, false);
  powers.add_value(0, true);
  EXPECT_EQ("[-18.5, 0 muted]", printed(powers));
  const ValueMap map;
  map.value_for_key(1, 1);
  EXPECT_EQ("ValueMap{size 1}", printed(map));
}

TEST(ExtPrint, TextsStayOnTheirLine) {
  const auto clip = [](const char* name) {
    return printed(Media::CameraInfo(Media::Cameras(0), Media::CameraState(0), false, name));
  };
  EXPECT_EQ(
      "CameraInfo{camera 0, state 0, recording false, clip_name "
      "\"\\\"a\\\\b\\n\\r\\t\\u001b\\u007f\\u0001 \xC3\xA9\"}",
      clip("\"a\\b\n\r\t\x1b\x7f\x01 \xC3\xA9"));
}

TEST(ExtPrint, WideTextsAreUtf16) {
  const auto address = [](const wchar_t* text) {
    return printed(Media::SdpConfig(Media::SdpVideo, text, 1));
  };
  const wchar_t units[] = {L'\u00E9', L'\u20AC', 0xD83D, 0xDE00, 0xDE00, 0xD83D, L'"', 0xD800, 0};
  EXPECT_EQ(
      "SdpConfig{type SdpVideo, ip_address "
      "\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBD\xEF\xBF\xBD\\\"\xEF\xBF\xBD\", port 1}",
      address(units));
}

TEST(ExtPrint, WidthCountsForTheWholeAndTheLocaleForNothing) {
  std::ostringstream out;
  out << std::setw(13) << Timecode(25, false) << std::setfill('.') << std::setw(8) << Media::Pal;
  EXPECT_EQ("  00:00:00:00.....Pal", out.str());

  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale former = std::locale::global(std::locale(std::locale(), new Grouping));
  Media::ST2110StreamStatsData sample;
  sample.timestamp(1234567);
  sample.video_bps_rate(1234.5);
  const std::string text = printed(sample);
  std::locale::global(former);
  EXPECT_EQ(
      "ST2110StreamStatsData{timestamp 1234567, error_frames 0, video_bps_rate 1234.5, "
      "sound_bps_rate 0}",
      text);
}

TEST(ExtPrint, FormatsWithFmt) {
  const Timecode timecode(30, 1, 0, 0, 0, true, false);
  EXPECT_EQ(" 01:00:00;00|Pal|30000/1001",
            fmt::format("{:>12}|{}|{:.10}", timecode, Media::Pal, Rational32{30000, 1001}));
  const Media::DataTrackDescriptor data;
  const Media::TrackDescriptor& track = data;
  EXPECT_EQ("DataTrackDescriptor{essence_kind EssenceNone}", fmt::format("{}", track));
  Media::TrackDescriptorList tracks;
  tracks.add_track(data);
  EXPECT_EQ("[DataTrackDescriptor{essence_kind EssenceNone}]", fmt::format("{}", tracks));
}

#if defined(__cpp_lib_format)
TEST(ExtPrint, FormatsWithTheStandardLibrary) {
  const Timecode timecode(30, 1, 0, 0, 0, true, false);
  EXPECT_EQ(" 01:00:00;00|Pal|30000/1001",
            std::format("{:>12}|{}|{:.10}", timecode, Media::Pal, Rational32{30000, 1001}));
}
#endif

// Nothing else is caught: neither other types, nor what converts to ours.
template <typename T, typename = void>
constexpr bool kHasText = false;
template <typename T>
constexpr bool kHasText<T, std::void_t<decltype(Ext::to_text(std::declval<const T&>()))>> = true;
static_assert(kHasText<Timecode> && kHasText<OwnTrack> && kHasText<Media::UIntList>);
static_assert(!kHasText<int> && !kHasText<const wchar_t*> && !kHasText<Media::Cameras>);
static_assert(!kHasText<Media::FramePtr> && !kHasText<Timecode::DropFrameIndication>);

}  // namespace
}  // namespace Korvane::PrintTests
