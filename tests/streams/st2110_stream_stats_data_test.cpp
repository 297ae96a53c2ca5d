#include "media/st2110_stream_stats_data.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace Korvane::Media::St2110StreamStatsDataTests {
namespace {

using Data = ST2110StreamStatsData;
using Count = unsigned long long;

static_assert(sizeof(Data) == sizeof(void*));
static_assert(!std::is_polymorphic_v<Data>);
static_assert(std::is_same_v<decltype(&Data::operator==), bool (Data::*)(const Data&) const>);
static_assert(std::is_same_v<decltype(&Data::operator!=), bool (Data::*)(const Data&) const>);

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr Count kGreatest = std::numeric_limits<Count>::max();

Data sample(Count timestamp, Count error_frames, double video, double sound) {
  Data data;
  data.timestamp(timestamp);
  data.error_frames(error_frames);
  data.video_bps_rate(video);
  data.sound_bps_rate(sound);
  return data;
}

void expect_fields(const Data& data, Count timestamp, Count error_frames, double video,
                   double sound) {
  EXPECT_EQ(timestamp, data.timestamp());
  EXPECT_EQ(error_frames, data.error_frames());
  EXPECT_EQ(video, data.video_bps_rate());
  EXPECT_EQ(sound, data.sound_bps_rate());
}

// Both operators, in both directions.
void expect_equality(bool equal, const Data& a, const Data& b) {
  EXPECT_EQ(equal, a == b);
  EXPECT_EQ(equal, b == a);
  EXPECT_EQ(!equal, a != b);
  EXPECT_EQ(!equal, b != a);
}

TEST(ST2110StreamStatsData, IsZeroAtFirst) { expect_fields(Data(), 0, 0, 0, 0); }

TEST(ST2110StreamStatsData, StoresEachFieldApartAndUnchecked) {
  Data data;
  data.timestamp(kGreatest);
  expect_fields(data, kGreatest, 0, 0, 0);
  data.error_frames(3);
  expect_fields(data, kGreatest, 3, 0, 0);
  data.video_bps_rate(-1.5);
  expect_fields(data, kGreatest, 3, -1.5, 0);
  data.sound_bps_rate(kInfinity);
  expect_fields(data, kGreatest, 3, -1.5, kInfinity);
  data.video_bps_rate(kNan);
  EXPECT_TRUE(std::isnan(data.video_bps_rate()));
}

TEST(ST2110StreamStatsData, CopiesAreIndependent) {
  Data source = sample(1, 2, 3.5, 4.5);
  const Data copy(source);
  Data assigned = sample(9, 9, 9, 9);
  assigned = source;
  const Data moved(std::move(source));
  expect_fields(source, 1, 2, 3.5, 4.5);  // NOLINT(bugprone-use-after-move): moving copies
  source.error_frames(7);
  expect_fields(copy, 1, 2, 3.5, 4.5);
  expect_fields(assigned, 1, 2, 3.5, 4.5);
  expect_fields(moved, 1, 2, 3.5, 4.5);
}

TEST(ST2110StreamStatsData, AssignmentToItselfDoesNothing) {
  Data data = sample(1, 2, 3.5, 4.5);
  const Data& same = data;
  data = same;
  expect_fields(data, 1, 2, 3.5, 4.5);
}

TEST(ST2110StreamStatsData, DiffersByEveryField) {
  expect_equality(true, Data(), Data());
  expect_equality(true, sample(1, 2, 3.5, 4.5), sample(1, 2, 3.5, 4.5));
  expect_equality(false, sample(1, 2, 3.5, 4.5), sample(0, 2, 3.5, 4.5));
  expect_equality(false, sample(1, 2, 3.5, 4.5), sample(1, 0, 3.5, 4.5));
  expect_equality(false, sample(1, 2, 3.5, 4.5), sample(1, 2, 0, 4.5));
  expect_equality(false, sample(1, 2, 3.5, 4.5), sample(1, 2, 3.5, 0));
}

TEST(ST2110StreamStatsData, ComparesRatesExactly) {
  const double next = std::nextafter(1.0, 2.0);
  expect_equality(false, sample(0, 0, 1, 1), sample(0, 0, next, 1));
  expect_equality(false, sample(0, 0, 1, 1), sample(0, 0, 1, next));
  expect_equality(true, sample(0, 0, -0.0, kInfinity), sample(0, 0, 0.0, kInfinity));
}

TEST(ST2110StreamStatsData, WithANanDiffersEvenFromItself) {
  for (const Data& data : {sample(0, 0, kNan, 0), sample(0, 0, 0, kNan)}) {
    expect_equality(false, data, data);
    expect_equality(false, data, Data(data));
    expect_equality(false, data, Data());
  }
}

}  // namespace
}  // namespace Korvane::Media::St2110StreamStatsDataTests
