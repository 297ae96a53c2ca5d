#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "support/watched.h"

namespace Korvane {
namespace {

template <typename Kind>
class HandleTest : public testing::Test {
 protected:
  typename Kind::Object* make() { return new typename Kind::Concrete(watch_); }

  Watch watch_;
};

using Kinds = testing::Types<SharedFrame, SharedFrameProvider, SharedSampleProvider,
                             SharedPerfListener, SharedSample, SharedDescriptor>;
TYPED_TEST_SUITE(HandleTest, Kinds, HandleNames);

TYPED_TEST(HandleTest, IsOnePointerWideAndAValue) {
  using Handle = typename TypeParam::Handle;
  static_assert(sizeof(Handle) == sizeof(void*));
  static_assert(!std::is_polymorphic_v<Handle>);
  static_assert(std::is_copy_constructible_v<Handle> && std::is_copy_assignable_v<Handle>);
  static_assert(std::is_convertible_v<typename TypeParam::Object*, Handle>);
  static_assert(std::has_virtual_destructor_v<typename TypeParam::Object>);
  static_assert(
      std::is_same_v<decltype(std::declval<const Handle&>().get()), typename TypeParam::Object*>);
}

TYPED_TEST(HandleTest, EmptyOnesHoldNothing) {
  using Handle = typename TypeParam::Handle;
  const Handle fresh;
  EXPECT_EQ(nullptr, fresh.get());
  EXPECT_EQ(nullptr, fresh.operator->());
  const Handle of_null(nullptr);
  EXPECT_EQ(nullptr, of_null.get());
  EXPECT_EQ(nullptr, of_null.operator->());
  const Handle copy(fresh);
  EXPECT_EQ(nullptr, copy.get());
}

TYPED_TEST(HandleTest, TheOnlyOneDeletesItsObject) {
  {
    auto* const object = this->make();
    const typename TypeParam::Handle handle(object);
    EXPECT_EQ(object, handle.get());
    EXPECT_EQ(object, handle.operator->());
    EXPECT_EQ(0, this->watch_.destroyed);
  }
  EXPECT_EQ(1, this->watch_.destroyed);
}

TYPED_TEST(HandleTest, TheLastOfSeveralDeletesTheObject) {
  using Handle = typename TypeParam::Handle;
  auto* const object = this->make();
  auto* const first = new Handle(object);
  auto* const second = new Handle(*first);
  auto* const third = new Handle(*second);
  EXPECT_EQ(object, second->get());
  delete first;
  delete third;
  EXPECT_EQ(0, this->watch_.destroyed);
  EXPECT_EQ(object, second->get());
  delete second;
  EXPECT_EQ(1, this->watch_.destroyed);
}

TYPED_TEST(HandleTest, MovingCopies) {
  using Handle = typename TypeParam::Handle;
  Handle source(this->make());
  const Handle moved(std::move(source));
  EXPECT_NE(nullptr, moved.get());
  EXPECT_EQ(moved.get(), source.get());  // NOLINT(bugprone-use-after-move)
}

TYPED_TEST(HandleTest, AssignmentReleasesAndShares) {
  typename TypeParam::Handle target(this->make());
  auto* const object = this->make();
  {
    const typename TypeParam::Handle source(object);
    target = source;
    EXPECT_EQ(1, this->watch_.destroyed);
    EXPECT_EQ(object, target.get());
  }
  EXPECT_EQ(1, this->watch_.destroyed);
  target = typename TypeParam::Handle();
  EXPECT_EQ(2, this->watch_.destroyed);
  EXPECT_EQ(nullptr, target.get());
}

TYPED_TEST(HandleTest, AssignmentToItselfReleasesNothing) {
  typename TypeParam::Handle handle(this->make());
  auto* const object = handle.get();
  auto& same = handle;
  handle = same;
  EXPECT_EQ(0, this->watch_.destroyed);
  EXPECT_EQ(object, handle.get());
}

TYPED_TEST(HandleTest, AssignmentBetweenTwoThatShareKeepsTheObject) {
  using Handle = typename TypeParam::Handle;
  Handle first(this->make());
  {
    const Handle second(first);
    first = second;
    EXPECT_EQ(0, this->watch_.destroyed);
    EXPECT_EQ(second.get(), first.get());
  }
  EXPECT_EQ(0, this->watch_.destroyed);
  first.reset();
  EXPECT_EQ(1, this->watch_.destroyed);
}

TYPED_TEST(HandleTest, ResetOfTheLastDeletesTheObject) {
  typename TypeParam::Handle handle(this->make());
  handle.reset();
  EXPECT_EQ(1, this->watch_.destroyed);
  EXPECT_EQ(nullptr, handle.get());
  handle.reset();
  EXPECT_EQ(1, this->watch_.destroyed);
  auto* const object = this->make();
  handle.reset(object);
  EXPECT_EQ(object, handle.get());
  handle.reset(nullptr);
  EXPECT_EQ(2, this->watch_.destroyed);
}

TYPED_TEST(HandleTest, ResetOfASharedOneLeavesTheOthers) {
  using Handle = typename TypeParam::Handle;
  auto* const old_object = this->make();
  Handle first(old_object);
  const Handle second(first);
  auto* const new_object = this->make();
  first.reset(new_object);
  EXPECT_EQ(0, this->watch_.destroyed);
  EXPECT_EQ(old_object, second.get());
  EXPECT_EQ(new_object, first.get());
  first.reset();
  EXPECT_EQ(1, this->watch_.destroyed);
  EXPECT_EQ(old_object, second.get());
}

TEST(TrackDescriptorSharedPtr, ResetsAreConst) {
  Watch watch;
  const Media::TrackDescriptorSharedPtr handle(new WatchedDescriptor(watch));
  auto* const second = new WatchedDescriptor(watch);
  handle.reset(second);
  EXPECT_EQ(1, watch.destroyed);
  EXPECT_EQ(second, handle.get());
  handle.reset();
  EXPECT_EQ(2, watch.destroyed);
  EXPECT_EQ(nullptr, handle.get());
}

bool equal(Media::TrackDescriptorSharedPtr& a, const Media::TrackDescriptorSharedPtr& b) {
  return a == b;
}

TEST(TrackDescriptorSharedPtr, EqualMeansTheVerySameDescriptor) {
  Watch watch;
  Media::TrackDescriptorSharedPtr first(new WatchedDescriptor(watch));
  Media::TrackDescriptorSharedPtr clone(first->clone());
  Media::TrackDescriptorSharedPtr copy(first);
  Media::TrackDescriptorSharedPtr empty;
  EXPECT_TRUE(equal(first, first));
  EXPECT_TRUE(equal(first, copy));
  EXPECT_FALSE(equal(first, clone));
  EXPECT_FALSE(equal(first, empty));
  EXPECT_TRUE(equal(empty, Media::TrackDescriptorSharedPtr()));
}

}  // namespace
}  // namespace Korvane
