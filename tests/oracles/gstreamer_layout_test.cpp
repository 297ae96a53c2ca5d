// Planes, lines and their bytes against GStreamer, which pads lines to multiples of 4 or 8 bytes
// and rounds up where a picture of odd size is subsampled.

#include <gst/video/video-info.h>

#include "oracles/layout_oracle.h"

namespace Korvane {
namespace {

// clang-format off
constexpr Counterpart<GstVideoFormat> kCounterparts[] = {
    //                                           align odd: first others lines refused  depth: theirs ours
    {Yuv420p,        GST_VIDEO_FORMAT_I420,       4, 0, 1, 1, false,  8,  8},
    {Yuv420pAlt,     GST_VIDEO_FORMAT_I420,       4, 0, 1, 1, false,  8,  8},
    {Yuv422p,        GST_VIDEO_FORMAT_Y42B,       4, 0, 1, 0, false,  8,  8},
    {Uyvy,           GST_VIDEO_FORMAT_UYVY,       4, 0, 0, 0, false,  8,  8},
    {V210,           GST_VIDEO_FORMAT_v210,       1, 0, 0, 0, false, 10, 10},
    {V216,           GST_VIDEO_FORMAT_v216,       8, 0, 0, 0, false, 16, 10},
    {Yuv422p10le,    GST_VIDEO_FORMAT_I422_10LE,  4, 0, 0, 0, false, 10, 10},
    {Yuv422p10leAlt, GST_VIDEO_FORMAT_I422_10LE,  4, 0, 0, 0, false, 10, 10},
    {Rgb24,          GST_VIDEO_FORMAT_RGB,        4, 0, 0, 0, false,  8, 16},
    {Argb,           GST_VIDEO_FORMAT_ARGB,       1, 0, 0, 0, false,  8,  0},
    {Rgba,           GST_VIDEO_FORMAT_RGBA,       1, 0, 0, 0, false,  8,  8},
    {Rgba64,         GST_VIDEO_FORMAT_RGBA64_LE,  1, 0, 0, 0, false, 16, 16},
    {Rgba64Alt,      GST_VIDEO_FORMAT_RGBA64_BE,  1, 0, 0, 0, false, 16, 16},
    {Dpx10,          GST_VIDEO_FORMAT_RGB10A2_LE, 1, 0, 0, 0, false, 10, 10},
    {Smpte2110Yuv10, GST_VIDEO_FORMAT_UYVP,       4, 0, 0, 0, true,  10, 10},
};
// clang-format on

constexpr Colorspaces kWithout[] = {ColorspaceUndefined, Colorspace6, Colorspace7, Colorspace10};

ReferenceLayout describe(GstVideoFormat format, unsigned int width, unsigned int height) {
  GstVideoInfo info;
  gst_video_info_init(&info);
  EXPECT_TRUE(gst_video_info_set_format(&info, format, width, height));
  ReferenceLayout layout = {};
  layout.planes = GST_VIDEO_INFO_N_PLANES(&info);
  layout.depth = GST_VIDEO_INFO_COMP_DEPTH(&info, 0);
  for (unsigned int plane = 0; plane < layout.planes; ++plane) {
    layout.line_bytes[plane] = static_cast<unsigned int>(GST_VIDEO_INFO_PLANE_STRIDE(&info, plane));
    // In all these formats, component i of the planar ones lies in plane i.
    layout.lines[plane] = static_cast<unsigned int>(GST_VIDEO_INFO_COMP_HEIGHT(&info, plane));
  }
  return layout;
}

TEST(GstreamerLayout, EveryColorspaceWithACounterpart) {
  for (const auto& one : kCounterparts) compare(one, describe);
}

TEST(GstreamerLayout, TheOthersHaveNone) { expect_every_colorspace(kCounterparts, kWithout); }

}  // namespace
}  // namespace Korvane
