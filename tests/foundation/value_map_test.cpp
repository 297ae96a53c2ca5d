#include "foundation/value_map.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace Korvane {
namespace {

TEST(ValueMap, IsAValueOnePointerWide) {
  static_assert(sizeof(ValueMap) == sizeof(void*));
  static_assert(!std::is_polymorphic_v<ValueMap>);
}

TEST(ValueMap, AnAbsentKeyIsZeroAndStaysAbsent) {
  const ValueMap map;
  EXPECT_EQ(0, map.value_for_key(0));
  EXPECT_EQ(0, map.value_for_key(7));
  EXPECT_EQ(0U, map.size());
}

TEST(ValueMap, TheFirstValueOfAKeyStays) {
  ValueMap map;
  map.value_for_key(7, 1);
  map.value_for_key(7, 2);
  EXPECT_EQ(1, map.value_for_key(7));
  EXPECT_EQ(1U, map.size());
}

TEST(ValueMap, AStoredZeroStaysToo) {
  ValueMap map;
  map.value_for_key(7, 0);
  map.value_for_key(7, 2);
  EXPECT_EQ(0, map.value_for_key(7));
  EXPECT_EQ(1U, map.size());
}

TEST(ValueMap, KeepsTheLimitsOfKeysAndValues) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kGreatest = std::numeric_limits<int>::max();
  ValueMap map;
  map.value_for_key(kLeast, kGreatest);
  map.value_for_key(kGreatest, kLeast);
  map.value_for_key(-1, -2);
  EXPECT_EQ(kGreatest, map.value_for_key(kLeast));
  EXPECT_EQ(kLeast, map.value_for_key(kGreatest));
  EXPECT_EQ(-2, map.value_for_key(-1));
  EXPECT_EQ(3U, map.size());
}

TEST(ValueMap, StoresThroughAConstMap) {
  const ValueMap map;
  map.value_for_key(3, 4);
  EXPECT_EQ(4, map.value_for_key(3));
}

TEST(ValueMap, CopiesAreIndependent) {
  ValueMap map;
  map.value_for_key(1, 10);
  const ValueMap copy(map);
  map.value_for_key(2, 20);
  copy.value_for_key(3, 30);
  EXPECT_EQ(2U, copy.size());
  EXPECT_EQ(10, copy.value_for_key(1));
  EXPECT_EQ(0, copy.value_for_key(2));
  EXPECT_EQ(0, map.value_for_key(3));
}

TEST(ValueMap, AssignmentReplacesTheContents) {
  ValueMap map;
  map.value_for_key(1, 10);
  ValueMap other;
  other.value_for_key(2, 20);
  map = other;
  other.value_for_key(3, 30);
  EXPECT_EQ(1U, map.size());
  EXPECT_EQ(0, map.value_for_key(1));
  EXPECT_EQ(20, map.value_for_key(2));
}

TEST(ValueMap, AssignmentToItselfKeepsTheContents) {
  ValueMap map;
  map.value_for_key(1, 10);
  const ValueMap& same = map;
  map = same;
  EXPECT_EQ(1U, map.size());
  EXPECT_EQ(10, map.value_for_key(1));
}

}  // namespace
}  // namespace Korvane
