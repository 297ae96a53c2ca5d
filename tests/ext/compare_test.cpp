#include "ext/compare.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "foundation/media_sample_shared_ptr.h"
#include "media/data_track_descriptor.h"
#include "media/media_sample.h"
#include "media/umid.h"

namespace Korvane::CompareTests {
namespace {

template <typename... Types>
constexpr bool kNoneHasStdHash = (!std::is_default_constructible_v<std::hash<Types>> && ...);
static_assert(
    kNoneHasStdHash<Timecode, AudioInfo, ImageInfo, Media::CameraInfo, Media::MultiviewerConfig,
                    Media::MultiviewerSource, Media::MultiviewerSourceList, Media::SdpConfig,
                    Media::SrtSettings, Media::SRTStreamStatsData, Media::ST2110StreamStatsData,
                    Media::TrackDescriptorSharedPtr, Media::Umid, Rational32>);

template <typename T>
void expect_compared(const T& value, const T& same, const T& other) {
  EXPECT_TRUE(Ext::equal(value, same));
  EXPECT_TRUE(Ext::equal(value, value));
  EXPECT_FALSE(Ext::equal(value, other));
  EXPECT_FALSE(Ext::equal(other, value));
}

TEST(ExtCompare, EqualTakesConstObjectsOfEveryComparableClass) {
  using namespace Media;
  expect_compared(Timecode(25, 1LL, false), Timecode(25, 1LL, false), Timecode(25, 2LL, false));
  expect_compared(AudioInfo(16, 2, 48000), AudioInfo(16, 2, 48000), AudioInfo(24, 2, 48000));
  expect_compared(ImageInfo(Pal, Uyvy, Colorimetry(1)), ImageInfo(Pal, Uyvy, Colorimetry(1)),
                  ImageInfo(Pal, Uyvy, Colorimetry(2)));
  expect_compared(CameraInfo(Cameras(1)), CameraInfo(Cameras(1)), CameraInfo(Cameras(2)));
  expect_compared(MultiviewerConfig(L"a", 1, 2, 3, {25, 1}, true),
                  MultiviewerConfig(L"a", 1, 2, 3, {25, 1}, true),
                  MultiviewerConfig(L"a", 1, 2, 3, {50, 2}, true));
  const MultiviewerSource tile(1, L"a", 2, 3, 4, 5, true);
  expect_compared(tile, MultiviewerSource(tile), MultiviewerSource(1, L"a", 2, 3, 4, 5, false));
  MultiviewerSourceList one;
  one.add_source(tile);
  expect_compared(one, MultiviewerSourceList(one), MultiviewerSourceList());
  expect_compared(SdpConfig(SdpVideo, L"a", 1), SdpConfig(SdpVideo, L"a", 1), SdpConfig(SdpVideo));
  expect_compared(SrtSettings(), SrtSettings(2, 5), SrtSettings(2, 6));
  SRTStreamStatsData srt;
  srt.packets_sent(1);
  expect_compared(srt, SRTStreamStatsData(srt), SRTStreamStatsData());
  ST2110StreamStatsData st2110;
  st2110.error_frames(1);
  expect_compared(st2110, ST2110StreamStatsData(st2110), ST2110StreamStatsData());
  const TrackDescriptorSharedPtr handle(new DataTrackDescriptor);
  expect_compared(handle, TrackDescriptorSharedPtr(handle),
                  TrackDescriptorSharedPtr(new DataTrackDescriptor));
}

TEST(ExtCompare, EqualIsTheOperatorAlsoWhereThatLeavesOutFields) {
  EXPECT_TRUE(Ext::equal(Timecode(25, 4LL, false), Timecode(25, 29LL, false)));
}

// What converts to a comparable class is not compared by accident.
template <typename T, typename = void>
constexpr bool kHasEqual = false;
template <typename T>
constexpr bool
    kHasEqual<T, std::void_t<decltype(Ext::equal(std::declval<T>(), std::declval<T>()))>> = true;
static_assert(kHasEqual<Timecode> && kHasEqual<const Media::SdpConfig&>);
static_assert(!kHasEqual<Media::SdpType> && !kHasEqual<int> && !kHasEqual<Media::TrackDescriptor*>);

TEST(ExtCompare, SameLabelLooksAtTheWholeLabelAndNotAtTheDay) {
  const Ext::SameLabel same;
  const Timecode first(25, 4LL, false);
  EXPECT_TRUE(same(first, Timecode(25, 4 + 2160000LL, false)));
  EXPECT_FALSE(same(first, Timecode(25, 29LL, false)));                      // seconds
  EXPECT_FALSE(same(first, Timecode(25, 4 + 1500LL, false)));                // minutes
  EXPECT_FALSE(same(first, Timecode(25, 4 + 90000LL, false)));               // hours
  EXPECT_FALSE(same(first, Timecode(30, 4LL, false)));                       // rate
  EXPECT_FALSE(same(Timecode(30, 4LL, true), Timecode(30, 4LL, false)));     // counting
  EXPECT_FALSE(same(Timecode(50, 48LL, false), Timecode(50, 49LL, false)));  // field mark
}

TEST(ExtCompare, SameCountLooksAtTheDayToo) {
  const Ext::SameCount same;
  EXPECT_TRUE(same(Timecode(25, 4LL, false), Timecode(25, 0, 0, 0, 4, false, false)));
  EXPECT_FALSE(same(Timecode(25, 4LL, false), Timecode(25, 4 + 2160000LL, false)));
  EXPECT_FALSE(same(Timecode(25, 4LL, false), Timecode(30, 4LL, false)));
  EXPECT_FALSE(same(Timecode(30, 4LL, true), Timecode(30, 4LL, false)));
}

constexpr unsigned short kRates[] = {24, 25, 30, 50, 60};

// Hash and order agree with sameness, on timecodes that differ in each of the fields.
template <typename Same, typename Hash, typename Less>
void expect_keys_agree() {
  std::vector<Timecode> timecodes;
  for (const unsigned short rate : kRates)
    for (const bool drop : {false, true})
      for (const long long count : {-1LL, 0LL, 1LL, 4LL, 60LL, 2000LL, 120000LL, 2160004LL})
        timecodes.emplace_back(rate, count, drop);
  for (const Timecode& left : timecodes) {
    for (const Timecode& right : timecodes) {
      const bool same = Same()(left, right);
      EXPECT_EQ(same, !Less()(left, right) && !Less()(right, left));
      EXPECT_FALSE(Less()(left, right) && Less()(right, left));
      EXPECT_TRUE(!same || Hash()(left) == Hash()(right));
    }
  }
}

TEST(ExtCompare, HashesAndOrdersAgreeWithSameness) {
  expect_keys_agree<Ext::SameLabel, Ext::LabelHash, Ext::LabelLess>();
  expect_keys_agree<Ext::SameCount, Ext::CountHash, Ext::CountLess>();
}

TEST(ExtCompare, HashesTellTheFramesOfAMinuteApart) {
  std::set<std::size_t> labels;
  std::set<std::size_t> counts;
  for (long long count = 0; count < 1500; ++count) {
    labels.insert(Ext::LabelHash()(Timecode(25, count, false)));
    counts.insert(Ext::CountHash()(Timecode(25, count, false)));
  }
  EXPECT_LT(1490U, labels.size());
  EXPECT_LT(1490U, counts.size());
}

TEST(ExtCompare, TimecodesAreKeys) {
  std::unordered_map<Timecode, int, Ext::LabelHash, Ext::SameLabel> clips;
  clips.emplace(Timecode(25, 4LL, false), 1);
  clips.emplace(Timecode(25, 29LL, false), 2);
  EXPECT_EQ(2, clips.at(Timecode(25, 0, 0, 1, 4, false, false)));
  const std::set<Timecode, Ext::CountLess> marks = {Timecode(25, 9LL, false),
                                                    Timecode(25, -9LL, false)};
  EXPECT_EQ(-9, marks.begin()->frame_count());
}

TEST(ExtCompare, OrdersReadAsPeopleDo) {
  EXPECT_TRUE(Ext::LabelLess()(Timecode(25, 24LL, false), Timecode(24, 24LL, false)));
  EXPECT_TRUE(Ext::LabelLess()(Timecode(25, 2160000LL, false), Timecode(25, 1LL, false)));
  EXPECT_TRUE(Ext::CountLess()(Timecode(25, 1LL, false), Timecode(25, 2160000LL, false)));
}

TEST(ExtCompare, AnUnspecifiedColorimetryIsTheSameAsItselfOnly) {
  const ImageInfo unspecified(Media::Pal, Uyvy, ColorimetryUnspecified);
  const ImageInfo stated(Media::Pal, Uyvy, Colorimetry(1));
  EXPECT_TRUE(Ext::equal(unspecified, stated));
  EXPECT_FALSE(Ext::SameImage()(unspecified, stated));
  EXPECT_TRUE(Ext::SameImage()(stated, ImageInfo(stated)));
  EXPECT_EQ(Ext::ImageHash()(stated), Ext::ImageHash()(ImageInfo(stated)));
  EXPECT_NE(Ext::ImageHash()(stated), Ext::ImageHash()(unspecified));
}

TEST(ExtCompare, HandlesByTheirObject) {
  const Media::TrackDescriptorSharedPtr handle(new Media::DataTrackDescriptor);
  const Media::TrackDescriptorSharedPtr copy(handle);
  EXPECT_TRUE(Ext::SameObject()(handle, copy));
  EXPECT_EQ(Ext::ObjectHash()(handle), Ext::ObjectHash()(copy));
  EXPECT_FALSE(Ext::SameObject()(handle, Media::TrackDescriptorSharedPtr()));
  EXPECT_TRUE(Ext::SameObject()(Media::MediaSampleSharedPtr(), Media::MediaSampleSharedPtr()));
}

}  // namespace
}  // namespace Korvane::CompareTests
