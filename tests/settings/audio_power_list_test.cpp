#include "media/audio_power_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace Korvane::Media::AudioPowerListTests {
namespace {

static_assert(sizeof(AudioPowerList) == sizeof(void*));
static_assert(!std::is_polymorphic_v<AudioPowerList>);

constexpr auto kGreatestIndex = std::numeric_limits<Korvane::size_t>::max();

struct Reading {
  double power;
  bool muted;
};

AudioPowerList list_of(std::initializer_list<Reading> readings) {
  AudioPowerList list;
  for (const Reading& reading : readings) list.add_value(reading.power, reading.muted);
  return list;
}

void expect_readings(std::initializer_list<Reading> readings, const AudioPowerList& list) {
  ASSERT_EQ(readings.size(), list.size());
  Korvane::size_t index = 0;
  for (const Reading& reading : readings) {
    SCOPED_TRACE(index);
    ASSERT_NE(nullptr, list.track_at(index));
    EXPECT_EQ(reading.power, *list.track_at(index));
    EXPECT_EQ(reading.muted, list.track_muted_at(index));
    ++index;
  }
  EXPECT_EQ(nullptr, list.track_at(index));
  EXPECT_FALSE(list.track_muted_at(index));
}

TEST(AudioPowerList, IsEmptyAtFirst) {
  const AudioPowerList list;
  expect_readings({}, list);
  EXPECT_EQ(nullptr, list.track_at(kGreatestIndex));
  EXPECT_FALSE(list.track_muted_at(kGreatestIndex));
}

TEST(AudioPowerList, KeepsOneReading) {
  expect_readings({{-12.5, true}}, list_of({{-12.5, true}}));
}

TEST(AudioPowerList, KeepsOrderAndDuplicates) {
  const std::initializer_list<Reading> readings = {
      {-12.5, true}, {0.0, false}, {-12.5, true}, {-12.5, false}, {1e300, true}};
  expect_readings(readings, list_of(readings));
}

TEST(AudioPowerList, PastTheEndThereIsNoPowerAndNothingIsMuted) {
  const AudioPowerList list = list_of({{1.0, true}, {2.0, true}});
  for (const Korvane::size_t index :
       {Korvane::size_t{2}, Korvane::size_t{63}, Korvane::size_t{64}, kGreatestIndex}) {
    EXPECT_EQ(nullptr, list.track_at(index)) << index;
    EXPECT_FALSE(list.track_muted_at(index)) << index;
  }
}

TEST(AudioPowerList, KeepsEveryPower) {
  using Limits = std::numeric_limits<double>;
  AudioPowerList list;
  list.add_value(-Limits::infinity(), false);  // silence, in decibels
  list.add_value(Limits::quiet_NaN(), true);
  list.add_value(-0.0, false);
  list.add_value(Limits::denorm_min(), false);
  EXPECT_EQ(-Limits::infinity(), *list.track_at(0));
  EXPECT_TRUE(std::isnan(*list.track_at(1)));
  EXPECT_TRUE(std::signbit(*list.track_at(2)));
  EXPECT_EQ(Limits::denorm_min(), *list.track_at(3));
}

TEST(AudioPowerList, EachFlagStaysWithItsPower) {
  // Across the words in which the flags may be packed.
  AudioPowerList list;
  for (int i = 0; i < 1000; ++i) list.add_value(i, i % 3 == 0);
  ASSERT_EQ(1000U, list.size());
  for (int i = 0; i < 1000; ++i) {
    const auto index = static_cast<Korvane::size_t>(i);
    EXPECT_EQ(i, *list.track_at(index));
    EXPECT_EQ(i % 3 == 0, list.track_muted_at(index)) << i;
  }
}

TEST(AudioPowerList, TakesItsOwnReadings) {
  AudioPowerList list = list_of({{-3.0, true}});
  for (int i = 0; i < 1000; ++i) list.add_value(*list.track_at(0), list.track_muted_at(0));
  ASSERT_EQ(1001U, list.size());
  EXPECT_EQ(-3.0, *list.track_at(1000));
  EXPECT_TRUE(list.track_muted_at(1000));
}

TEST(AudioPowerList, CopiesAreDeep) {
  AudioPowerList original = list_of({{1.0, true}});
  AudioPowerList copy(original);
  EXPECT_NE(original.track_at(0), copy.track_at(0));
  original.add_value(2.0, false);
  expect_readings({{1.0, true}}, copy);
  copy.add_value(3.0, true);
  expect_readings({{1.0, true}, {2.0, false}}, original);
  copy = original;
  original = AudioPowerList();
  expect_readings({{1.0, true}, {2.0, false}}, copy);
  const AudioPowerList moved(std::move(copy));
  expect_readings({{1.0, true}, {2.0, false}}, moved);
  expect_readings({{1.0, true}, {2.0, false}}, copy);  // NOLINT(bugprone-use-after-move)
}

TEST(AudioPowerList, AssignmentToItselfDoesNothing) {
  AudioPowerList list = list_of({{1.0, true}});
  const AudioPowerList& same = list;
  const double* const power = list.track_at(0);
  list = same;
  EXPECT_EQ(power, list.track_at(0));
  expect_readings({{1.0, true}}, list);
}

}  // namespace
}  // namespace Korvane::Media::AudioPowerListTests
