// What handles and containers allocate, and what happens when there is no memory.

#include <gtest/gtest.h>

#include <new>

#include "support/allocations.h"
#include "support/watched.h"

namespace Korvane {
namespace {

using Allocations::counters;
using Allocations::Failure;
using Allocations::made_by;

template <typename Kind>
class HandleAllocations : public testing::Test {
 protected:
  typename Kind::Object* make() { return new typename Kind::Concrete(watch_); }

  Watch watch_;
};

using Kinds = testing::Types<SharedFrame, SharedFrameProvider, SharedSampleProvider,
                             SharedPerfListener, SharedSample, SharedDescriptor>;
TYPED_TEST_SUITE(HandleAllocations, Kinds, HandleNames);

TYPED_TEST(HandleAllocations, FourForAHandleAndOneForACopy) {
  using Handle = typename TypeParam::Handle;
  EXPECT_EQ(4, made_by([] { const Handle empty; }));
  EXPECT_EQ(4, made_by([] { const Handle of_null(nullptr); }));
  auto* const object = this->make();
  EXPECT_EQ(4, made_by([&] { const Handle handle(object); }));

  const Handle handle(this->make());
  EXPECT_EQ(1, made_by([&] { const Handle copy(handle); }));
  Handle target;
  EXPECT_EQ(1, made_by([&] { target = handle; }));
  EXPECT_EQ(1, made_by([&] { target = handle; }));
  auto& same = target;
  EXPECT_EQ(0, made_by([&] { target = same; }));
  EXPECT_EQ(3, made_by([&] { target.reset(); }));
  EXPECT_EQ(0, made_by([&] { static_cast<void>(target.get()); }));
}

TYPED_TEST(HandleAllocations, EverythingIsFreed) {
  using Handle = typename TypeParam::Handle;
  const long before = counters().live();
  {
    Handle handle(this->make());
    const Handle copy(handle);
    handle = Handle();
    handle.reset(this->make());
    handle.reset();
  }
  EXPECT_EQ(before, counters().live());
  EXPECT_EQ(0, this->watch_.alive());
}

// At the time when the old object goes nothing of the copy has been made.
TYPED_TEST(HandleAllocations, AssignmentAllocatesAfterItReleased) {
  typename TypeParam::Handle target(this->make());
  const typename TypeParam::Handle source(this->make());
  long made_at_release = -1;
  this->watch_.when_destroyed = [&] { made_at_release = counters().made; };
  const long before = counters().made;
  target = source;
  EXPECT_EQ(before, made_at_release);
  EXPECT_EQ(before + 1, counters().made);
  this->watch_.when_destroyed = [] {};
}

template <typename Operation>
bool fails_without_memory(long first_failing, Operation&& operation) {
  const Failure failure(first_failing);
  try {
    operation();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return false;
}

TYPED_TEST(HandleAllocations, AFailedConstructionDeletesTheObject) {
  using Handle = typename TypeParam::Handle;
  for (long first_failing = 1; first_failing <= 4; ++first_failing) {
    SCOPED_TRACE(first_failing);
    const long before = counters().live();
    auto* const object = this->make();
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { const Handle handle(object); }));
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { const Handle handle; }));
    EXPECT_EQ(0, this->watch_.alive());
    EXPECT_EQ(before, counters().live());
  }
  EXPECT_FALSE(fails_without_memory(5, [&] { const Handle handle; }));
}

TYPED_TEST(HandleAllocations, AFailedCopyLeavesTheSource) {
  using Handle = typename TypeParam::Handle;
  const long before = counters().live();
  {
    auto* const object = this->make();
    const Handle handle(object);
    EXPECT_TRUE(fails_without_memory(1, [&] { const Handle copy(handle); }));
    EXPECT_EQ(object, handle.get());
    const Handle copy(handle);
    EXPECT_EQ(object, copy.get());
    EXPECT_EQ(0, this->watch_.destroyed);
  }
  EXPECT_EQ(1, this->watch_.destroyed);
  EXPECT_EQ(before, counters().live());
}

// Everything that can be done with a handle that has lost what it held.
template <typename Handle, typename Make>
void expect_usable(Handle& handle, Make&& make) {
  EXPECT_EQ(nullptr, handle.get());
  EXPECT_EQ(nullptr, handle.operator->());
  const Handle copy(handle);
  EXPECT_EQ(nullptr, copy.get());
  Handle target(make());
  target = handle;
  EXPECT_EQ(nullptr, target.get());
  handle = copy;
  EXPECT_EQ(nullptr, handle.get());
  handle.reset();
  EXPECT_EQ(nullptr, handle.get());
}

