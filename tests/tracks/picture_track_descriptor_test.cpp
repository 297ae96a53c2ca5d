#include "media/picture_track_descriptor.h"

#include <gtest/gtest.h>

#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

TEST(PictureTrackDescriptor, FieldHeightFollowsHeightAndScanning) {
  PictureTrackDescriptor track;
  track.height(1080);
  expect_value(1080U, track.field_height(), "scanning unknown");
  track.interlaced(true);
  expect_value(540U, track.field_height(), "interlaced");
  track.interlaced(false);
  expect_value(1080U, track.field_height(), "progressive");
}

TEST(PictureTrackDescriptor, FieldHeightWaitsForTheHeight) {
  PictureTrackDescriptor track;
  track.interlaced(true);
  EXPECT_EQ(nullptr, track.field_height());
  track.interlaced(false);
  EXPECT_EQ(nullptr, track.field_height());
  track.interlaced(true);
  track.height(486);
  expect_value(243U, track.field_height(), "486");
}

TEST(PictureTrackDescriptor, FieldHeightIsRoundedDown) {
  PictureTrackDescriptor track;
  track.interlaced(true);
  struct Halving {
    unsigned int height;
    unsigned int field_height;
  };
  for (const Halving& one :
       {Halving{0, 0}, {1, 0}, {2, 1}, {625, 312}, {1081, 540}, {0xFFFFFFFFU, 0x7FFFFFFFU}}) {
    track.height(one.height);
    expect_value(one.height, track.height(), "height");
    expect_value(one.field_height, track.field_height(), "field height");
  }
}

TEST(PictureTrackDescriptor, NothingElseTouchesTheFieldHeight) {
  PictureTrackDescriptor track;
  track.width(1920);
  EXPECT_EQ(nullptr, track.field_height());
  track.height(1080);
  track.interlaced(true);
  const unsigned int* const field_height = track.field_height();
  track.width(720);
  track.sample_rate({25, 1});
  track.aspect_ratio({4, 3});
  track.bit_rate(1);
  track.component_depth(8);
  track.colorspace(Uyvy);
  track.colorimetry(static_cast<Colorimetry>(1));
  EXPECT_EQ(field_height, track.field_height());
  EXPECT_EQ(540U, *field_height);
}

TEST(PictureTrackDescriptor, AHeightWrittenThroughItsPointerCountsAtTheNextDerivation) {
  PictureTrackDescriptor track;
  track.height(1080);
  *track.height() = 720;
  expect_value(1080U, track.field_height(), "not derived yet");
  track.interlaced(true);
  expect_value(360U, track.field_height(), "derived");
  *track.interlaced() = false;
  expect_value(360U, track.field_height(), "not derived yet");
  track.height(*track.height());
  expect_value(720U, track.field_height(), "derived");
}

TEST(PictureTrackDescriptor, FourSettersAreConst) {
  const PictureTrackDescriptor track;
  track.bit_rate(0);
  track.component_depth(0);
  track.colorspace(static_cast<Colorspaces>(99));
  track.colorimetry(static_cast<Colorimetry>(0xFFFFFFFFU));
  expect_value(0U, track.bit_rate(), "bit rate");
  expect_value(0U, track.component_depth(), "component depth");
  EXPECT_EQ(99U, track.colorspace());
  EXPECT_EQ(0xFFFFFFFFU, track.colorimetry());
}

}  // namespace
}  // namespace Korvane::Media
