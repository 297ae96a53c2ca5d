#include "foundation/base_shared_ptr.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

namespace Korvane::Utils {
namespace {

TEST(RefCount, CountsFromOneAndGoesAtZero) {
  static_assert(std::has_virtual_destructor_v<RefCount>);
  static_assert(sizeof(RefCount) == 2 * sizeof(void*));
  auto* const count = new RefCount;
  EXPECT_EQ(2U, count->increment());
  EXPECT_EQ(3U, count->increment());
  EXPECT_EQ(2U, count->decrement());
  EXPECT_EQ(1U, count->decrement());
  EXPECT_EQ(0U, count->decrement());  // and is gone, as the leak check sees
}

struct Flag {
  explicit Flag(bool& flag) : gone(flag) {}
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;
  ~Flag() { gone = true; }
  bool& gone;
};

TEST(BaseSharedPtr, HoldsThreePointersBehindItsTable) {
  static_assert(std::has_virtual_destructor_v<BaseSharedPtr<Flag>>);
  static_assert(sizeof(BaseSharedPtr<Flag>) == 4 * sizeof(void*));
}

TEST(BaseSharedPtr, ReleaseGivesUpOneShare) {
  bool gone = false;
  BaseSharedPtr<Flag> first(new Flag(gone));
  BaseSharedPtr<Flag> second(first);
  EXPECT_EQ(first.get(), second.get());
  first.release();
  EXPECT_FALSE(gone);
  EXPECT_EQ(nullptr, first.get());
  second.release();
  EXPECT_TRUE(gone);
}

TEST(BaseSharedPtr, ReleasingNothingIsALockError) {
  bool gone = false;
  BaseSharedPtr<Flag> share(new Flag(gone));
  share.release();
  try {
    share.release();
    FAIL() << "released twice";
  } catch (const boost::lock_error& error) {
    EXPECT_EQ(0U, std::string(error.what()).find("boost unique_lock has no mutex"));
  }
}

TEST(BaseSharedPtr, OneWithoutAShareStaysUsable) {
  bool gone = false;
  BaseSharedPtr<Flag> share(nullptr);
  share.release();
  share.release_if_held();
  const BaseSharedPtr<Flag> copy(share);
  EXPECT_EQ(nullptr, copy.get());
  share.reset(new Flag(gone));
  EXPECT_NE(nullptr, share.get());
  share.reset(nullptr);
  EXPECT_TRUE(gone);
}

}  // namespace
}  // namespace Korvane::Utils
