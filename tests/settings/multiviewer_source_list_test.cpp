#include "media/multiviewer_source_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "media/multiviewer_source.h"
#include "support/raises.h"

namespace Korvane::Media::MultiviewerSourceListTests {
namespace {

using List = MultiviewerSourceList;

static_assert(sizeof(List) == sizeof(void*));
static_assert(!std::is_polymorphic_v<List>);
// As they were published.
static_assert(std::is_same_v<decltype(&List::operator==), bool (List::*)(const List&)>);
static_assert(std::is_same_v<decltype(&List::add_source), void (List::*)(MultiviewerSource)>);
static_assert(
    std::is_same_v<decltype(&List::source_at), MultiviewerSource (List::*)(Korvane::size_t) const>);

// Tile `id` of the channel of that number.
MultiviewerSource tile(int id) {
  return {id, (L"channel " + std::to_wstring(id)).c_str(), 640, 360, id * 640, 0, id == 1};
}

List list_of(std::initializer_list<int> ids) {
  List list;
  for (const int id : ids) list.add_source(tile(id));
  return list;
}

void expect_ids(std::initializer_list<int> ids, const List& list) {
  ASSERT_EQ(ids.size(), list.size());
  Korvane::size_t index = 0;
  for (const int id : ids) {
    const MultiviewerSource expected = tile(id);
    EXPECT_TRUE(list.source_at(index) == expected) << index;
    ++index;
  }
}

::testing::AssertionResult has_none_at(const List& list, Korvane::size_t index) {
  return raises(InvalidArgument, "Invalid position for Multiviewer Source List",
                [&] { list.source_at(index); });
}

TEST(MultiviewerSourceList, IsEmptyAtFirst) {
  const List list;
  EXPECT_EQ(0U, list.size());
  EXPECT_TRUE(has_none_at(list, 0));
}

TEST(MultiviewerSourceList, KeepsOrderAndDuplicates) {
  expect_ids({3, 1, 2, 1}, list_of({3, 1, 2, 1}));
}

TEST(MultiviewerSourceList, AnIndexPastTheEndIsAnError) {
  const List list = list_of({1, 2});
  for (const Korvane::size_t index :
       {Korvane::size_t{2}, Korvane::size_t{3}, std::numeric_limits<Korvane::size_t>::max()})
    EXPECT_TRUE(has_none_at(list, index)) << index;
}

TEST(MultiviewerSourceList, NothingChecksTheTiles) {
  List list;
  list.add_source(MultiviewerSource(1, L"", -1, 0, -5000, 5000, true));
  list.add_source(MultiviewerSource(1, L"", -1, 0, -5000, 5000, true));
  EXPECT_EQ(2U, list.size());
  EXPECT_EQ(-5000, list.source_at(1).x_offset());
}

TEST(MultiviewerSourceList, HoldsCopies) {
  MultiviewerSource source = tile(1);
  List list;
  list.add_source(source);
  source = tile(2);
  expect_ids({1}, list);
  MultiviewerSource taken = list.source_at(0);
  taken = tile(3);
  expect_ids({1}, list);
}

TEST(MultiviewerSourceList, TakesItsOwnElements) {
  List list = list_of({1, 2});
  for (int i = 0; i < 100; ++i) list.add_source(list.source_at(1));
  ASSERT_EQ(102U, list.size());
  for (Korvane::size_t i = 1; i < 102; ++i) EXPECT_EQ(2, list.source_at(i).id()) << i;
}

TEST(MultiviewerSourceList, IsEqualWhenTheSameTilesStandInTheSameOrder) {
  List list = list_of({1, 2});
  List same = list_of({1, 2});
  EXPECT_TRUE(list == same);
  EXPECT_TRUE(list == std::as_const(same));
  EXPECT_TRUE(list == std::as_const(list));
  const List empty;
  EXPECT_TRUE(List() == empty);
}

TEST(MultiviewerSourceList, DiffersByNumberOrderAndTile) {
  List list = list_of({1, 2});
  for (const List& other :
       {list_of({}), list_of({1}), list_of({2, 1}), list_of({1, 3}), list_of({3, 2}),
        list_of({1, 2, 3}), list_of({1, 1}), list_of({1, 2, 1, 2})}) {
    EXPECT_FALSE(list == other) << other.size();
    List changeable = other;
    EXPECT_FALSE(changeable == list) << other.size();
  }
}

TEST(MultiviewerSourceList, DiffersByTheCaseOfAChannel) {
  List lower;
  lower.add_source(MultiviewerSource(1, L"channel", 1, 1, 0, 0, false));
  List upper;
  upper.add_source(MultiviewerSource(1, L"CHANNEL", 1, 1, 0, 0, false));
  EXPECT_FALSE(lower == upper);
}

TEST(MultiviewerSourceList, CopiesAreDeep) {
  List original = list_of({1, 2});
  List copy(original);
  original.add_source(tile(3));
  expect_ids({1, 2}, copy);
  copy.add_source(tile(4));
  expect_ids({1, 2, 3}, original);
  copy = original;
  original = List();
  expect_ids({1, 2, 3}, copy);
  const List moved(std::move(copy));
  expect_ids({1, 2, 3}, moved);
  expect_ids({1, 2, 3}, copy);  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(MultiviewerSourceList, AssignmentToItselfKeepsTheTiles) {
  List list = list_of({1, 2});
  const List& same = list;
  list = same;
  expect_ids({1, 2}, list);
}

}  // namespace
}  // namespace Korvane::Media::MultiviewerSourceListTests
