#include "foundation/uint_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace Korvane::Media {
namespace {

constexpr unsigned int kGreatest = std::numeric_limits<unsigned int>::max();

TEST(UIntList, IsAValueOnePointerWide) {
  static_assert(sizeof(UIntList) == sizeof(void*));
  static_assert(!std::is_polymorphic_v<UIntList>);
}

TEST(UIntList, IsEmptyAtFirst) {
  const UIntList list;
  EXPECT_EQ(0U, list.size());
  EXPECT_EQ(nullptr, list.value_at(0));
}

TEST(UIntList, KeepsOrderAndDuplicates) {
  constexpr unsigned int kValues[] = {7, 0, 7, kGreatest, 1};
  UIntList list;
  for (const unsigned int value : kValues) list.add_value(value);
  ASSERT_EQ(5U, list.size());
  for (Korvane::size_t i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    ASSERT_NE(nullptr, list.value_at(i));
    EXPECT_EQ(kValues[i], *list.value_at(i));
  }
}

TEST(UIntList, AnIndexPastTheEndGivesNull) {
  UIntList list;
  list.add_value(1);
  EXPECT_EQ(nullptr, list.value_at(1));
  EXPECT_EQ(nullptr, list.value_at(std::numeric_limits<Korvane::size_t>::max()));
}

TEST(UIntList, TakesAValueOfItsOwn) {
  UIntList list;
  list.add_value(3);
  for (int i = 0; i < 1000; ++i) list.add_value(*list.value_at(0));
  EXPECT_EQ(1001U, list.size());
  EXPECT_EQ(3U, *list.value_at(1000));
}

TEST(UIntList, CopiesAreIndependent) {
  UIntList list;
  list.add_value(1);
  UIntList copy(list);
  list.add_value(2);
  EXPECT_EQ(1U, copy.size());
  EXPECT_NE(list.value_at(0), copy.value_at(0));
  copy.add_value(9);
  EXPECT_EQ(2U, *list.value_at(1));
  EXPECT_EQ(9U, *copy.value_at(1));
}

TEST(UIntList, AssignmentReplacesTheContents) {
  UIntList list;
  list.add_value(1);
  list.add_value(2);
  UIntList other;
  other.add_value(3);
  list = other;
  other.add_value(4);
  ASSERT_EQ(1U, list.size());
  EXPECT_EQ(3U, *list.value_at(0));
}

TEST(UIntList, AssignmentToItselfKeepsTheContents) {
  UIntList list;
  list.add_value(5);
  const unsigned int* const value = list.value_at(0);
  const UIntList& same = list;
  list = same;
  ASSERT_EQ(1U, list.size());
  EXPECT_EQ(value, list.value_at(0));
  EXPECT_EQ(5U, *value);
}

}  // namespace
}  // namespace Korvane::Media
