// What is written of descriptors, whatever they were read from.

#include "tracks.h"

#include <gtest/gtest.h>

#include "media/compound_track_descriptor.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"

namespace Korvane::Tool {
namespace {

std::string text_of_track(const Media::TrackDescriptor& descriptor,
                          std::vector<std::string> keys = {}) {
  TrackReport tracks;
  tracks.descriptors.add_track(descriptor);
  tracks.sources.push_back({7, "codec", "", std::move(keys)});
  std::ostringstream out;
  write_text(out, tracks);
  return out.str();
}

TEST(Tracks, AnEmptyPictureConcludesNothing) {
  EXPECT_EQ(
      "\ntrack of stream 7: picture, codec\n"
      "  essence kind      EssenceNone\n"
      "  colorspace        ColorspaceUndefined\n"
      "  colorimetry       ColorimetryUnspecified\n",
      text_of_track(Media::PictureTrackDescriptor()));
}

TEST(Tracks, WithoutScanningThereIsNeitherFormatNorImage) {
  Media::PictureTrackDescriptor picture;
  picture.width(1920);
  picture.height(1080);
  picture.sample_rate({25, 1});
  const TrackConclusions conclusions = conclusions_of(picture);
  EXPECT_FALSE(conclusions.video_format);
  EXPECT_FALSE(conclusions.image_info);
  EXPECT_EQ(15U, conclusions.layouts.size());
}

TEST(Tracks, WithoutRateThereIsAnImageButNoFormat) {
  Media::PictureTrackDescriptor picture;
  picture.width(720);
  picture.height(576);
  picture.interlaced(true);
  const TrackConclusions conclusions = conclusions_of(picture);
  EXPECT_FALSE(conclusions.video_format);
  ASSERT_TRUE(conclusions.image_info);
  EXPECT_TRUE(*conclusions.image_info ==
              ImageInfo(720, 576, true, ColorspaceUndefined, ColorimetryUnspecified));
}

TEST(Tracks, ARasterOfNoFormatIsUnknown) {
  Media::PictureTrackDescriptor picture;
  picture.width(1000);
  picture.height(1000);
  picture.interlaced(false);
  picture.sample_rate({25, 1});
  EXPECT_EQ(Media::UnknownFormat, conclusions_of(picture).video_format);
}

TEST(Tracks, EveryFieldOfADescriptorIsWritten) {
  Media::SoundTrackDescriptor sound;
  sound.essence_kind(Media::EssencePcm);
  sound.track_id(0);
  sound.sample_rate({48000, 1});
  sound.pre_charge(2);
  sound.private_data(-3);
  sound.sampling_rate(48000);
  sound.sampling_bits(24);
  sound.channel_count(2);
  sound.add_key_value("a_key", "line\nbreak");
  EXPECT_EQ(
      "\ntrack of stream 7: sound, codec\n"
      "  essence kind      EssencePcm\n"
      "  track id          0\n"
      "  sample rate       48000\n"
      "  pre charge        2\n"
      "  private data      -3\n"
      "  sampling rate     48000\n"
      "  sampling bits     24\n"
      "  channel count     2\n"
      "  \"a_key\"           \"line\\x0abreak\"\n"
      "  audio             24 bits, 2 channels, 48000 per second, block align 6\n",
      text_of_track(sound, {"a_key"}));
}

TEST(Tracks, ValuesWithoutANameAreWrittenAsNumbers) {
  Media::CompoundTrackDescriptor compound;
  compound.essence_kind(static_cast<Media::TrackDescriptorEssenceKind>(40));
  EXPECT_EQ("\ntrack of stream 7: data, codec\n  essence kind      40\n", text_of_track(compound));
}

std::vector<Colorspaces> names_of_layouts(unsigned int width, unsigned int height) {
  std::vector<Colorspaces> colorspaces;
  for (const Layout& layout : layouts_for(width, height)) colorspaces.push_back(layout.colorspace);
  return colorspaces;
}

// Halved chroma would lose the last column or line; the 2110 layout has no odd lines at all.
TEST(LayoutsFor, OddSizesLeaveOutHalvedChroma) {
  EXPECT_EQ((std::vector<Colorspaces>{Yuv420p, Yuv422p, Uyvy, V210, V216, Yuv422p10le,
                                      Yuv422p10leAlt, Rgb24, Argb, Rgba, Rgba64, Rgba64Alt, Dpx10,
                                      Smpte2110Yuv10, Yuv420pAlt}),
            names_of_layouts(720, 576));
  EXPECT_EQ((std::vector<Colorspaces>{Yuv422p, Uyvy, V210, V216, Yuv422p10le, Yuv422p10leAlt, Rgb24,
                                      Argb, Rgba, Rgba64, Rgba64Alt, Dpx10, Smpte2110Yuv10}),
            names_of_layouts(720, 577));
  EXPECT_EQ(
      (std::vector<Colorspaces>{Uyvy, V210, V216, Rgb24, Argb, Rgba, Rgba64, Rgba64Alt, Dpx10}),
      names_of_layouts(721, 576));
}

}  // namespace
}  // namespace Korvane::Tool
