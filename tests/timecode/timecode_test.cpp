#include "timecode/timecode.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(Timecode, StartsAtZero) { EXPECT_EQ(0, Timecode(25, false).frame_count()); }

}  // namespace
}  // namespace Korvane
