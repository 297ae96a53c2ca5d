// What is allocated, and what happens when there is no memory.

#include <gtest/gtest.h>

#include "media/audio_power_list.h"
#include "media/audio_track_config.h"
#include "media/camera_info.h"
#include "media/interplay_web_service.h"
#include "media/multiviewer_config.h"
#include "media/multiviewer_source.h"
#include "media/multiviewer_source_list.h"
#include "support/without_memory.h"

namespace Korvane::Media::AllocationTests {
namespace {

using Allocations::made_by;
using Allocations::run_with_ever_more_memory;

const char* const kOld = "a text that is too long for a short buffer";
const char* const kNew = "another text that is too long for the buffer of the former one";
const wchar_t* const kWideOld = L"a text that is too long for a short buffer";
const wchar_t* const kWideNew = L"another text that is too long for the buffer of the former one";

constexpr auto camera_of(unsigned int value) { return static_cast<Cameras>(value); }
constexpr auto state_of(unsigned int value) { return static_cast<CameraState>(value); }

CameraInfo old_camera() { return {camera_of(1), state_of(1), false, kOld}; }

void expect_camera(CameraInfo& info, unsigned int value, const char* name) {
  EXPECT_EQ(camera_of(1), info.camera());
  EXPECT_EQ(state_of(value), info.state());
  EXPECT_EQ(value == 2, info.recording());
  EXPECT_STREQ(name, info.clip_name());
}

TEST(SettingAllocations, ReadingAndComparingNeedsNone) {
  CameraInfo camera = old_camera();
  MultiviewerSourceList list;
  list.add_source(MultiviewerSource(1, kWideOld, 1, 1, 0, 0, true));
  MultiviewerSourceList same(list);
  EXPECT_EQ(0, made_by([&] {
              EXPECT_TRUE(camera == camera);
              EXPECT_TRUE(list == same);
              camera.state(state_of(2));
              camera.recording(true);
              static_cast<void>(camera.clip_name());
            }));
}

TEST(SettingAllocations, AClipNameWithoutMemoryChangesNothing) {
  EXPECT_LT(0,
            run_with_ever_more_memory(
                [] { return old_camera(); }, [](CameraInfo& info) { info.clip_name(kNew); },
                [](CameraInfo& info, bool done) { expect_camera(info, 1, done ? kNew : kOld); }));
}

TEST(SettingAllocations, AnUpdateWithoutMemoryChangesNothing) {
  EXPECT_LT(0, run_with_ever_more_memory(
                   [] { return old_camera(); },
                   [](CameraInfo& info) { info.update_info(state_of(2), true, kNew); },
                   [](CameraInfo& info, bool done) {
                     expect_camera(info, done ? 2 : 1, done ? kNew : kOld);
                   }));
}

TEST(SettingAllocations, ACameraThatCannotBeAssignedStaysAsItWas) {
  const CameraInfo source(camera_of(1), state_of(2), true, kNew);
  EXPECT_LT(0, run_with_ever_more_memory([] { return old_camera(); },
                                         [&](CameraInfo& info) { info = source; },
                                         [](CameraInfo& info, bool done) {
                                           expect_camera(info, done ? 2 : 1, done ? kNew : kOld);
                                         }));
}

// Of n channels: 0, 1, 2 ...
AudioTrackConfig channels(unsigned int count) {
  AudioTrackConfig config;
  for (unsigned int i = 0; i < count; ++i) config.add_source_channel(i);
  return config;
}

void expect_channels(const AudioTrackConfig& config, unsigned int count) {
  ASSERT_EQ(count, config.source_channel_count());
  for (unsigned int i = 0; i < count; ++i) EXPECT_EQ(i, config.source_channel_for_index(i));
}

TEST(SettingAllocations, AChannelWithoutMemoryIsNotAdded) {
  long failed = 0;
  for (unsigned int count = 0; count < 70; ++count)
    failed += run_with_ever_more_memory(
        [&] { return channels(count); },
        [&](AudioTrackConfig& config) { config.add_source_channel(count); },
        [&](const AudioTrackConfig& config, bool done) {
          expect_channels(config, done ? count + 1 : count);
        });
  EXPECT_LT(0, failed);
}

TEST(SettingAllocations, ATrackThatCannotBeAssignedStaysAsItWas) {
  const AudioTrackConfig source = channels(5);
  EXPECT_LT(0, run_with_ever_more_memory([] { return channels(3); },
                                         [&](AudioTrackConfig& config) { config = source; },
                                         [](const AudioTrackConfig& config, bool done) {
                                           expect_channels(config, done ? 5 : 3);
                                         }));
}

// Of n tracks, all muted.
AudioPowerList powers(unsigned int count) {
  AudioPowerList list;
  for (unsigned int i = 0; i < count; ++i) list.add_value(i, true);
  return list;
}

void expect_powers(const AudioPowerList& list, unsigned int count) {
  ASSERT_EQ(count, list.size());
  for (unsigned int i = 0; i < count; ++i) {
    EXPECT_EQ(i, *list.track_at(i));
    EXPECT_TRUE(list.track_muted_at(i));
  }
  EXPECT_EQ(nullptr, list.track_at(count));
  EXPECT_FALSE(list.track_muted_at(count));
}

TEST(SettingAllocations, AReadingWithoutMemoryIsNotAdded) {
  long failed = 0;
  for (unsigned int count = 0; count < 140; ++count)
    failed += run_with_ever_more_memory([&] { return powers(count); },
                                        [&](AudioPowerList& list) { list.add_value(count, true); },
                                        [&](const AudioPowerList& list, bool done) {
                                          expect_powers(list, done ? count + 1 : count);
                                        });
  EXPECT_LT(0, failed);
}

TEST(SettingAllocations, AfterAFailureReadingsAreAddedAsBefore) {
  for (unsigned int count = 0; count < 140; ++count) {
    AudioPowerList list = powers(count);
    for (long failing = 1; failing < 4; ++failing)
      if (Allocations::done_without_memory([&] { list.add_value(count, true); }, failing)) break;
    ASSERT_EQ(count + 1, list.size());
    list.add_value(-1.0, false);
    list.add_value(-2.0, true);
    AudioPowerList copy(list);
    for (const AudioPowerList* each : {&list, &copy}) {
      ASSERT_EQ(count + 3, each->size());
      EXPECT_TRUE(each->track_muted_at(count));
      EXPECT_FALSE(each->track_muted_at(count + 1));
      EXPECT_TRUE(each->track_muted_at(count + 2));
    }
  }
}

TEST(SettingAllocations, PowersThatCannotBeAssignedStayAsTheyWere) {
  const AudioPowerList source = powers(5);
  EXPECT_LT(0,
            run_with_ever_more_memory(
                [] { return powers(3); }, [&](AudioPowerList& list) { list = source; },
                [](const AudioPowerList& list, bool done) { expect_powers(list, done ? 5 : 3); }));
}

InterplayWebService service_of(const char* text) { return {text, 80, text, text, text, true, 30}; }

TEST(SettingAllocations, AServiceIsMadeOrNot) {
  EXPECT_LT(0,
            run_with_ever_more_memory(
                [] { return 0; }, [](int) { const InterplayWebService service = service_of(kOld); },
                [](int, bool) {}));
}

TEST(SettingAllocations, AServiceThatCannotBeAssignedStaysAsItWas) {
  const InterplayWebService source = service_of(kNew);
  EXPECT_LT(0, run_with_ever_more_memory([] { return service_of(kOld); },
                                         [&](InterplayWebService& service) { service = source; },
                                         [&](const InterplayWebService& service, bool done) {
                                           const InterplayWebService expected =
                                               service_of(done ? kNew : kOld);
                                           EXPECT_STREQ(expected.server(), service.server());
                                           EXPECT_STREQ(expected.workgroup(), service.workgroup());
                                           EXPECT_STREQ(expected.user(), service.user());
                                           EXPECT_STREQ(expected.password(), service.password());
                                           EXPECT_STREQ(expected.base_url(), service.base_url());
                                         }));
}

MultiviewerConfig config_of(const wchar_t* address) { return {address, 1, 2, 3, {4, 5}, true}; }

TEST(SettingAllocations, AMultiviewerThatCannotBeAssignedStaysAsItWas) {
  const MultiviewerConfig source = config_of(kWideNew);
  EXPECT_LT(0, run_with_ever_more_memory([] { return config_of(kWideOld); },
                                         [&](MultiviewerConfig& config) { config = source; },
                                         [](MultiviewerConfig& config, bool done) {
                                           const MultiviewerConfig expected =
                                               config_of(done ? kWideNew : kWideOld);
                                           EXPECT_TRUE(config == expected);
                                         }));
}

MultiviewerSource tile(int id, const wchar_t* channel) { return {id, channel, 1, 2, 3, 4, true}; }

TEST(SettingAllocations, ATileThatCannotBeAssignedStaysAsItWas) {
  const MultiviewerSource source = tile(2, kWideNew);
  EXPECT_LT(0, run_with_ever_more_memory([] { return tile(1, kWideOld); },
                                         [&](MultiviewerSource& target) { target = source; },
                                         [](MultiviewerSource& target, bool done) {
                                           const MultiviewerSource expected =
                                               done ? tile(2, kWideNew) : tile(1, kWideOld);
                                           EXPECT_TRUE(target == expected);
                                         }));
}

MultiviewerSourceList tiles(int count, const wchar_t* channel) {
  MultiviewerSourceList list;
  for (int i = 0; i < count; ++i) list.add_source(tile(i, channel));
  return list;
}

TEST(SettingAllocations, ATileWithoutMemoryIsNotAdded) {
  for (int count = 0; count < 6; ++count)
    EXPECT_LT(0, run_with_ever_more_memory(
                     [&] { return tiles(count, kWideOld); },
                     [&](MultiviewerSourceList& list) { list.add_source(tile(count, kWideOld)); },
                     [&](MultiviewerSourceList& list, bool done) {
                       const MultiviewerSourceList expected =
                           tiles(done ? count + 1 : count, kWideOld);
                       EXPECT_TRUE(list == expected);
                     }));
}

TEST(SettingAllocations, TakingATileWithoutMemoryLeavesTheList) {
  EXPECT_LT(0, run_with_ever_more_memory([] { return tiles(2, kWideOld); },
                                         [](MultiviewerSourceList& list) { list.source_at(1); },
                                         [](MultiviewerSourceList& list, bool) {
                                           const MultiviewerSourceList expected =
                                               tiles(2, kWideOld);
                                           EXPECT_TRUE(list == expected);
                                         }));
}

TEST(SettingAllocations, AListThatCannotBeAssignedStaysAsItWas) {
  const MultiviewerSourceList source = tiles(3, kWideNew);
  EXPECT_LT(0, run_with_ever_more_memory([] { return tiles(2, kWideOld); },
                                         [&](MultiviewerSourceList& list) { list = source; },
                                         [](MultiviewerSourceList& list, bool done) {
                                           const MultiviewerSourceList expected =
                                               tiles(done ? 3 : 2, done ? kWideNew : kWideOld);
                                           EXPECT_TRUE(list == expected);
                                         }));
}

TEST(SettingAllocations, NoRecordIsLostWhenANullTextIsRefused) {
  const long live = Allocations::counters().live();
  EXPECT_ANY_THROW(CameraInfo(camera_of(1), state_of(1), true, nullptr));
  EXPECT_ANY_THROW(MultiviewerConfig(nullptr, 1, 2, 3, {4, 5}, true));
  EXPECT_ANY_THROW(tile(1, nullptr));
  EXPECT_ANY_THROW(InterplayWebService(kOld, 1, kOld, kOld, nullptr, true, 1));
  EXPECT_EQ(live, Allocations::counters().live());
}

}  // namespace
}  // namespace Korvane::Media::AllocationTests
