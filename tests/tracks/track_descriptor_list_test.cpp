#include "media/track_descriptor_list.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

static_assert(sizeof(TrackDescriptorList) == sizeof(void*));
static_assert(!std::is_polymorphic_v<TrackDescriptorList>);

PictureTrackDescriptor picture() {
  PictureTrackDescriptor track;
  fill(track);
  return track;
}

SoundTrackDescriptor sound() {
  SoundTrackDescriptor track;
  fill(track);
  return track;
}

TrackDescriptorList picture_and_sound() {
  TrackDescriptorList list;
  list.add_track(picture());
  list.add_track(sound());
  return list;
}

template <typename Descriptor>
void expect_filled_at(const TrackDescriptorList& list, unsigned long long index) {
  const auto* const track = dynamic_cast<const Descriptor*>(list.track_at(index));
  ASSERT_NE(nullptr, track) << index;
  expect_filled(*track);
}

void expect_picture_and_sound(const TrackDescriptorList& list) {
  ASSERT_EQ(2U, list.size());
  expect_filled_at<PictureTrackDescriptor>(list, 0);
  expect_filled_at<SoundTrackDescriptor>(list, 1);
}

TEST(TrackDescriptorList, IsEmptyAtFirst) {
  const TrackDescriptorList list;
  EXPECT_EQ(0U, list.size());
  EXPECT_EQ(nullptr, list.track_at(0));
}

TEST(TrackDescriptorList, PastTheEndThereIsNull) {
  const TrackDescriptorList list = picture_and_sound();
  for (const unsigned long long index : {2ULL, 3ULL, 1ULL << 32U, (1ULL << 32U) + 1, ~0ULL})
    EXPECT_EQ(nullptr, list.track_at(index)) << index;
}

TEST(TrackDescriptorList, KeepsOrderAndClasses) {
  TrackDescriptorList list = picture_and_sound();
  list.add_track(DataTrackDescriptor());
  list.add_track(CompoundTrackDescriptor());
  ASSERT_EQ(4U, list.size());
  expect_filled_at<PictureTrackDescriptor>(list, 0);
  expect_filled_at<SoundTrackDescriptor>(list, 1);
  EXPECT_NE(nullptr, dynamic_cast<const DataTrackDescriptor*>(list.track_at(2)));
  EXPECT_NE(nullptr, dynamic_cast<const CompoundTrackDescriptor*>(list.track_at(3)));
}

TEST(TrackDescriptorList, HoldsClones) {
  SoundTrackDescriptor track = sound();
  TrackDescriptorList list;
  list.add_track(track);
  EXPECT_NE(&track, list.track_at(0));
  track.track_id(99);
  *track.pre_charge() = 98;
  expect_filled_at<SoundTrackDescriptor>(list, 0);
}

TEST(TrackDescriptorList, TakesItsOwnElements) {
  TrackDescriptorList list;
  list.add_track(sound());
  for (int i = 0; i < 100; ++i) list.add_track(*list.track_at(0));
  ASSERT_EQ(101U, list.size());
  for (unsigned long long i = 0; i < 101; ++i) expect_filled_at<SoundTrackDescriptor>(list, i);
}

TEST(TrackDescriptorList, DescriptorsStayWhereTheyAreWhileTheListGrows) {
  TrackDescriptorList list = picture_and_sound();
  const TrackDescriptor* const first = list.track_at(0);
  for (int i = 0; i < 1000; ++i) list.add_track(DataTrackDescriptor());
  EXPECT_EQ(first, list.track_at(0));
}

TEST(TrackDescriptorList, CopiesAreIndependent) {
  const TrackDescriptorList original = picture_and_sound();
  TrackDescriptorList copy(original);
  expect_picture_and_sound(copy);
  EXPECT_NE(original.track_at(0), copy.track_at(0));
  *copy.track_at(0)->track_id() = 99;
  copy.add_track(DataTrackDescriptor());
  expect_picture_and_sound(original);
}

