#include "media/track_descriptor_defaults.h"

#include <gtest/gtest.h>

#include "media/audio_info.h"
#include "media/video_formats_helper.h"
#include "support/raises.h"
#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

namespace Defaults = TrackDescriptorDefaults;

constexpr Rational32 k24000 = {24000, 1001};
constexpr Rational32 k25 = {25, 1};
constexpr Rational32 k30000 = {30000, 1001};
constexpr Rational32 k60000 = {60000, 1001};
constexpr Rational32 k4By3 = {4, 3};
constexpr Rational32 k16By9 = {16, 9};
constexpr unsigned int kTrackIds[] = {0, 1, 3, 0xFFFFFFFFU};

// What a picture track states; 0 in bit rate and depth means that nothing is stated.
struct ExpectedPicture {
  unsigned int kind;
  unsigned int width;
  unsigned int height;
  unsigned int field_height;
  bool interlaced;
  Rational32 edit_rate;
  Rational32 aspect_ratio;
  unsigned int bit_rate;
  unsigned int component_depth;
  unsigned int colorspace;
  unsigned int colorimetry;
};

void expect_optional(unsigned int expected, const unsigned int* actual, const char* what) {
  if (expected != 0)
    expect_value(expected, actual, what);
  else
    EXPECT_EQ(nullptr, actual) << what;
}

void expect_picture(const ExpectedPicture& expected, unsigned int track_id,
                    const PictureTrackDescriptor& track) {
  EXPECT_EQ(expected.kind, track.essence_kind());
  expect_value(track_id, track.track_id(), "track id");
  expect_value(expected.edit_rate, track.sample_rate(), "sample rate");
  EXPECT_EQ(nullptr, track.pre_charge());
  EXPECT_EQ(nullptr, track.private_data());
  EXPECT_EQ(nullptr, track.get_key_value(""));
  expect_value(expected.width, track.width(), "width");
  expect_value(expected.height, track.height(), "height");
  expect_value(expected.field_height, track.field_height(), "field height");
  expect_value(expected.interlaced, track.interlaced(), "interlaced");
  expect_value(expected.aspect_ratio, track.aspect_ratio(), "aspect ratio");
  expect_optional(expected.bit_rate, track.bit_rate(), "bit rate");
  expect_optional(expected.component_depth, track.component_depth(), "component depth");
  EXPECT_EQ(expected.colorspace, track.colorspace());
  EXPECT_EQ(expected.colorimetry, track.colorimetry());
}

struct CannedPicture {
  const char* name;
  PictureTrackDescriptor (*make)(unsigned int track_id);
  ExpectedPicture expected;
};

PictureTrackDescriptor prores_1080i60(unsigned int track_id) {
  return Defaults::compressed_format_1080i60(track_id, EssenceProres18);
}

// clang-format off
constexpr CannedPicture kPictures[] = {
    {"avcintra_100_1920_1080_50i", Defaults::avcintra_100_1920_1080_50i,
     {15, 1920, 1080, 540, true, k25, k16By9, 100000000, 10, 0, 0}},
    {"dnxhd_145_60i", Defaults::dnxhd_145_60i,
     {2, 1920, 1080, 540, true, k30000, k16By9, 145000000, 8, 0, 0}},
    {"dnxhd_220_60i", Defaults::dnxhd_220_60i,
     {2, 1920, 1080, 540, true, k30000, k16By9, 220000000, 8, 0, 0}},
    {"imx_30_ntsc", Defaults::imx_30_ntsc,
     {5, 720, 486, 243, true, k30000, k4By3, 30000000, 0, 0, 0}},
    {"imx_50_pal", Defaults::imx_50_pal,
     {5, 720, 576, 288, true, k25, k4By3, 50000000, 0, 0, 0}},
    {"mpeg2_lgop_50_60i", Defaults::mpeg2_lgop_50_60i,
     {5, 1920, 1080, 540, true, k30000, k16By9, 50000000, 0, 0, 0}},
    {"mpeg2_lgop_50_2398p", Defaults::mpeg2_lgop_50_2398p,
     {5, 1920, 1080, 1080, false, k24000, k16By9, 50000000, 0, 0, 0}},
    {"mpeg2_lgop_50_60p", Defaults::mpeg2_lgop_50_60p,
     {5, 1280, 720, 720, false, k60000, k16By9, 50000000, 0, 0, 0}},
    {"compressed_format_1080i60", prores_1080i60,
     {18, 1920, 1080, 540, true, k30000, k16By9, 0, 8, 0, 0}},
    {"uyvy_1280_720_60p", Defaults::uyvy_1280_720_60p,
     {11, 1280, 720, 720, false, k60000, k16By9, 0, 8, 3, 0}},
    {"uyvy_1920_1080_60i", Defaults::uyvy_1920_1080_60i,
     {11, 1920, 1080, 540, true, k30000, k16By9, 0, 8, 3, 0}},
    {"uyvy_720_486_60i", Defaults::uyvy_720_486_60i,
     {11, 720, 486, 243, true, k30000, k16By9, 0, 8, 3, 0}},
    {"uyvy_ntsc", Defaults::uyvy_ntsc,
     {11, 720, 486, 243, true, k30000, k16By9, 0, 8, 3, 0}},
    {"uyvy_pal", Defaults::uyvy_pal,
     {11, 720, 576, 288, true, k25, k16By9, 0, 8, 3, 0}},
    {"v210_1920_1080_60i", Defaults::v210_1920_1080_60i,
     {11, 1920, 1080, 540, true, k30000, k16By9, 0, 10, 4, 0}},
    {"yuv422p_1920_1080_60i", Defaults::yuv422p_1920_1080_60i,
     {11, 1920, 1080, 540, true, k30000, k16By9, 0, 8, 2, 0}},
    {"yuv422p10e_1920_1080_60i", Defaults::yuv422p10e_1920_1080_60i,
     {11, 1920, 1080, 540, true, k30000, k16By9, 0, 10, 8, 0}},
};
// clang-format on

