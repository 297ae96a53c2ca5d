#include "media/colorspaces_utils.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/raises.h"
#include "tracks/line_model.h"

namespace Korvane {
namespace {

TEST(Colorspaces, NamesAndValues) {
  constexpr Colorspaces kNames[] = {ColorspaceUndefined,
                                    Yuv420p,
                                    Yuv422p,
                                    Uyvy,
                                    V210,
                                    V216,
                                    Colorspace6,
                                    Colorspace7,
                                    Yuv422p10le,
                                    Yuv422p10leAlt,
                                    Colorspace10,
                                    Rgb24,
                                    Argb,
                                    Rgba,
                                    Rgba64,
                                    Rgba64Alt,
                                    Dpx10,
                                    Smpte2110Yuv10,
                                    Yuv420pAlt};
  ASSERT_EQ(19U, std::size(kNames));
  for (unsigned int i = 0; i < std::size(kNames); ++i)
    EXPECT_EQ(i, static_cast<unsigned int>(kNames[i]));
}

TEST(PlanesForColorspace, EveryValue) {
  for (const unsigned int value : every_value()) {
    SCOPED_TRACE(value);
    unsigned int expected = 0;
    if (value == 1 || value == 2 || value == 8 || value == 9 || value == 18) expected = 3;
    if ((value >= 3 && value <= 5) || (value >= 11 && value <= 17)) expected = 1;
    if (expected != 0)
      EXPECT_EQ(expected, ColorspacesUtils::planes_for_colorspace(layout(value)));
    else
      EXPECT_TRUE(raises(UnmappedValue, "Unable to map between colorspace and planes count",
                         [&] { ColorspacesUtils::planes_for_colorspace(layout(value)); }));
  }
}

TEST(ComponentDepthForColorspace, EveryValue) {
  constexpr unsigned int kDepths[] = {0, 8,  8, 8, 10, 10, 10, 10, 10, 10,
                                      0, 16, 0, 8, 16, 16, 10, 10, 8};
  for (const unsigned int value : every_value()) {
    SCOPED_TRACE(value);
    if (value <= kLastNamed && kDepths[value] != 0)
      EXPECT_EQ(kDepths[value], ColorspacesUtils::component_depth_for_colorspace(layout(value)));
    else
      EXPECT_TRUE(raises(UnmappedValue, "Unable to map between colorspace and component depth",
                         [&] { ColorspacesUtils::component_depth_for_colorspace(layout(value)); }));
  }
}

TEST(StrideForColorspace, EveryLayoutWidthAndPlane) {
  for (const unsigned int value : every_value())
    for (unsigned int plane = 0; plane <= 9; ++plane) {
      // Errors are slow to raise: every_width_test raises those that are left out here.
      const bool raises_always = expected_line(value, 0, plane).error != nullptr;
      for (unsigned int width = 0; width <= 8200; width += raises_always ? 41 : 1)
        ASSERT_TRUE(stride_is_as_expected(value, width, plane));
    }
}

TEST(StrideForColorspace, ProductsWrapAt32Bits) {
  std::vector<unsigned int> widths;
  for (const unsigned long long factor : {2ULL, 3ULL, 4ULL, 5ULL, 8ULL, 16ULL})
    for (unsigned long long turns = 1; turns <= factor; ++turns)
      for (int distance = -3; distance <= 3; ++distance)
        widths.push_back(static_cast<unsigned int>((turns << 32U) / factor +
                                                   static_cast<unsigned long long>(distance)));
  for (const unsigned int value : every_value())
    for (unsigned int plane = 0; plane <= 3; ++plane)
      for (const unsigned int width : widths)
        ASSERT_TRUE(stride_is_as_expected(value, width, plane));
}

TEST(StrideForColorspace, PlanesFarBeyondRaiseLikeTheNext) {
  for (const unsigned int value : every_value()) {
    SCOPED_TRACE(value);
    for (const unsigned int plane : {10U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
      EXPECT_TRUE(stride_is_as_expected(value, 1920, plane));
  }
}

struct KnownLine {
  Colorspaces colorspace;
  unsigned int width;
  unsigned int plane;
  unsigned int bytes;
};

TEST(StrideForColorspace, LinesOfCommonPictures) {
  constexpr KnownLine kLines[] = {
      {Yuv420p, 1920, 0, 1920},
      {Yuv420p, 1920, 1, 960},
      {Yuv420p, 1921, 2, 960},
      {Yuv422p10le, 1920, 0, 3840},
      {Yuv422p10le, 1920, 2, 1920},
      {Uyvy, 1280, 0, 2560},
      {V210, 1920, 0, 5120},
      {V210, 1280, 0, 3456},
      {V210, 720, 0, 1920},
      {V210, 0, 0, 0},
      {V210, 1, 0, 128},
      {V210, 48, 0, 128},
      {V210, 49, 0, 256},
      {Rgb24, 720, 0, 2160},
      {Rgba64, 1920, 0, 15360},
      {Smpte2110Yuv10, 1920, 0, 4800},
      {Smpte2110Yuv10, 2, 0, 5},
      {Dpx10, 2048, 0, 8192},
  };
  for (const KnownLine& line : kLines) {
    SCOPED_TRACE(std::to_string(line.colorspace) + " at " + std::to_string(line.width));
    EXPECT_EQ(line.bytes,
              ColorspacesUtils::stride_for_colorspace(line.colorspace, line.width, line.plane));
  }
}

TEST(StrideForColorspace, ThePlaneIsCheckedBeforeTheWidth) {
  EXPECT_TRUE(raises(InvalidArgument, "SMPTE2110 10bits doesn't support given plane",
                     [] { ColorspacesUtils::stride_for_colorspace(Smpte2110Yuv10, 1921, 1); }));
  EXPECT_TRUE(raises(InvalidArgument, "Width must be aligned",
                     [] { ColorspacesUtils::stride_for_colorspace(Smpte2110Yuv10, 1921, 0); }));
}

TEST(HeigthForColorspace, HalvesAllButTheFirstPlaneOfTwoLayouts) {
  for (const unsigned int value : every_value())
    for (const unsigned int height : {0U, 1U, 2U, 485U, 486U, 1080U, 1081U, 0xFFFFFFFFU})
      for (const unsigned int plane : {0U, 1U, 2U, 3U, 7U, 9U, 0xFFFFFFFFU}) {
        const bool halved = (value == 1 || value == 18) && plane != 0;
        ASSERT_EQ(halved ? height / 2 : height,
                  ColorspacesUtils::heigth_for_colorspace(layout(value), height, plane))
            << value << ", height " << height << ", plane " << plane;
      }
}

}  // namespace
}  // namespace Korvane