TEST(TrackDescriptorList, AssignmentReplacesEverything) {
  const TrackDescriptorList original = picture_and_sound();
  TrackDescriptorList target;
  for (int i = 0; i < 3; ++i) target.add_track(DataTrackDescriptor());
  target = original;
  expect_picture_and_sound(target);
  EXPECT_NE(original.track_at(0), target.track_at(0));
  target = TrackDescriptorList();
  EXPECT_EQ(0U, target.size());
  expect_picture_and_sound(original);
}

TEST(TrackDescriptorList, SelfAssignmentKeepsEverythingInPlace) {
  TrackDescriptorList list = picture_and_sound();
  const TrackDescriptorList& same = list;
  const TrackDescriptor* const first = list.track_at(0);
  list = same;
  expect_picture_and_sound(list);
  EXPECT_EQ(first, list.track_at(0));
}

TEST(TrackDescriptorList, MovingCopies) {
  TrackDescriptorList source = picture_and_sound();
  const TrackDescriptorList moved(std::move(source));
  expect_picture_and_sound(moved);
  expect_picture_and_sound(source);  // NOLINT(bugprone-use-after-move): it keeps everything
}

// A caller's own class, which tells of its clones and their ends.
class Witness : public TrackDescriptor {
 public:
  explicit Witness(std::vector<std::string>& events, const char* name)
      : events_(events), name_(name) {}
  Witness(const Witness& other) = default;
  Witness& operator=(const Witness&) = delete;
  ~Witness() override { events_.push_back("end of " + name_); }
  TrackDescriptor* clone() const override {
    if (name_ == "unclonable" && !events_.empty()) throw std::runtime_error("no clone");
    events_.push_back("clone of " + name_);
    return new Witness(*this);
  }

 private:
  std::vector<std::string>& events_;
  std::string name_;
};

using Events = std::vector<std::string>;

TEST(TrackDescriptorList, TheDestructorEndsEveryDescriptor) {
  Events events;
  const Witness a(events, "a");
  {
    TrackDescriptorList list;
    list.add_track(a);
    list.add_track(a);
    EXPECT_EQ((Events{"clone of a", "clone of a"}), events);
    events.clear();
  }
  EXPECT_EQ((Events{"end of a", "end of a"}), events);
}

TEST(TrackDescriptorList, AssignmentEndsTheOldBeforeItClonesTheNew) {
  Events events;
  const Witness old_one(events, "old");
  const Witness first(events, "first");
  const Witness second(events, "second");
  TrackDescriptorList target;
  target.add_track(old_one);
  TrackDescriptorList source;
  source.add_track(first);
  source.add_track(second);
  events.clear();
  target = source;
  EXPECT_EQ((Events{"end of old", "clone of first", "clone of second"}), events);
  events.clear();
  const TrackDescriptorList& same = target;
  target = same;
  EXPECT_EQ(Events(), events);
}

TEST(TrackDescriptorList, AFailedAssignmentLeavesNothing) {
  Events events;
  const Witness old_one(events, "old");
  const Witness first(events, "first");
  const Witness unclonable(events, "unclonable");
  TrackDescriptorList target;
  TrackDescriptorList source;
  target.add_track(old_one);
  source.add_track(first);
  events.clear();
  source.add_track(unclonable);
  events = {"-"};
  EXPECT_THROW(target = source, std::runtime_error);
  EXPECT_EQ((Events{"-", "end of old", "clone of first", "end of first"}), events);
  EXPECT_EQ(0U, target.size());
  EXPECT_EQ(nullptr, target.track_at(0));
  EXPECT_EQ(2U, source.size());
}

TEST(TrackDescriptorList, AFailedCloneAddsNothing) {
  Events events = {"-"};
  const Witness unclonable(events, "unclonable");
  TrackDescriptorList list;
  EXPECT_THROW(list.add_track(unclonable), std::runtime_error);
  EXPECT_EQ(0U, list.size());
}

}  // namespace
}  // namespace Korvane::Media
