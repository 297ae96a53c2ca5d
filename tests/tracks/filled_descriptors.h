// A descriptor of each class with every attribute set, each to a value of its own, and whether a
// descriptor still is so.

#ifndef KV_ENGINE_TESTS_TRACKS_FILLED_DESCRIPTORS_H
#define KV_ENGINE_TESTS_TRACKS_FILLED_DESCRIPTORS_H

#include <gtest/gtest.h>

#include "media/compound_track_descriptor.h"
#include "media/data_track_descriptor.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"

namespace Korvane::Media {

inline void expect_value(unsigned int expected, const unsigned int* actual, const char* what) {
  ASSERT_NE(nullptr, actual) << what;
  EXPECT_EQ(expected, *actual) << what;
}

inline void expect_value(Rational32 expected, const Rational32* actual, const char* what) {
  ASSERT_NE(nullptr, actual) << what;
  EXPECT_EQ(expected.numerator, actual->numerator) << what;
  EXPECT_EQ(expected.denominator, actual->denominator) << what;
}

inline void expect_value(bool expected, const bool* actual, const char* what) {
  ASSERT_NE(nullptr, actual) << what;
  EXPECT_EQ(expected, *actual) << what;
}

inline void fill_base(TrackDescriptor& track) {
  track.essence_kind(EssenceMpeg2);
  track.track_id(7);
  track.sample_rate({30000, 1001});
  track.pre_charge(12);
  track.private_data(-5);
  track.add_key_value("language", "deu");
}

inline void expect_base_filled(const TrackDescriptor& track) {
  EXPECT_EQ(EssenceMpeg2, track.essence_kind());
  expect_value(7U, track.track_id(), "track id");
  expect_value(Rational32{30000, 1001}, track.sample_rate(), "sample rate");
  expect_value(12U, track.pre_charge(), "pre-charge");
  ASSERT_NE(nullptr, track.private_data());
  EXPECT_EQ(-5, *track.private_data());
  EXPECT_STREQ("deu", track.get_key_value("language"));
}

inline void expect_base_fresh(const TrackDescriptor& track) {
  EXPECT_EQ(0U, track.essence_kind());
  EXPECT_EQ(nullptr, track.track_id());
  EXPECT_EQ(nullptr, track.sample_rate());
  EXPECT_EQ(nullptr, track.pre_charge());
  EXPECT_EQ(nullptr, track.private_data());
  EXPECT_EQ(nullptr, track.get_key_value("language"));
}

inline void fill(PictureTrackDescriptor& track) {
  fill_base(track);
  track.width(1920);
  track.height(1081);
  track.interlaced(true);
  track.aspect_ratio({16, 9});
  track.bit_rate(50000000);
  track.component_depth(10);
  track.colorspace(V210);
  track.colorimetry(static_cast<Colorimetry>(3));
}

inline void expect_filled(const PictureTrackDescriptor& track) {
  expect_base_filled(track);
  expect_value(1920U, track.width(), "width");
  expect_value(1081U, track.height(), "height");
  expect_value(540U, track.field_height(), "field height");
  expect_value(true, track.interlaced(), "interlaced");
  expect_value(Rational32{16, 9}, track.aspect_ratio(), "aspect ratio");
  expect_value(50000000U, track.bit_rate(), "bit rate");
  expect_value(10U, track.component_depth(), "component depth");
  EXPECT_EQ(4U, track.colorspace());
  EXPECT_EQ(3U, track.colorimetry());
}

inline void expect_fresh(const PictureTrackDescriptor& track) {
  expect_base_fresh(track);
  EXPECT_EQ(nullptr, track.width());
  EXPECT_EQ(nullptr, track.height());
  EXPECT_EQ(nullptr, track.field_height());
  EXPECT_EQ(nullptr, track.interlaced());
  EXPECT_EQ(nullptr, track.aspect_ratio());
  EXPECT_EQ(nullptr, track.bit_rate());
  EXPECT_EQ(nullptr, track.component_depth());
  EXPECT_EQ(0U, track.colorspace());
  EXPECT_EQ(0U, track.colorimetry());
}

// Another value for every attribute, by setters and through pointers.
inline void change(PictureTrackDescriptor& track) {
  track.essence_kind(EssenceDnxhd);
  *track.track_id() = 1;
  track.width(1);
  *track.height() = 2;
  *track.field_height() = 3;
  *track.interlaced() = false;
  *track.aspect_ratio() = {4, 3};
  *track.bit_rate() = 4;
  track.component_depth(5);
  track.colorspace(Uyvy);
  track.colorimetry(ColorimetryUnspecified);
}

inline void fill(SoundTrackDescriptor& track) {
  fill_base(track);
  track.sampling_rate(48000);
  track.sampling_bits(24);
  track.channel_count(2);
}

inline void expect_filled(const SoundTrackDescriptor& track) {
  expect_base_filled(track);
  expect_value(48000U, track.sampling_rate(), "sampling rate");
  expect_value(24U, track.sampling_bits(), "sampling bits");
  expect_value(2U, track.channel_count(), "channel count");
}

inline void expect_fresh(const SoundTrackDescriptor& track) {
  expect_base_fresh(track);
  EXPECT_EQ(nullptr, track.sampling_rate());
  EXPECT_EQ(nullptr, track.sampling_bits());
  EXPECT_EQ(nullptr, track.channel_count());
}

inline void change(SoundTrackDescriptor& track) {
  track.essence_kind(EssencePcm);
  *track.track_id() = 1;
  track.sampling_rate(1);
  *track.sampling_bits() = 2;
  *track.channel_count() = 3;
}

inline void fill(TrackDescriptor& track) { fill_base(track); }
inline void expect_filled(const TrackDescriptor& track) { expect_base_filled(track); }
inline void expect_fresh(const TrackDescriptor& track) { expect_base_fresh(track); }
inline void change(TrackDescriptor& track) { *track.track_id() = 1; }

}  // namespace Korvane::Media
#endif  // KV_ENGINE_TESTS_TRACKS_FILLED_DESCRIPTORS_H
