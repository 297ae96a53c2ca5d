#include "memory/case_list.h"
#include "tracks/filled_descriptors.h"

namespace Korvane::MemoryTests {
namespace {

using Media::PictureTrackDescriptor;
using Media::SoundTrackDescriptor;
using Media::TrackDescriptor;
using Media::TrackDescriptorList;

// Nothing of its own to copy.
struct BareDescriptor final : TrackDescriptor {
  TrackDescriptor* clone() const override { return new BareDescriptor(*this); }
};

struct FrameSample final : Media::MediaSample {
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

template <typename Descriptor>
Descriptor filled() {
  Descriptor made;
  Media::fill(made);
  return made;
}

void add_base_members(Cases& cases) {
  ClassCases track(cases, filled<BareDescriptor>);
  track.getter("essence_kind", &TrackDescriptor::essence_kind);
  track.getter("track_id", &TrackDescriptor::track_id);
  track.getter("sample_rate", &TrackDescriptor::sample_rate);
  track.getter("pre_charge", &TrackDescriptor::pre_charge);
  track.getter("private_data", &TrackDescriptor::private_data);
  track.method("essence_kind", &TrackDescriptor::essence_kind, Media::EssenceDnxhd);
  track.method("track_id", &TrackDescriptor::track_id, 1U);
  track.method("sample_rate", &TrackDescriptor::sample_rate, Rational32{1, 2});
  track.method("pre_charge", &TrackDescriptor::pre_charge, 1U);
  track.method("private_data", &TrackDescriptor::private_data, 1);
  static const std::string long_text(200, 'x');
  track.method("add_key_value", &TrackDescriptor::add_key_value, long_text.c_str(),
               long_text.c_str());
  track.method("add_key_value", &TrackDescriptor::add_key_value, "language", "other");
  track.method("get_key_value", &TrackDescriptor::get_key_value, "language");
  track.reading([](const TrackDescriptor& read) {
    return text_of(read.get_key_value("language")) + ' ' +
           text_of(read.get_key_value(long_text.c_str()));
  });
  track.operation(constructor_name<TrackDescriptor>(),
                  [](TrackDescriptor& /*unused*/) { const BareDescriptor made; });
  track.operation(constructor_name<TrackDescriptor, const TrackDescriptor&>(),
                  [](BareDescriptor& original) { const BareDescriptor copy(original); });
  track.operation(member_name<TrackDescriptor, const TrackDescriptor&>("operator="),
                  [other = BareDescriptor()](BareDescriptor& target) { target = other; });
  track.operation(destructor_name<TrackDescriptor>(), [](TrackDescriptor& /*unused*/) {
    const std::unique_ptr<TrackDescriptor> made(new BareDescriptor);
  });
}

// What a derived class adds is replaced before what the base class holds: each part is then the
// old one or the new one.
template <typename Descriptor>
auto derived_class(Cases& cases) {
  ClassCases track(cases, filled<Descriptor>);
  track.template constructor<>();
  track.copy_construction();
  track.destruction();
  track.operation(member_name<Descriptor>("clone", true), [](const Descriptor& original) {
    const std::unique_ptr<TrackDescriptor> copy(original.clone());
  });
  track.operation_leaving(
      member_name<Descriptor, const Descriptor&>("operator="),
      [other = Descriptor()](Descriptor& target) { target = other; },
      [](const Descriptor& target) { Media::expect_base_filled(target); });
  return track;
}

void add_pictures(Cases& cases) {
  using Track = PictureTrackDescriptor;
  auto track = derived_class<Track>(cases);
  track.getter("width", &Track::width);
  track.getter("height", &Track::height);
  track.getter("field_height", &Track::field_height);
  track.getter("interlaced", &Track::interlaced);
  track.getter("aspect_ratio", &Track::aspect_ratio);
  track.getter("bit_rate", &Track::bit_rate);
  track.getter("component_depth", &Track::component_depth);
  track.getter("colorspace", &Track::colorspace);
  track.getter("colorimetry", &Track::colorimetry);
  track.method("width", &Track::width, 1U);
  track.method("height", &Track::height, 2U);
  track.method("interlaced", &Track::interlaced, false);
  track.method("aspect_ratio", &Track::aspect_ratio, Rational32{4, 3});
  track.method("bit_rate", &Track::bit_rate, 3U);
  track.method("component_depth", &Track::component_depth, 4U);
  track.method("colorspace", &Track::colorspace, Uyvy);
  track.method("colorimetry", &Track::colorimetry, ColorimetryUnspecified);
}

void add_sounds(Cases& cases) {
  using Track = SoundTrackDescriptor;
  auto track = derived_class<Track>(cases);
  track.getter("sampling_rate", &Track::sampling_rate);
  track.getter("sampling_bits", &Track::sampling_bits);
  track.getter("channel_count", &Track::channel_count);
  track.method("sampling_rate", &Track::sampling_rate, 1U);
  track.method("sampling_bits", &Track::sampling_bits, 2U);
  track.method("channel_count", &Track::channel_count, 3U);
}

// The list gives up its tracks before it copies the others: without memory it is empty then.
void add_descriptor_list(Cases& cases) {
  const auto two_tracks = [] {
    TrackDescriptorList made;
    made.add_track(filled<PictureTrackDescriptor>());
    made.add_track(Media::DataTrackDescriptor());
    return made;
  };
  ClassCases list(cases, two_tracks);
  list.constructor<>();
  list.copy_construction();
  list.destruction();
  list.operation_leaving(
      member_name<TrackDescriptorList, const TrackDescriptorList&>("operator="),
      [other = two_tracks()](TrackDescriptorList& target) { target = other; },
      [](const TrackDescriptorList& target) { EXPECT_EQ(0U, target.size()); });
  list.getter("size", &TrackDescriptorList::size);
  list.operation(member_name<TrackDescriptorList, const TrackDescriptor&>("add_track"),
                 [track = filled<SoundTrackDescriptor>()](TrackDescriptorList& target) {
                   target.add_track(track);
                 });
  list.method("track_at", &TrackDescriptorList::track_at, Korvane::size_t{1});
  list.reading([](const TrackDescriptorList& read) { return text_of(read.track_at(0)); });
}

void add_image_info(Cases& cases) {
  ClassCases image(cases, [] { return ImageInfo(); });
  image.reading([](const ImageInfo& read) { return text_of(read); });
  image.constructor<>();
  image.constructor<unsigned int, unsigned int, bool, Colorspaces, Colorimetry>(
      1U, 2U, true, Uyvy, ColorimetryUnspecified);
  image.constructor<Media::VideoFormats, Colorspaces, Colorimetry>(Media::Pal, Uyvy,
                                                                   ColorimetryUnspecified);
  image.constructor<const PictureTrackDescriptor&>(filled<PictureTrackDescriptor>());
  image.constructor<const PictureTrackDescriptor&>(PictureTrackDescriptor());
  const ImageInfo other(1, 2, true, Uyvy, ColorimetryUnspecified);
  image.copying([=] { return other; });
  image.operation(member_name<ImageInfo, ImageInfo&&>("operator="),
                  [](ImageInfo& target) { target = ImageInfo(); });
  image.method("update_info",
               static_cast<void (ImageInfo::*)(const ImageInfo&)>(&ImageInfo::update_info), other);
  image.method(
      "update_info",
      static_cast<void (ImageInfo::*)(unsigned int, unsigned int, bool, Colorspaces, Colorimetry)>(
          &ImageInfo::update_info),
      1U, 2U, true, Uyvy, ColorimetryUnspecified);
  image.method("operator==", &ImageInfo::operator==, other);
  image.method("operator!=", &ImageInfo::operator!=, other);
}

void add_audio_info(Cases& cases) {
  ClassCases audio(cases, [] { return AudioInfo(24, 2, 48000); });
  audio.reading([](const AudioInfo& read) { return text_of(read.sampling_bits); });
  audio.constructor<unsigned int, unsigned int, unsigned int>(16U, 1U, 44100U);
  audio.constructor<const SoundTrackDescriptor&>(filled<SoundTrackDescriptor>());
  const AudioInfo other(16, 1, 44100);
  audio.copying([=] { return other; });
  audio.operation(member_name<AudioInfo, AudioInfo&&>("operator="),
                  [](AudioInfo& target) { target = AudioInfo(16, 1, 44100); });
  audio.getter("block_align", &AudioInfo::block_align);
  audio.method("operator==", &AudioInfo::operator==, other);
  audio.method("operator!=", &AudioInfo::operator!=, other);
}

// Assignment ends with that of the sample's handle, which holds nothing when memory ran out.
void add_frames(Cases& cases) {
  using Media::VideoDescriptorFrame;
  using Media::VideoFrame;
  const auto make = [] { return VideoFrame(new FrameSample, ImageInfo(), 7); };
  const auto is_new_without_sample = [](const VideoFrame& target) {
    EXPECT_EQ(nullptr, target.sample.get());
    EXPECT_EQ(8U, target.number);
  };
  ClassCases frame(cases, make);
  frame.reading([](const VideoFrame& read) {
    return text_of(read.number) + ' ' + text_of(read.image) + ' ' + text_of(read.sample.get());
  });
  frame.constructor<>();
  const Media::MediaSampleSharedPtr sample(new FrameSample);
  frame.constructor<Media::MediaSampleSharedPtr, const ImageInfo&, unsigned int>(sample,
                                                                                 ImageInfo(), 8U);
  frame.copy_construction();
  frame.operation(constructor_name<VideoFrame, VideoFrame&&>(),
                  [](VideoFrame& original) { const VideoFrame moved(std::move(original)); });
  const VideoFrame other(sample, ImageInfo(), 8);
  frame.operation_leaving(
      member_name<VideoFrame, const VideoFrame&>("operator="),
      [other](VideoFrame& target) { target = other; }, is_new_without_sample);
  frame.operation_leaving(
      member_name<VideoFrame, VideoFrame&&>("operator="),
      [moved = std::make_shared<VideoFrame>(other)](VideoFrame& target) {
        target = std::move(*moved);
      },
      is_new_without_sample);
  frame.destruction();

  ClassCases described(cases, [] { return VideoDescriptorFrame(7, nullptr); });
  described.reading([](const VideoDescriptorFrame& read) { return text_of(read.number); });
  described.constructor<unsigned int, const TrackDescriptor*>(8U, nullptr);
  described.copying([] { return VideoDescriptorFrame(8, nullptr); });
  described.operation(
      member_name<VideoDescriptorFrame, VideoDescriptorFrame&&>("operator="),
      [](VideoDescriptorFrame& target) { target = VideoDescriptorFrame(8, nullptr); });
}

// Adds cases of the functions of one namespace.
class NamespaceCases {
 public:
  NamespaceCases(Cases& cases, const char* name) : cases_(cases), name_(name) {}

