// Planes, lines and their bytes against libavutil. It rounds up where a picture of odd size is
// subsampled, and has no format for V210 and the 10-bit layout of SMPTE ST 2110, which it counts
// among the codecs.

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

#include "oracles/layout_oracle.h"

namespace Korvane {
namespace {

// clang-format off
constexpr Counterpart<AVPixelFormat> kCounterparts[] = {
    //                                            align odd: first others lines refused  depth: theirs ours
    {Yuv420p,        AV_PIX_FMT_YUV420P,     1, 0, 1, 1, false,  8,  8},
    {Yuv420pAlt,     AV_PIX_FMT_YUV420P,     1, 0, 1, 1, false,  8,  8},
    {Yuv422p,        AV_PIX_FMT_YUV422P,     1, 0, 1, 0, false,  8,  8},
    {Uyvy,           AV_PIX_FMT_UYVY422,     1, 2, 0, 0, false,  8,  8},
    {V216,           AV_PIX_FMT_Y210LE,      1, 4, 0, 0, false, 10, 10},
    {Yuv422p10le,    AV_PIX_FMT_YUV422P10LE, 1, 0, 1, 0, false, 10, 10},
    {Yuv422p10leAlt, AV_PIX_FMT_YUV422P10LE, 1, 0, 1, 0, false, 10, 10},
    {Rgb24,          AV_PIX_FMT_RGB24,       1, 0, 0, 0, false,  8, 16},
    {Argb,           AV_PIX_FMT_ARGB,        1, 0, 0, 0, false,  8,  0},
    {Rgba,           AV_PIX_FMT_RGBA,        1, 0, 0, 0, false,  8,  8},
    {Rgba64,         AV_PIX_FMT_RGBA64LE,    1, 0, 0, 0, false, 16, 16},
    {Rgba64Alt,      AV_PIX_FMT_RGBA64BE,    1, 0, 0, 0, false, 16, 16},
    {Dpx10,          AV_PIX_FMT_X2RGB10BE,   1, 0, 0, 0, false, 10, 10},
};
// clang-format on

constexpr Colorspaces kWithout[] = {ColorspaceUndefined, V210,         Colorspace6,
                                    Colorspace7,         Colorspace10, Smpte2110Yuv10};

ReferenceLayout describe(AVPixelFormat format, unsigned int width, unsigned int height) {
  const AVPixFmtDescriptor* const descriptor = av_pix_fmt_desc_get(format);
  ReferenceLayout layout = {};
  layout.planes = static_cast<unsigned int>(av_pix_fmt_count_planes(format));
  layout.depth = static_cast<unsigned int>(descriptor->comp[0].depth);
  ptrdiff_t line_bytes[4] = {};
  for (int plane = 0; plane < static_cast<int>(layout.planes); ++plane)
    line_bytes[plane] = av_image_get_linesize(format, static_cast<int>(width), plane);
  size_t plane_bytes[4] = {};
  EXPECT_EQ(0,
            av_image_fill_plane_sizes(plane_bytes, format, static_cast<int>(height), line_bytes));
  for (unsigned int plane = 0; plane < layout.planes; ++plane) {
    layout.line_bytes[plane] = static_cast<unsigned int>(line_bytes[plane]);
    layout.lines[plane] = static_cast<unsigned int>(plane_bytes[plane]) / layout.line_bytes[plane];
  }
  return layout;
}

TEST(LibavutilLayout, EveryColorspaceWithACounterpart) {
  for (const auto& one : kCounterparts) compare(one, describe);
}

TEST(LibavutilLayout, TheOthersHaveNone) {
  expect_every_colorspace(kCounterparts, kWithout);
  EXPECT_EQ(AV_PIX_FMT_NONE, av_get_pix_fmt("v210"));
  EXPECT_EQ(AV_PIX_FMT_NONE, av_get_pix_fmt("uyvp"));
}

}  // namespace
}  // namespace Korvane
