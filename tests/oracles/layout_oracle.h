// What the comparisons of picture layouts with other libraries share. A table names for each colour
// space its counterpart and everything in which the two are meant to differ; each such difference
// must really be met.

#ifndef KV_ENGINE_TESTS_ORACLES_LAYOUT_ORACLE_H
#define KV_ENGINE_TESTS_ORACLES_LAYOUT_ORACLE_H

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "media/colorspaces_utils.h"
#include "support/raises.h"

namespace Korvane {

constexpr unsigned int kColorspaceCount = 19;

// What the other library says of a picture.
struct ReferenceLayout {
  unsigned int planes;
  unsigned int depth;
  unsigned int line_bytes[4];
  unsigned int lines[4];
};

// The other library rounds the bytes of a line up to `alignment`, after it has added `odd_first` to
// the first plane, or `odd_others` to the others, of a picture of odd width; the other planes of a
// picture of odd height have `odd_lines` more lines.
template <typename Format>
struct Counterpart {
  Colorspaces colorspace;
  Format format;
  unsigned int alignment;
  unsigned int odd_first;
  unsigned int odd_others;
  unsigned int odd_lines;
  bool refuses_odd;  // odd widths are refused here, not there
  unsigned int their_depth;
  unsigned int our_depth;  // 0: none here
};

inline unsigned int rounded_up(unsigned int value, unsigned int step) {
  return (value + step - 1) / step * step;
}

// Which of the differences that alignment and odd sizes make were met.
struct Met {
  bool alignment = false;
  bool odd_first = false;
  bool odd_others = false;
  bool lines = false;
};

template <typename Format>
::testing::AssertionResult agrees(const Counterpart<Format>& one, const ReferenceLayout& reference,
                                  unsigned int width, unsigned int height, Met& met) {
  using namespace ColorspacesUtils;
  const bool odd_width = width % 2 != 0;
  const bool odd_height = height % 2 != 0;
  for (unsigned int plane = 0; plane < reference.planes; ++plane) {
    const unsigned int bytes = stride_for_colorspace(one.colorspace, width, plane);
    const unsigned int extra = plane == 0 ? one.odd_first : one.odd_others;
    const unsigned int unpadded = bytes + (odd_width ? extra : 0);
    const unsigned int padded = rounded_up(unpadded, one.alignment);
    const unsigned int lines = heigth_for_colorspace(one.colorspace, height, plane);
    const unsigned int more = plane != 0 && odd_height ? one.odd_lines : 0;
    if (padded != reference.line_bytes[plane] || lines + more != reference.lines[plane])
      return ::testing::AssertionFailure()
             << "plane " << plane << " of " << width << " x " << height << ": " << bytes
             << " bytes in " << lines << " lines, there " << reference.line_bytes[plane] << " in "
             << reference.lines[plane];
    met.alignment = met.alignment || padded != unpadded;
    bool& odd = plane == 0 ? met.odd_first : met.odd_others;
    odd = odd || padded != rounded_up(bytes, one.alignment);
    met.lines = met.lines || more != 0;
  }
  return ::testing::AssertionSuccess();
}

// `describe(format, width, height)` gives the layout of the other library.
template <typename Format, typename Describe>
void compare(const Counterpart<Format>& one, Describe describe) {
  SCOPED_TRACE(one.colorspace);
  const ReferenceLayout any = describe(one.format, 16, 16);
  EXPECT_EQ(any.planes, ColorspacesUtils::planes_for_colorspace(one.colorspace));
  EXPECT_EQ(one.their_depth, any.depth);
  if (one.our_depth != 0)
    EXPECT_EQ(one.our_depth, ColorspacesUtils::component_depth_for_colorspace(one.colorspace));
  else
    EXPECT_TRUE(raises(UnmappedValue, "Unable to map between colorspace and component depth",
                       [&] { ColorspacesUtils::component_depth_for_colorspace(one.colorspace); }));

  Met met;
  for (unsigned int width = 1; width <= 8200; ++width) {
    if (one.refuses_odd && width % 2 != 0) continue;
    for (const unsigned int height : {1080U, 1081U})
      ASSERT_TRUE(agrees(one, describe(one.format, width, height), width, height, met));
  }
  EXPECT_EQ(one.alignment > 1, met.alignment);
  EXPECT_EQ(one.odd_first > 0, met.odd_first);
  EXPECT_EQ(one.odd_others > 0, met.odd_others);
  EXPECT_EQ(one.odd_lines > 0, met.lines);
  if (one.refuses_odd) {
    EXPECT_TRUE(raises(InvalidArgument, "Width must be aligned",
                       [&] { ColorspacesUtils::stride_for_colorspace(one.colorspace, 1921, 0); }));
    EXPECT_LT(0U, describe(one.format, 1921, 1080).line_bytes[0]);
  }
}

// Each colour space is in `counterparts` once, or in `without`.
template <typename Counterparts, typename Without>
void expect_every_colorspace(const Counterparts& counterparts, const Without& without) {
  for (unsigned int value = 0; value < kColorspaceCount; ++value) {
    const auto named = std::count_if(std::begin(counterparts), std::end(counterparts),
                                     [&](const auto& one) { return one.colorspace == value; });
    const auto left_out = std::count(std::begin(without), std::end(without), value);
    EXPECT_EQ(1, named + left_out) << value;
  }
}

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_ORACLES_LAYOUT_ORACLE_H