  template <typename Function, typename... Arguments>
  void add(const char* function, Function* pointer, Arguments... arguments) {
    add_function_case(cases_, (name_ + "::" + function).c_str(), pointer, arguments...);
  }

 private:
  Cases& cases_;
  std::string name_;
};

void add_defaults(Cases& cases) {
  namespace Defaults = Media::TrackDescriptorDefaults;
  using Media::EssenceDnxhd;
  const Rational32 rate = {25, 1};
  NamespaceCases made(cases, "Korvane::Media::TrackDescriptorDefaults");
  made.add("aiff_stereo_16b_48k", &Defaults::aiff_stereo_16b_48k, 1);
  made.add("pcm_mono_24b_48k", &Defaults::pcm_mono_24b_48k, 1);
  made.add("pcm_stereo_24b_48k", &Defaults::pcm_stereo_24b_48k, 1);
  made.add("sound_pcm_48k", &Defaults::sound_pcm_48k, 1, 2, 24);
  made.add("avcintra_100_1920_1080_50i", &Defaults::avcintra_100_1920_1080_50i, 1);
  made.add("dnxhd_145_60i", &Defaults::dnxhd_145_60i, 1);
  made.add("dnxhd_220_60i", &Defaults::dnxhd_220_60i, 1);
  made.add("imx_30_ntsc", &Defaults::imx_30_ntsc, 1);
  made.add("imx_50_pal", &Defaults::imx_50_pal, 1);
  made.add("mpeg2_lgop_50_60i", &Defaults::mpeg2_lgop_50_60i, 1);
  made.add("mpeg2_lgop_50_2398p", &Defaults::mpeg2_lgop_50_2398p, 1);
  made.add("mpeg2_lgop_50_60p", &Defaults::mpeg2_lgop_50_60p, 1);
  made.add("compressed_format_1080i60", &Defaults::compressed_format_1080i60, 1, EssenceDnxhd);
  made.add("compressed_descriptor_for_video_format",
           &Defaults::compressed_descriptor_for_video_format, 1, EssenceDnxhd, Media::Pal, 2, 8);
  made.add("uyvy_1280_720_60p", &Defaults::uyvy_1280_720_60p, 1);
  made.add("uyvy_1920_1080_60i", &Defaults::uyvy_1920_1080_60i, 1);
  made.add("uyvy_720_486_60i", &Defaults::uyvy_720_486_60i, 1);
  made.add("uyvy_ntsc", &Defaults::uyvy_ntsc, 1);
  made.add("uyvy_pal", &Defaults::uyvy_pal, 1);
  made.add("v210_1920_1080_60i", &Defaults::v210_1920_1080_60i, 1);
  made.add("yuv422p_1920_1080_60i", &Defaults::yuv422p_1920_1080_60i, 1);
  made.add("yuv422p10e_1920_1080_60i", &Defaults::yuv422p10e_1920_1080_60i, 1);
  made.add("uncompressed_descriptor", &Defaults::uncompressed_descriptor, 1, rate, 720, 576, true,
           rate, Uyvy, ColorimetryUnspecified);
  made.add("uncompressed_descriptor_for_video_format",
           &Defaults::uncompressed_descriptor_for_video_format, 1, Media::Pal, Uyvy,
           ColorimetryUnspecified);
}

// A value past the end of each table is refused, which needs memory.
void add_tables(Cases& cases) {
  namespace Formats = Media::VideoFormatsHelper;
  const Rational32 rate = {25, 1};
  const auto no_format = static_cast<Media::VideoFormats>(99);
  NamespaceCases formats(cases, "Korvane::Media::VideoFormatsHelper");
  for (const Media::VideoFormats format : {Media::Pal, no_format}) {
    formats.add("width", &Formats::width, format);
    formats.add("height", &Formats::height, format);
    formats.add("interlaced", &Formats::interlaced, format);
    formats.add("edit_rate", &Formats::edit_rate, format);
    formats.add("aspect_ratio", &Formats::aspect_ratio, format);
    formats.add("rounded_frame_rate", &Formats::rounded_frame_rate, format);
    formats.add("is_uhd_format", &Formats::is_uhd_format, format);
  }
  formats.add("is_pal", &Formats::is_pal, rate);
  formats.add("is_720p_edit_rate", &Formats::is_720p_edit_rate, rate);
  formats.add("is_pal_dimensions", &Formats::is_pal_dimensions, 720, 576);
  formats.add("is_ntsc_dimensions", &Formats::is_ntsc_dimensions, 720, 576);
  formats.add("format_from_descriptor", &Formats::format_from_descriptor,
              filled<PictureTrackDescriptor>());
  formats.add("format_from_descriptor", &Formats::format_from_descriptor, PictureTrackDescriptor());

  NamespaceCases colors(cases, "Korvane::ColorspacesUtils");
  for (const Colorspaces colorspace : {Uyvy, static_cast<Colorspaces>(99)}) {
    colors.add("planes_for_colorspace", &ColorspacesUtils::planes_for_colorspace, colorspace);
    colors.add("component_depth_for_colorspace", &ColorspacesUtils::component_depth_for_colorspace,
               colorspace);
    colors.add("stride_for_colorspace", &ColorspacesUtils::stride_for_colorspace, colorspace, 720,
               0);
    colors.add("heigth_for_colorspace", &ColorspacesUtils::heigth_for_colorspace, colorspace, 576,
               0);
  }

  NamespaceCases kinds(cases, "Korvane::Media::TrackDescriptorUtils");
  namespace Kinds = Media::TrackDescriptorUtils;
  kinds.add("is_audio_track", &Kinds::is_audio_track, Media::EssencePcm);
  kinds.add("is_video_track", &Kinds::is_video_track, Media::EssencePcm);
  kinds.add("is_data_track", &Kinds::is_data_track, Media::EssencePcm);
  kinds.add("is_dnx", &Kinds::is_dnx, Media::EssencePcm);
  kinds.add("is_prores", &Kinds::is_prores, Media::EssencePcm);
}

}  // namespace

void add_track_cases(Cases& cases) {
  add_base_members(cases);
  add_pictures(cases);
  add_sounds(cases);
  derived_class<Media::DataTrackDescriptor>(cases);
  derived_class<Media::CompoundTrackDescriptor>(cases);
  add_descriptor_list(cases);
  add_image_info(cases);
  add_audio_info(cases);
  add_frames(cases);
  add_defaults(cases);
  add_tables(cases);
}

}  // namespace Korvane::MemoryTests