TEST(TrackDescriptorDefaults, EveryAttributeOfEveryPicture) {
  for (const CannedPicture& picture : kPictures)
    for (const unsigned int track_id : kTrackIds) {
      SCOPED_TRACE(picture.name);
      expect_picture(picture.expected, track_id, picture.make(track_id));
    }
}

void expect_sound(unsigned int track_id, unsigned int kind, unsigned int channels,
                  unsigned int bits, const SoundTrackDescriptor& track) {
  EXPECT_EQ(kind, track.essence_kind());
  expect_value(track_id, track.track_id(), "track id");
  expect_value(Rational32{48000, 1}, track.sample_rate(), "sample rate");
  EXPECT_EQ(nullptr, track.pre_charge());
  EXPECT_EQ(nullptr, track.private_data());
  EXPECT_EQ(nullptr, track.get_key_value(""));
  expect_value(48000U, track.sampling_rate(), "sampling rate");
  expect_value(bits, track.sampling_bits(), "sampling bits");
  expect_value(channels, track.channel_count(), "channel count");
}

TEST(TrackDescriptorDefaults, EveryAttributeOfEverySound) {
  for (const unsigned int id : kTrackIds) {
    expect_sound(id, 9, 2, 16, Defaults::aiff_stereo_16b_48k(id));
    expect_sound(id, 8, 1, 24, Defaults::pcm_mono_24b_48k(id));
    expect_sound(id, 8, 2, 24, Defaults::pcm_stereo_24b_48k(id));
    expect_sound(id, 8, 16, 20, Defaults::sound_pcm_48k(id, 16, 20));
    expect_sound(id, 8, 0, 0, Defaults::sound_pcm_48k(id, 0, 0));
  }
}

TEST(TrackDescriptorDefaults, SixBytesForAPairOf24BitSamples) {
  EXPECT_EQ(6U, AudioInfo(Defaults::pcm_stereo_24b_48k(3)).block_align());
}

TEST(TrackDescriptorDefaults, PicturesAreOfKnownFormats) {
  EXPECT_EQ(Pal, VideoFormatsHelper::format_from_descriptor(Defaults::imx_50_pal(1)));
  EXPECT_EQ(Ntsc, VideoFormatsHelper::format_from_descriptor(Defaults::uyvy_ntsc(1)));
  EXPECT_EQ(Hd1080i5994,
            VideoFormatsHelper::format_from_descriptor(Defaults::v210_1920_1080_60i(1)));
  EXPECT_EQ(Hd720p5994, VideoFormatsHelper::format_from_descriptor(Defaults::uyvy_1280_720_60p(1)));
}

struct FormatShape {
  VideoFormats format;
  unsigned int width;
  unsigned int height;
  unsigned int field_height;
  bool interlaced;
  Rational32 edit_rate;
  Rational32 aspect_ratio;
};

constexpr FormatShape kShapes[] = {
    {Ntsc, 720, 486, 243, true, {30000, 1001}, {4, 3}},
    {Pal, 720, 576, 288, true, {25, 1}, {4, 3}},
    {Hd1080p2398, 1920, 1080, 1080, false, {24000, 1001}, {16, 9}},
    {Hd1080i5994, 1920, 1080, 540, true, {30000, 1001}, {16, 9}},
    {Hd720p50, 1280, 720, 720, false, {50, 1}, {16, 9}},
    {Uhd2160p60Alt, 3840, 2160, 2160, false, {60, 1}, {16, 9}},
    {Hd1080p25Alt2, 1920, 1080, 1080, false, {25, 1}, {16, 9}},
};