TYPED_TEST(HandleAllocations, AFailedAssignmentLeavesBothUsable) {
  using Handle = typename TypeParam::Handle;
  const long before = counters().live();
  {
    Handle target(this->make());
    auto* const object = this->make();
    const Handle source(object);
    EXPECT_TRUE(fails_without_memory(1, [&] { target = source; }));
    EXPECT_EQ(1, this->watch_.destroyed);
    EXPECT_EQ(object, source.get());
    expect_usable(target, [&] { return this->make(); });
    target = source;
    EXPECT_EQ(object, target.get());
  }
  EXPECT_EQ(0, this->watch_.alive());
  EXPECT_EQ(before, counters().live());
}

TYPED_TEST(HandleAllocations, AFailedAssignmentLeavesADestructibleHandle) {
  using Handle = typename TypeParam::Handle;
  const long before = counters().live();
  {
    Handle target;
    const Handle source(this->make());
    EXPECT_TRUE(fails_without_memory(1, [&] { target = source; }));
  }
  EXPECT_EQ(before, counters().live());
}

TYPED_TEST(HandleAllocations, AFailedResetDeletesTheObjectAndLeavesAUsableHandle) {
  using Handle = typename TypeParam::Handle;
  for (long first_failing = 1; first_failing <= 3; ++first_failing) {
    SCOPED_TRACE(first_failing);
    const long before = counters().live();
    {
      Handle handle(this->make());
      const Handle other(handle);
      auto* const object = this->make();
      EXPECT_TRUE(fails_without_memory(first_failing, [&] { handle.reset(object); }));
      EXPECT_EQ(1, this->watch_.alive());  // the one of `other`
      EXPECT_NE(nullptr, other.get());
      expect_usable(handle, [&] { return this->make(); });
    }
    EXPECT_EQ(0, this->watch_.alive());
    EXPECT_EQ(before, counters().live());
  }
}

TEST(ContainerAllocations, AFailedOperationLeavesAList) {
  Media::UIntList list;
  list.add_value(1);
  Media::UIntList other;
  other.add_value(2);
  other.add_value(3);
  for (long first_failing = 1; first_failing <= 2; ++first_failing) {
    SCOPED_TRACE(first_failing);
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { list = other; }));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(1U, *list.value_at(0));
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { const Media::UIntList copy(other); }));
  }
  EXPECT_TRUE(fails_without_memory(1, [&] {
    while (true) list.add_value(7);
  }));
  EXPECT_EQ(1U, *list.value_at(0));
  EXPECT_TRUE(fails_without_memory(1, [] { const Media::UIntList fresh; }));
}

TEST(ContainerAllocations, AFailedOperationLeavesAMap) {
  ValueMap map;
  map.value_for_key(1, 10);
  ValueMap other;
  other.value_for_key(2, 20);
  EXPECT_TRUE(fails_without_memory(1, [&] { map.value_for_key(3, 30); }));
  for (long first_failing = 1; first_failing <= 2; ++first_failing) {
    SCOPED_TRACE(first_failing);
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { map = other; }));
    EXPECT_TRUE(fails_without_memory(first_failing, [&] { const ValueMap copy(other); }));
  }
  EXPECT_EQ(1U, map.size());
  EXPECT_EQ(10, map.value_for_key(1));
  EXPECT_TRUE(fails_without_memory(1, [] { const ValueMap fresh; }));
}

// The first calls in this process: a failed one leaves nothing behind, and the next one tries
// again.
TEST(SingletonAllocations, AFailedFirstCallIsTriedAgain) {
  for (long first_failing = 1; first_failing <= 2; ++first_failing) {
    SCOPED_TRACE(first_failing);
    const long before = counters().live();
    EXPECT_TRUE(
        fails_without_memory(first_failing, [] { AdditionalProcessHandlerSingleton::instance(); }));
    EXPECT_TRUE(
        fails_without_memory(first_failing, [] { StorageAuthenticationSingleton::instance(); }));
    EXPECT_TRUE(fails_without_memory(first_failing,
                                     [] { Media::EncodingPerfListenerSingleton::instance(); }));
    EXPECT_EQ(before, counters().live());
  }
  auto& singleton = Media::EncodingPerfListenerSingleton::instance();
  EXPECT_EQ(5, made_by([&] { singleton.new_encoding_perf_listener("encoder"); }));
  for (long first_failing = 1; first_failing <= 5; ++first_failing)
    EXPECT_TRUE(fails_without_memory(first_failing,
                                     [&] { singleton.new_encoding_perf_listener("encoder"); }));
}

}  // namespace
}  // namespace Korvane
