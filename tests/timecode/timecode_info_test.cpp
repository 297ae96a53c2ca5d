#include "timecode/timecode_info.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "timecode/timecode.h"

namespace Korvane {
namespace {

static_assert(sizeof(Media::TimecodeInfo) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<Media::TimecodeInfo>);
static_assert(!std::is_copy_constructible_v<Media::TimecodeInfo>);
static_assert(!std::is_copy_assignable_v<Media::TimecodeInfo>);

TEST(TimecodeInfo, HasNoTimecodeAtFirst) {
  EXPECT_EQ(nullptr, Media::TimecodeInfo().initial_timecode());
}

TEST(TimecodeInfo, KeepsACopyOfTheLast) {
  Media::TimecodeInfo info;
  Timecode timecode(25, 10LL, false);
  info.initial_timecode(timecode);
  ++timecode;
  ASSERT_NE(nullptr, info.initial_timecode());
  EXPECT_EQ(10, info.initial_timecode()->frame_count());
  info.initial_timecode(timecode);
  EXPECT_EQ(11, info.initial_timecode()->frame_count());
}

TEST(TimecodeInfo, TheCopyLosesItsDays) {
  const Timecode timecode(25, 3 * 2160000LL, false);
  ASSERT_EQ(3, timecode.days());
  Media::TimecodeInfo info;
  info.initial_timecode(timecode);
  EXPECT_EQ(0, info.initial_timecode()->days());
  EXPECT_EQ(3 * 2160000LL, info.initial_timecode()->frame_count());
}

TEST(TimecodeInfo, TakesItsOwnTimecode) {
  Media::TimecodeInfo info;
  info.initial_timecode(Timecode(25, 10LL, false));
  info.initial_timecode(*info.initial_timecode());
  EXPECT_EQ(10, info.initial_timecode()->frame_count());
}

TEST(TimecodeInfo, TheGetterIsVirtual) {
  struct Fixed : Media::TimecodeInfo {
    const Timecode* initial_timecode() const override { return &timecode; }
    Timecode timecode{25, 7LL, false};
  };
  const Fixed fixed;
  const Media::TimecodeInfo& info = fixed;
  EXPECT_EQ(7, info.initial_timecode()->frame_count());
}

}  // namespace
}  // namespace Korvane
