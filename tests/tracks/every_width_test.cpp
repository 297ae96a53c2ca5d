#include <gtest/gtest.h>

#include "tracks/line_model.h"

namespace Korvane {
namespace {

TEST(StrideForColorspace, EveryWidthOfEveryValueAndPlane) {
  for (const unsigned int value : every_value())
    for (unsigned int plane = 0; plane <= 9; ++plane)
      for (unsigned int width = 0; width <= 8200; ++width)
        ASSERT_TRUE(stride_is_as_expected(value, width, plane));
}

}  // namespace
}  // namespace Korvane
