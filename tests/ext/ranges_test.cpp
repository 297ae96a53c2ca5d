#include "ext/ranges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <type_traits>
#include <vector>
#if __has_include(<ranges>)
#include <ranges>
#endif

#include "media/data_track_descriptor.h"
#include "media/picture_track_descriptor.h"

namespace Korvane::RangesTests {
namespace {

using namespace Media;

template <typename List>
using ReferenceOf = decltype(*begin(std::declval<const List&>()));
static_assert(std::is_same_v<ReferenceOf<UIntList>, const unsigned int&>);
static_assert(std::is_same_v<ReferenceOf<TrackDescriptorList>, const TrackDescriptor&>);
static_assert(std::is_same_v<ReferenceOf<TrackBitRatesList>, const TrackBitRates&>);
static_assert(std::is_same_v<ReferenceOf<SRTStreamStatsDataList>, const SRTStreamStatsData&>);
static_assert(std::is_same_v<ReferenceOf<ST2110StreamStatsDataList>, const ST2110StreamStatsData&>);
static_assert(std::is_same_v<ReferenceOf<AudioPowerList>, Ext::AudioPower>);
static_assert(std::is_same_v<ReferenceOf<AudioTrackConfig>, unsigned int>);
static_assert(std::is_same_v<ReferenceOf<MultiviewerSourceList>, MultiviewerSource>);

#if defined(__cpp_lib_ranges)
static_assert(std::ranges::random_access_range<const UIntList>);
static_assert(std::ranges::random_access_range<UIntList>);
static_assert(std::ranges::random_access_range<TrackDescriptorList>);
static_assert(std::ranges::random_access_range<TrackBitRatesList>);
static_assert(std::ranges::random_access_range<SRTStreamStatsDataList>);
static_assert(std::ranges::random_access_range<ST2110StreamStatsDataList>);
static_assert(std::ranges::random_access_range<AudioPowerList>);
static_assert(std::ranges::random_access_range<AudioTrackConfig>);
static_assert(std::ranges::random_access_range<MultiviewerSourceList>);
#endif

UIntList numbers(std::initializer_list<unsigned int> values) {
  UIntList list;
  for (const unsigned int value : values) list.add_value(value);
  return list;
}

TEST(ExtRanges, RangeForSeesEachElementInItsOrder) {
  std::vector<unsigned int> seen;
  for (const unsigned int& value : numbers({3, 1, 2})) seen.push_back(value);
  EXPECT_EQ((std::vector<unsigned int>{3, 1, 2}), seen);
  for (const unsigned int value : UIntList()) ADD_FAILURE() << value;
}

TEST(ExtRanges, GivesTheElementsThemselves) {
  TrackDescriptorList tracks;
  tracks.add_track(DataTrackDescriptor());
  tracks.add_track(PictureTrackDescriptor());
  Korvane::size_t index = 0;
  for (const TrackDescriptor& track : tracks) EXPECT_EQ(tracks.track_at(index++), &track);
  EXPECT_EQ(2U, index);
}

TEST(ExtRanges, EveryOtherListToo) {
  TrackBitRatesList rates;
  rates.add_track(TrackBitRates(EssencePcm, 5));
  for (const TrackBitRates& track : rates) EXPECT_EQ(rates.track_at(0), &track);

  SRTStreamStatsDataList srt;
  SRTStreamStatsData sample;
  sample.packets_lost(1);
  srt.add_value(SRTStreamStatsData());
  srt.add_value(sample);
  EXPECT_EQ(1, std::count_if(begin(srt), end(srt),
                             [](const SRTStreamStatsData& one) { return one.packets_lost() > 0; }));

  ST2110StreamStatsDataList st2110;
  st2110.add_value(ST2110StreamStatsData());
  EXPECT_EQ(st2110.value_at(0), &*begin(st2110));
  EXPECT_EQ(1, end(st2110) - begin(st2110));

  AudioPowerList powers;
  powers.add_value(-20, false);
  powers.add_value(-3, true);
  const auto muted = std::find_if(begin(powers), end(powers),
                                  [](const Ext::AudioPower& reading) { return reading.muted; });
  EXPECT_EQ(1, muted - begin(powers));
  EXPECT_EQ(-3, muted->power);

  AudioTrackConfig channels;
  channels.add_source_channel(7);
  channels.add_source_channel(8);
  EXPECT_EQ(15U, std::accumulate(begin(channels), end(channels), 0U));

  MultiviewerSourceList tiles;
  tiles.add_source(MultiviewerSource(1, L"A", 10, 10, 0, 0, false));
  tiles.add_source(MultiviewerSource(2, L"B", 20, 10, 10, 0, false));
  int width = 0;
  for (const MultiviewerSource& tile : tiles) width += tile.width();
  EXPECT_EQ(30, width);
  EXPECT_STREQ(L"B", (begin(tiles) + 1)->channel_id());
}

TEST(ExtRanges, StandardAlgorithms) {
  const UIntList list = numbers({1, 2, 4, 8, 16});
  EXPECT_EQ(8U, *std::lower_bound(begin(list), end(list), 5U));
  EXPECT_EQ(16U, *std::max_element(begin(list), end(list)));
  EXPECT_TRUE(std::is_sorted(begin(list), end(list)));
  const std::vector<unsigned int> backwards(std::make_reverse_iterator(end(list)),
                                            std::make_reverse_iterator(begin(list)));
  EXPECT_EQ((std::vector<unsigned int>{16, 8, 4, 2, 1}), backwards);
#if defined(__cpp_lib_ranges)
  EXPECT_EQ(5U, std::ranges::size(list));
  EXPECT_EQ(2, std::ranges::count_if(list, [](unsigned int value) { return value > 4; }));
#endif
}

TEST(ExtRanges, IteratorsStepByAnyNumber) {
  const UIntList list = numbers({10, 11, 12, 13});
  auto at = begin(list);
  EXPECT_EQ(12U, at[2]);
  EXPECT_EQ(11U, *++at);
  EXPECT_EQ(11U, *at++);
  EXPECT_EQ(12U, *at--);
  EXPECT_EQ(10U, *--at);
  EXPECT_EQ(13U, *(at += 3));
  EXPECT_EQ(11U, *(at -= 2));
  EXPECT_EQ(13U, *(2 + at));
  EXPECT_EQ(10U, *(at - 1));
  EXPECT_EQ(-1, begin(list) - at);
  EXPECT_TRUE(begin(list) < at && at > begin(list));
  EXPECT_TRUE(at <= at && at >= at && at == at && at != end(list));
  EXPECT_TRUE(Ext::ListIterator<UIntList>() == Ext::ListIterator<UIntList>());
}

TEST(ExtRanges, AnIteratorStaysValidWhileTheListGrows) {
  UIntList list = numbers({1});
  const auto first = begin(list);
  for (unsigned int value = 2; value < 1000; ++value) list.add_value(value);
  EXPECT_EQ(1U, *first);
  EXPECT_EQ(999U, first[998]);
}

}  // namespace
}  // namespace Korvane::RangesTests
