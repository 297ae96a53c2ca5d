#include "media/track_descriptor.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

namespace Korvane::Media {
namespace {

static_assert(std::is_abstract_v<TrackDescriptor>);
static_assert(std::has_virtual_destructor_v<TrackDescriptor>);
static_assert(sizeof(TrackDescriptor) == 2 * sizeof(void*));
static_assert(std::is_same_v<std::underlying_type_t<TrackDescriptorEssenceKind>, unsigned int>);

class Track : public TrackDescriptor {
 public:
  TrackDescriptor* clone() const override { return new Track(*this); }
};

// Every attribute set, none to zero.
Track full_track() {
  Track track;
  track.essence_kind(EssencePcm);
  track.track_id(7);
  track.sample_rate({48000, 1});
  track.pre_charge(12);
  track.private_data(-5);
  track.add_key_value("language", "deu");
  track.add_key_value("label", "left");
  return track;
}

void expect_full(const TrackDescriptor& track) {
  EXPECT_EQ(EssencePcm, track.essence_kind());
  ASSERT_NE(nullptr, track.track_id());
  EXPECT_EQ(7U, *track.track_id());
  ASSERT_NE(nullptr, track.sample_rate());
  EXPECT_EQ(48000, track.sample_rate()->numerator);
  EXPECT_EQ(1, track.sample_rate()->denominator);
  ASSERT_NE(nullptr, track.pre_charge());
  EXPECT_EQ(12U, *track.pre_charge());
  ASSERT_NE(nullptr, track.private_data());
  EXPECT_EQ(-5, *track.private_data());
  EXPECT_STREQ("deu", track.get_key_value("language"));
  EXPECT_STREQ("left", track.get_key_value("label"));
}

void expect_no_attributes(const TrackDescriptor& track) {
  EXPECT_EQ(0U, track.essence_kind());
  EXPECT_EQ(nullptr, track.track_id());
  EXPECT_EQ(nullptr, track.sample_rate());
  EXPECT_EQ(nullptr, track.pre_charge());
  EXPECT_EQ(nullptr, track.private_data());
  EXPECT_EQ(nullptr, track.get_key_value("label"));
  EXPECT_EQ(nullptr, track.get_key_value(""));
}

TEST(TrackDescriptor, HasNothingAtFirst) { expect_no_attributes(Track()); }

TEST(TrackDescriptor, KeepsWhatIsSet) { expect_full(full_track()); }

TEST(TrackDescriptor, ZeroIsNotAbsent) {
  Track track;
  track.track_id(0);
  track.sample_rate({0, 0});
  track.pre_charge(0);
  track.private_data(0);
  ASSERT_NE(nullptr, track.track_id());
  EXPECT_EQ(0U, *track.track_id());
  ASSERT_NE(nullptr, track.sample_rate());
  EXPECT_EQ(0, track.sample_rate()->numerator);
  EXPECT_EQ(0, track.sample_rate()->denominator);
  ASSERT_NE(nullptr, track.pre_charge());
  EXPECT_EQ(0U, *track.pre_charge());
  ASSERT_NE(nullptr, track.private_data());
  EXPECT_EQ(0, *track.private_data());
}

TEST(TrackDescriptor, StoresAnyValueUnchecked) {
  Track track;
  track.essence_kind(static_cast<TrackDescriptorEssenceKind>(0xFFFFFFFFU));
  track.track_id(0xFFFFFFFFU);
  track.sample_rate({-2147483647 - 1, 0});
  track.private_data(-2147483647 - 1);
  EXPECT_EQ(0xFFFFFFFFU, track.essence_kind());
  EXPECT_EQ(0xFFFFFFFFU, *track.track_id());
  EXPECT_EQ(-2147483647 - 1, track.sample_rate()->numerator);
  EXPECT_EQ(0, track.sample_rate()->denominator);
  EXPECT_EQ(-2147483647 - 1, *track.private_data());
}

TEST(TrackDescriptor, GettersOfAConstObjectLetTheValueBeChanged) {
  const Track track = full_track();
  *track.track_id() = 8;
  track.sample_rate()->numerator = 96000;
  EXPECT_EQ(8U, *track.track_id());
  EXPECT_EQ(96000, track.sample_rate()->numerator);
}

TEST(TrackDescriptor, TakesItsOwnValues) {
  Track track = full_track();
  track.track_id(*track.track_id());
  track.sample_rate(*track.sample_rate());
  track.add_key_value("copy", track.get_key_value("label"));
  expect_full(track);
  EXPECT_STREQ("left", track.get_key_value("copy"));
}

TEST(TrackDescriptor, TheFirstValueOfAKeyStays) {
  Track track;
  track.add_key_value("k", "a");
  const char* const first = track.get_key_value("k");
  track.add_key_value("k", "b");
  EXPECT_STREQ("a", track.get_key_value("k"));
  EXPECT_EQ(first, track.get_key_value("k"));
}

TEST(TrackDescriptor, KeysDifferByEveryByte) {
  const std::string high = "\xC3\xA4";
  const char* const keys[] = {"Key", "key", "key ", "", " ", "ke", high.c_str(), "\x7F"};
  Track track;
  for (const char* const key : keys) {
    EXPECT_EQ(nullptr, track.get_key_value(key)) << key;
    track.add_key_value(key, (std::string("value of ") + key).c_str());
  }
  for (const char* const key : keys)
    EXPECT_EQ(std::string("value of ") + key, track.get_key_value(key)) << key;
}

TEST(TrackDescriptor, ValuesStayWhereTheyAreWhileKeysAreAdded) {
  Track track;
  track.add_key_value("m", "kept");
  const char* const value = track.get_key_value("m");
  for (int i = 0; i < 1000; ++i) track.add_key_value(std::to_string(i).c_str(), "x");
  EXPECT_EQ(value, track.get_key_value("m"));
  EXPECT_STREQ("kept", value);
}

TEST(TrackDescriptor, KeepsCopiesOfTexts) {
  Track track;
  {
    std::string key = "a key that is too long for a short buffer";
    std::string value = "a value that is too long for a short buffer";
    track.add_key_value(key.c_str(), value.c_str());
    key.assign(key.size(), '-');
    value.assign(value.size(), '-');
  }
  EXPECT_STREQ("a value that is too long for a short buffer",
               track.get_key_value("a key that is too long for a short buffer"));
}

// Changes every attribute of `track`.
void change_attributes(TrackDescriptor& track) {
  track.essence_kind(EssenceAiff);
  track.track_id(1);
  *track.sample_rate() = {1, 2};
  *track.pre_charge() = 3;
  track.private_data(4);
  track.add_key_value("new", "key");
}

TEST(TrackDescriptor, CopiesAreIndependent) {
  const Track original = full_track();
  Track copy(original);
  expect_full(copy);
  change_attributes(copy);
  expect_full(original);
  EXPECT_EQ(nullptr, original.get_key_value("new"));
}

TEST(TrackDescriptor, AssignmentReplacesEverything) {
  const Track original = full_track();
  Track target;
  target.add_key_value("old", "gone");
  target.add_key_value("label", "right");
  target = original;
  expect_full(target);
  EXPECT_EQ(nullptr, target.get_key_value("old"));
  change_attributes(target);
  expect_full(original);
  target = Track();
  expect_no_attributes(target);
}

TEST(TrackDescriptor, SelfAssignmentKeepsEverythingInPlace) {
  Track track = full_track();
  const TrackDescriptor& same = track;
  const unsigned int* const id = track.track_id();
  const char* const value = track.get_key_value("label");
  track.TrackDescriptor::operator=(same);
  expect_full(track);
  EXPECT_EQ(id, track.track_id());
  EXPECT_EQ(value, track.get_key_value("label"));
}

TEST(TrackDescriptor, ClonesThroughTheBase) {
  const Track original = full_track();
  const TrackDescriptor& base = original;
  const std::unique_ptr<TrackDescriptor> clone(base.clone());
  EXPECT_NE(nullptr, dynamic_cast<Track*>(clone.get()));
  expect_full(*clone);
  change_attributes(*clone);
  expect_full(original);
}

}  // namespace
}  // namespace Korvane::Media
