#include "media/colorspaces_utils.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/raises.h"

namespace Korvane {
namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

constexpr unsigned int kLastNamed = 18;

// Every named layout, 64 values beyond, and the ends of the type.
std::vector<unsigned int> every_value() {
  std::vector<unsigned int> values;
  for (unsigned int value = 0; value <= kLastNamed + 64; ++value) values.push_back(value);
  values.insert(values.end(), {0x7FFFFFFFU, 0x80000001U, 0xFFFFFFFFU});
  return values;
}

Colorspaces layout(unsigned int value) { return static_cast<Colorspaces>(value); }

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

// A naive model: line bytes, or the message of the error, in 64 bits cut to 32 after each product.
struct Line {
  unsigned long long bytes;
  const char* error;
};

unsigned long long product(unsigned long long a, unsigned long long b) {
  return a * b % 4294967296ULL;
}

Line planar(unsigned long long first, unsigned long long others, unsigned int plane,
            const char* error) {
  if (plane > 2) return {0, error};
  return {plane == 0 ? first : others, nullptr};
}

Line packed(unsigned long long bytes, unsigned int plane, const char* error) {
  if (plane != 0) return {0, error};
  return {bytes, nullptr};
}

Line expected_line(unsigned int value, unsigned long long width, unsigned int plane) {
  switch (value) {
    case 1:
    case 18:
      return planar(width, width / 2, plane, "YUV420P doesn't support given plane");
    case 2:
      return planar(width, width / 2, plane, "YUV422P doesn't support given plane");
    case 3:
      return packed(product(width, 2), plane, "UYVY doesn't support given plane");
    case 4: {
      unsigned long long bytes = product(width, 16) / 6;
      while (bytes % 128 != 0) ++bytes;
      return packed(bytes, plane, "V210 doesn't support given plane");
    }
    case 5:
      return packed(product(width, 4), plane, "V216 doesn't support given plane");
    case 8:
    case 9:
      return planar(product(width, 2), width, plane, "YUV422P10LE doesn't support given plane");
    case 11:
      return packed(product(width, 3), plane, "RGB24 doesn't support given plane");
    case 12:
    case 13:
    case 16:
      return packed(product(width, 4), plane, "ARGB, RGBA and DPX10 doesn't support given plane");
    case 14:
    case 15:
      return packed(product(width, 8), plane, "RGBA64 doesn't support given plane");
    case 17:
      if (plane != 0) return {0, "SMPTE2110 10bits doesn't support given plane"};
      if (width % 2 != 0) return {0, "Width must be aligned"};
      return {product(width, 5) / 2, nullptr};
    default:
      return {0, "Unable to map between colorspace and stride"};
  }
}

AssertionResult stride_is_as_expected(unsigned int value, unsigned int width, unsigned int plane) {
  const Line expected = expected_line(value, width, plane);
  const auto compute = [&] {
    return ColorspacesUtils::stride_for_colorspace(layout(value), width, plane);
  };
  if (expected.error != nullptr) {
    AssertionResult result = raises(InvalidArgument, expected.error, compute);
    return result ? result : result << ", width " << width << ", plane " << plane;
  }
  const unsigned int bytes = compute();
  if (bytes == expected.bytes) return AssertionSuccess();
  return AssertionFailure() << bytes << " instead of " << expected.bytes << " bytes, width "
                            << width << ", plane " << plane;
}

// The first that fails in each layout is enough.
void check_widths(unsigned int value, const std::vector<unsigned int>& widths,
                  unsigned int last_plane) {
  SCOPED_TRACE(value);
  for (unsigned int plane = 0; plane <= last_plane; ++plane)
    for (const unsigned int width : widths) ASSERT_TRUE(stride_is_as_expected(value, width, plane));
}

TEST(StrideForColorspace, EveryLayoutWidthAndPlane) {
  for (unsigned int value = 0; value <= kLastNamed; ++value) {
    // Errors are slow to raise; where every width raises, few are enough.
    SCOPED_TRACE(value);
    for (unsigned int plane = 0; plane <= 9; ++plane) {
      const bool raises_always = expected_line(value, 0, plane).error != nullptr;
      for (unsigned int width = 0; width <= 8200; width += raises_always ? 41 : 1)
        ASSERT_TRUE(stride_is_as_expected(value, width, plane));
    }
  }
}

TEST(StrideForColorspace, ProductsWrapAt32Bits) {
  std::vector<unsigned int> widths;
  for (const unsigned long long factor : {2ULL, 3ULL, 4ULL, 5ULL, 8ULL, 16ULL})
    for (unsigned long long turns = 1; turns <= factor; ++turns)
      for (int distance = -3; distance <= 3; ++distance)
        widths.push_back(static_cast<unsigned int>((turns << 32U) / factor +
                                                   static_cast<unsigned long long>(distance)));
  for (unsigned int value = 0; value <= kLastNamed; ++value) check_widths(value, widths, 3);
}

TEST(StrideForColorspace, ValuesWithoutALayout) {
  for (const unsigned int value : every_value())
    if (value > kLastNamed) check_widths(value, {0, 1, 1920, 8200, 0xFFFFFFFFU}, 9);
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
