#include "media/image_info.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "media/picture_track_descriptor.h"
#include "support/raises.h"

namespace Korvane {
namespace {

static_assert(sizeof(ImageInfo) == 20);
static_assert(std::is_standard_layout_v<ImageInfo>);
static_assert(offsetof(ImageInfo, width) == 0);
static_assert(offsetof(ImageInfo, height) == 4);
static_assert(offsetof(ImageInfo, interlaced) == 8);
static_assert(offsetof(ImageInfo, colorspace) == 12);
static_assert(offsetof(ImageInfo, colorimetry) == 16);

Colorimetry colours(unsigned int value) { return static_cast<Colorimetry>(value); }

void expect_fields(const ImageInfo& info, unsigned int width, unsigned int height, bool interlaced,
                   unsigned int colorspace, unsigned int colorimetry) {
  EXPECT_EQ(width, info.width);
  EXPECT_EQ(height, info.height);
  EXPECT_EQ(interlaced, info.interlaced);
  EXPECT_EQ(colorspace, info.colorspace);
  EXPECT_EQ(colorimetry, info.colorimetry);
}

TEST(ImageInfo, IsZeroAtFirst) { expect_fields(ImageInfo(), 0, 0, false, 0, 0); }

TEST(ImageInfo, StoresAnyValueUnchecked) {
  expect_fields(ImageInfo(1, 2, true, static_cast<Colorspaces>(99), colours(0xFFFFFFFFU)), 1, 2,
                true, 99, 0xFFFFFFFFU);
}

TEST(ImageInfo, OfAFormat) {
  expect_fields(ImageInfo(Media::Pal, Uyvy, colours(2)), 720, 576, true, 3, 2);
  expect_fields(ImageInfo(Media::Ntsc, ColorspaceUndefined, ColorimetryUnspecified), 720, 486, true,
                0, 0);
  expect_fields(ImageInfo(Media::Hd720p5994, V210, colours(1)), 1280, 720, false, 4, 1);
  expect_fields(ImageInfo(Media::Uhd2160p25Alt, Rgba, colours(1)), 3840, 2160, false, 13, 1);
}

TEST(ImageInfo, OfNoFormat) {
  for (const unsigned int value : {38U, 39U, 0xFFFFFFFFU})
    EXPECT_TRUE(raises(
        InvalidArgument, "Unsupported value for video parameters (width mapping)",
        [&] { ImageInfo(static_cast<Media::VideoFormats>(value), Uyvy, ColorimetryUnspecified); }))
        << value;
}

TEST(ImageInfo, OfADescriptor) {
  Media::PictureTrackDescriptor track;
  track.width(1920);
  track.height(1080);
  track.interlaced(true);
  expect_fields(ImageInfo(track), 1920, 1080, true, 0, 0);
  track.interlaced(false);
  track.colorspace(V210);
  track.colorimetry(colours(5));
  expect_fields(ImageInfo(track), 1920, 1080, false, 4, 5);
}

// Bits of `given`: width, height, interlaced.
TEST(ImageInfo, AsksADescriptorForWidthHeightAndInterlacedInThisOrder) {
  for (unsigned int given = 0; given < 7; ++given) {
    SCOPED_TRACE(given);
    Media::PictureTrackDescriptor track;
    if ((given & 1U) != 0) track.width(1920);
    if ((given & 2U) != 0) track.height(1080);
    if ((given & 4U) != 0) track.interlaced(true);
    const char* message = "Trying to set ImageInfo from track without interlaced";
    if ((given & 2U) == 0) message = "Trying to set ImageInfo from track without height";
    if ((given & 1U) == 0) message = "Trying to set ImageInfo from track without width";
    EXPECT_TRUE(raises(InvalidArgument, message, [&] { const ImageInfo info(track); }));
  }
}

TEST(ImageInfo, CopiesAndMovesCopyEveryField) {
  ImageInfo source(720, 576, true, Uyvy, colours(3));
  const ImageInfo copy(source);
  expect_fields(copy, 720, 576, true, 3, 3);
  ImageInfo assigned;
  assigned = source;
  expect_fields(assigned, 720, 576, true, 3, 3);
  ImageInfo moved;
  moved = std::move(source);
  expect_fields(moved, 720, 576, true, 3, 3);
  expect_fields(source, 720, 576, true, 3, 3);  // NOLINT(bugprone-use-after-move)
}

TEST(ImageInfo, UpdateSetsEveryField) {
  ImageInfo info;
  info.update_info(720, 576, true, Uyvy, colours(3));
  expect_fields(info, 720, 576, true, 3, 3);
  info.update_info(ImageInfo(1920, 1080, false, V210, colours(4)));
  expect_fields(info, 1920, 1080, false, 4, 4);
  info.update_info(info);
  expect_fields(info, 1920, 1080, false, 4, 4);
}

TEST(ImageInfo, DiffersByEveryField) {
  const ImageInfo info(720, 576, true, Uyvy, colours(1));
  const ImageInfo others[] = {
      ImageInfo(721, 576, true, Uyvy, colours(1)), ImageInfo(720, 577, true, Uyvy, colours(1)),
      ImageInfo(720, 576, false, Uyvy, colours(1)), ImageInfo(720, 576, true, V210, colours(1)),
      ImageInfo(720, 576, true, Uyvy, colours(2))};
  for (const ImageInfo& other : others) {
    EXPECT_FALSE(info == other);
    EXPECT_TRUE(info != other);
  }
  EXPECT_TRUE(info == ImageInfo(info));
  EXPECT_FALSE(info != ImageInfo(info));
}

TEST(ImageInfo, UnspecifiedColorimetryEqualsEveryOther) {
  for (const unsigned int a : {0U, 1U, 2U, 0xFFFFFFFFU})
    for (const unsigned int b : {0U, 1U, 2U, 0xFFFFFFFFU}) {
      SCOPED_TRACE(::testing::Message() << a << " and " << b);
      const bool equal = a == b || a == 0 || b == 0;
      EXPECT_EQ(equal, ImageInfo(1, 2, false, Uyvy, colours(a)) ==
                           ImageInfo(1, 2, false, Uyvy, colours(b)));
      EXPECT_EQ(!equal, ImageInfo(1, 2, false, Uyvy, colours(a)) !=
                            ImageInfo(1, 2, false, Uyvy, colours(b)));
    }
}

TEST(ImageInfo, UndefinedColorspaceEqualsItselfOnly) {
  EXPECT_FALSE(ImageInfo(1, 2, false, ColorspaceUndefined, colours(1)) ==
               ImageInfo(1, 2, false, Uyvy, colours(1)));
}

}  // namespace
}  // namespace Korvane