TEST(TrackDescriptorDefaults, CompressedOfAFormatIsAlways16By9) {
  for (const FormatShape& shape : kShapes) {
    SCOPED_TRACE(shape.format);
    expect_picture({7, shape.width, shape.height, shape.field_height, shape.interlaced,
                    shape.edit_rate, k16By9, 12345, 10, 0, 0},
                   5,
                   Defaults::compressed_descriptor_for_video_format(5, EssenceAudio7, shape.format,
                                                                    12345, 10));
  }
}

TEST(TrackDescriptorDefaults, ABitRateOfZeroIsAbsentADepthOfZeroIsNot) {
  const PictureTrackDescriptor track =
      Defaults::compressed_descriptor_for_video_format(1, EssenceDnxhd, Hd720p50, 0, 0);
  EXPECT_EQ(nullptr, track.bit_rate());
  expect_value(0U, track.component_depth(), "component depth");
  expect_picture({2, 1280, 720, 720, false, {50, 1}, k16By9, 0, 8, 0, 0}, 1,
                 Defaults::compressed_descriptor_for_video_format(1, EssenceDnxhd, Hd720p50, 0, 8));
}

TEST(TrackDescriptorDefaults, UncompressedOfAFormat) {
  for (const FormatShape& shape : kShapes) {
    SCOPED_TRACE(shape.format);
    expect_picture({11, shape.width, shape.height, shape.field_height, shape.interlaced,
                    shape.edit_rate, shape.aspect_ratio, 0, 16, 14, 2},
                   5,
                   Defaults::uncompressed_descriptor_for_video_format(5, shape.format, Rgba64,
                                                                      static_cast<Colorimetry>(2)));
  }
}

TEST(TrackDescriptorDefaults, UncompressedOfArguments) {
  expect_picture(
      {11, 33, 1081, 540, true, {-7, 0}, {1, 2}, 0, 10, 17, 0xFFFFFFFFU}, 9,
      Defaults::uncompressed_descriptor(9, {-7, 0}, 33, 1081, true, {1, 2}, Smpte2110Yuv10,
                                        static_cast<Colorimetry>(0xFFFFFFFFU)));
  expect_picture({11, 0, 0, 0, false, {25, 1}, {1, 1}, 0, 16, 11, 0}, 9,
                 Defaults::uncompressed_descriptor(9, {25, 1}, 0, 0, false, {1, 1}, Rgb24,
                                                   ColorimetryUnspecified));
}

TEST(TrackDescriptorDefaults, NeitherBuilderTakesWhatIsNoFormat) {
  for (const unsigned int value : {38U, 39U, 102U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(value);
    const auto format = static_cast<VideoFormats>(value);
    EXPECT_TRUE(raises(
        InvalidArgument, "Unsupported value for video parameters (edit rate mapping)",
        [&] { Defaults::compressed_descriptor_for_video_format(1, EssenceDnxhd, format, 1, 8); }));
    // The format is looked up before the colour space, here without a depth.
    EXPECT_TRUE(raises(InvalidArgument,
                       "Unsupported value for video parameters (aspect ratio mapping)", [&] {
                         Defaults::uncompressed_descriptor_for_video_format(1, format, Argb,
                                                                            ColorimetryUnspecified);
                       }));
  }
}

TEST(TrackDescriptorDefaults, UncompressedNeedsAColorspaceWithADepth) {
  for (const unsigned int value : {0U, 10U, 12U, 19U, 82U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(value);
    const auto colorspace = static_cast<Colorspaces>(value);
    constexpr const char* kMessage = "Unable to map between colorspace and component depth";
    EXPECT_TRUE(raises(UnmappedValue, kMessage, [&] {
      Defaults::uncompressed_descriptor(1, k25, 720, 576, true, k4By3, colorspace,
                                        ColorimetryUnspecified);
    }));
    EXPECT_TRUE(raises(UnmappedValue, kMessage, [&] {
      Defaults::uncompressed_descriptor_for_video_format(1, Pal, colorspace,
                                                         ColorimetryUnspecified);
    }));
  }
}

TEST(TrackDescriptorDefaults, LayoutsWithoutPlanesButWithADepthAreTaken) {
  for (const Colorspaces colorspace : {Colorspace6, Colorspace7})
    expect_value(10U,
                 Defaults::uncompressed_descriptor_for_video_format(1, Pal, colorspace,
                                                                    ColorimetryUnspecified)
                     .component_depth(),
                 "component depth");
}

}  // namespace
}  // namespace Korvane::Media
