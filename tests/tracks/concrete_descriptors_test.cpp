// What holds for the descriptors of pictures, sound, data and compounds alike.

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <typeinfo>

#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

template <typename Descriptor>
class ConcreteDescriptor : public ::testing::Test {
 protected:
  static Descriptor filled() {
    Descriptor track;
    fill(track);
    return track;
  }
};

using Concrete = ::testing::Types<PictureTrackDescriptor, SoundTrackDescriptor, DataTrackDescriptor,
                                  CompoundTrackDescriptor>;
TYPED_TEST_SUITE(ConcreteDescriptor, Concrete);

TYPED_TEST(ConcreteDescriptor, IsTwoRecordsBehindAVirtualTable) {
  static_assert(std::is_base_of_v<TrackDescriptor, TypeParam>);
  static_assert(std::is_convertible_v<TypeParam*, TrackDescriptor*>);
  static_assert(std::has_virtual_destructor_v<TypeParam>);
  EXPECT_EQ(3 * sizeof(void*), sizeof(TypeParam));
}

TYPED_TEST(ConcreteDescriptor, HasNothingAtFirst) { expect_fresh(TypeParam()); }

TYPED_TEST(ConcreteDescriptor, KeepsWhatIsSet) { expect_filled(this->filled()); }

TYPED_TEST(ConcreteDescriptor, CopiesAreIndependent) {
  TypeParam original = this->filled();
  TypeParam copy(original);
  expect_filled(copy);
  change(copy);
  expect_filled(original);
  const TypeParam second(original);
  change(original);
  expect_filled(second);
}

TYPED_TEST(ConcreteDescriptor, AssignmentReplacesEverything) {
  const TypeParam original = this->filled();
  TypeParam target;
  target = original;
  expect_filled(target);
  change(target);
  expect_filled(original);
  target = TypeParam();
  expect_fresh(target);
}

TYPED_TEST(ConcreteDescriptor, SelfAssignmentKeepsEverythingInPlace) {
  TypeParam track = this->filled();
  const TypeParam& same = track;
  const unsigned int* const id = track.track_id();
  track = same;
  expect_filled(track);
  EXPECT_EQ(id, track.track_id());
}

TYPED_TEST(ConcreteDescriptor, MovingCopies) {
  TypeParam original = this->filled();
  TypeParam moved(std::move(original));
  expect_filled(moved);
  expect_filled(original);  // NOLINT(bugprone-use-after-move): the source keeps everything
  TypeParam assigned;
  assigned = std::move(moved);
  expect_filled(assigned);
  expect_filled(moved);  // NOLINT(bugprone-use-after-move)
}

TYPED_TEST(ConcreteDescriptor, ClonesThroughTheBase) {
  const TypeParam original = this->filled();
  const TrackDescriptor& base = original;
  const std::unique_ptr<TrackDescriptor> clone(base.clone());
  auto* const typed = dynamic_cast<TypeParam*>(clone.get());
  ASSERT_NE(nullptr, typed);
  EXPECT_EQ(typeid(TypeParam), typeid(*typed));
  expect_filled(*typed);
  change(*typed);
  expect_filled(original);
}

}  // namespace
}  // namespace Korvane::Media
