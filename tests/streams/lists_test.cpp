// The lists of statistics samples and of bit rates, which work alike.

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "media/srt_stream_stats_data.h"
#include "media/srt_stream_stats_data_list.h"
#include "media/st2110_stream_stats_data.h"
#include "media/st2110_stream_stats_data_list.h"
#include "media/track_bit_rates.h"
#include "media/track_bit_rates_list.h"

namespace Korvane::Media::ListsTests {
namespace {

// How each list is used, with elements that are told apart by a number.
struct SrtSamples {
  using List = SRTStreamStatsDataList;
  using Element = SRTStreamStatsData;
  static void mark(Element& element, unsigned int number) { element.pkt_flow_window(number); }
  static unsigned long long mark_of(const Element& element) { return element.pkt_flow_window(); }
  static void add(List& list, const Element& element) { list.add_value(element); }
  static const Element* at(const List& list, Korvane::size_t index) { return list.value_at(index); }
};

struct St2110Samples {
  using List = ST2110StreamStatsDataList;
  using Element = ST2110StreamStatsData;
  static void mark(Element& element, unsigned int number) { element.error_frames(number); }
  static unsigned long long mark_of(const Element& element) { return element.error_frames(); }
  static void add(List& list, const Element& element) { list.add_value(element); }
  static const Element* at(const List& list, Korvane::size_t index) { return list.value_at(index); }
};

struct BitRates {
  using List = TrackBitRatesList;
  using Element = TrackBitRates;
  static void mark(Element& element, unsigned int number) { element.bit_rate(number); }
  static unsigned long long mark_of(const Element& element) { return element.bit_rate(); }
  static void add(List& list, const Element& element) { list.add_track(element); }
  static const Element* at(const List& list, Korvane::size_t index) { return list.track_at(index); }
};

static_assert(std::is_same_v<decltype(&SRTStreamStatsDataList::add_value),
                             void (SRTStreamStatsDataList::*)(SRTStreamStatsData)>);
static_assert(
    std::is_same_v<decltype(&SRTStreamStatsDataList::value_at),
                   const SRTStreamStatsData* (SRTStreamStatsDataList::*)(Korvane::size_t) const>);
static_assert(std::is_same_v<decltype(&ST2110StreamStatsDataList::add_value),
                             void (ST2110StreamStatsDataList::*)(ST2110StreamStatsData)>);
static_assert(std::is_same_v<
              decltype(&ST2110StreamStatsDataList::value_at),
              const ST2110StreamStatsData* (ST2110StreamStatsDataList::*)(Korvane::size_t) const>);
static_assert(std::is_same_v<decltype(&TrackBitRatesList::add_track),
                             void (TrackBitRatesList::*)(const TrackBitRates&)>);
static_assert(std::is_same_v<decltype(&TrackBitRatesList::track_at),
                             const TrackBitRates* (TrackBitRatesList::*)(Korvane::size_t) const>);

template <typename Kind>
typename Kind::Element element(unsigned int number) {
  typename Kind::Element result;
  Kind::mark(result, number);
  return result;
}

template <typename Kind>
typename Kind::List list_of(std::initializer_list<unsigned int> numbers) {
  typename Kind::List list;
  for (const unsigned int number : numbers) Kind::add(list, element<Kind>(number));
  return list;
}

template <typename Kind>
void expect_list(const typename Kind::List& list, std::initializer_list<unsigned int> numbers) {
  ASSERT_EQ(numbers.size(), list.size());
  Korvane::size_t index = 0;
  for (const unsigned int number : numbers) {
    SCOPED_TRACE(index);
    const typename Kind::Element* const found = Kind::at(list, index++);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(number, Kind::mark_of(*found));
  }
}

template <typename Kind>
class StreamLists : public ::testing::Test {};

struct ListNames {
  template <typename Kind>
  static std::string GetName(int /*index*/) {  // NOLINT(readability-identifier-naming)
    if constexpr (std::is_same_v<Kind, SrtSamples>) return "SRTStreamStatsDataList";
    if constexpr (std::is_same_v<Kind, St2110Samples>) return "ST2110StreamStatsDataList";
    if constexpr (std::is_same_v<Kind, BitRates>) return "TrackBitRatesList";
  }
};

using Lists = ::testing::Types<SrtSamples, St2110Samples, BitRates>;
TYPED_TEST_SUITE(StreamLists, Lists, ListNames);

TYPED_TEST(StreamLists, AreOnePointerWide) {
  static_assert(sizeof(typename TypeParam::List) == sizeof(void*));
  static_assert(!std::is_polymorphic_v<typename TypeParam::List>);
}

TYPED_TEST(StreamLists, AreEmptyAtFirst) {
  const typename TypeParam::List list;
  EXPECT_EQ(0U, list.size());
  EXPECT_EQ(nullptr, TypeParam::at(list, 0));
}

TYPED_TEST(StreamLists, KeepOrderAndEqualElements) {
  expect_list<TypeParam>(list_of<TypeParam>({7, 0, 7, 4294967295U, 1}), {7, 0, 7, 4294967295U, 1});
}

TYPED_TEST(StreamLists, AnIndexPastTheEndGivesNull) {
  const auto list = list_of<TypeParam>({1, 2});
  EXPECT_EQ(nullptr, TypeParam::at(list, 2));
  EXPECT_EQ(nullptr, TypeParam::at(list, std::numeric_limits<Korvane::size_t>::max()));
}

TYPED_TEST(StreamLists, HoldCopies) {
  auto added = element<TypeParam>(1);
  typename TypeParam::List list;
  TypeParam::add(list, added);
  TypeParam::mark(added, 2);
  expect_list<TypeParam>(list, {1});
  auto taken = *TypeParam::at(list, 0);
  TypeParam::mark(taken, 3);
  expect_list<TypeParam>(list, {1});
}

TYPED_TEST(StreamLists, TakeAnElementOfTheirOwn) {
  auto list = list_of<TypeParam>({3});
  for (int i = 0; i < 1000; ++i) TypeParam::add(list, *TypeParam::at(list, 0));
  ASSERT_EQ(1001U, list.size());
  EXPECT_EQ(3U, TypeParam::mark_of(*TypeParam::at(list, 0)));
  EXPECT_EQ(3U, TypeParam::mark_of(*TypeParam::at(list, 1000)));
}

TYPED_TEST(StreamLists, CopiesAreIndependent) {
  auto source = list_of<TypeParam>({1, 2});
  auto copy(source);
  EXPECT_NE(TypeParam::at(source, 0), TypeParam::at(copy, 0));
  TypeParam::add(source, element<TypeParam>(3));
  TypeParam::add(copy, element<TypeParam>(4));
  expect_list<TypeParam>(source, {1, 2, 3});
  expect_list<TypeParam>(copy, {1, 2, 4});
}

TYPED_TEST(StreamLists, MovingCopies) {
  auto source = list_of<TypeParam>({1, 2});
  const auto moved(std::move(source));
  expect_list<TypeParam>(moved, {1, 2});
  expect_list<TypeParam>(source, {1, 2});  // NOLINT(bugprone-use-after-move)
}

TYPED_TEST(StreamLists, AssignmentReplacesTheContents) {
  auto target = list_of<TypeParam>({1, 2, 3});
  auto source = list_of<TypeParam>({4});
  target = source;
  TypeParam::add(source, element<TypeParam>(5));
  expect_list<TypeParam>(target, {4});
}

TYPED_TEST(StreamLists, AssignmentToThemselvesDoesNothing) {
  auto list = list_of<TypeParam>({1, 2});
  const auto* const first = TypeParam::at(list, 0);
  const auto& same = list;
  list = same;
  EXPECT_EQ(first, TypeParam::at(list, 0));
  expect_list<TypeParam>(list, {1, 2});
}

TEST(TrackBitRatesList, KeepsTracksOfOneKindApart) {
  TrackBitRatesList list;
  list.add_track(TrackBitRates(EssencePcm, 1152000));
  list.add_track(TrackBitRates(EssencePcm, 2304000));
  ASSERT_EQ(2U, list.size());
  TrackBitRates first(*list.track_at(0));
  TrackBitRates second(*list.track_at(1));
  EXPECT_EQ(EssencePcm, first.essence_kind());
  EXPECT_EQ(1152000U, first.bit_rate());
  EXPECT_EQ(EssencePcm, second.essence_kind());
  EXPECT_EQ(2304000U, second.bit_rate());
}

}  // namespace
}  // namespace Korvane::Media::ListsTests
