// Bytes of a line of every plane of every layout that libavutil has too, 1920 pixels wide.

extern "C" {
#include <libavutil/imgutils.h>
}

#include "media/colorspaces_utils.h"
#include "side.h"

namespace Korvane {
namespace {

struct Layout {
  Colorspaces ours;
  AVPixelFormat theirs;
  int planes;
};
constexpr Layout kLayouts[] = {
    {Yuv420p, AV_PIX_FMT_YUV420P, 3},
    {Yuv420pAlt, AV_PIX_FMT_YUV420P, 3},
    {Yuv422p, AV_PIX_FMT_YUV422P, 3},
    {Uyvy, AV_PIX_FMT_UYVY422, 1},
    {V216, AV_PIX_FMT_Y210LE, 1},
    {Yuv422p10le, AV_PIX_FMT_YUV422P10LE, 3},
    {Yuv422p10leAlt, AV_PIX_FMT_YUV422P10LE, 3},
    {Rgb24, AV_PIX_FMT_RGB24, 1},
    {Argb, AV_PIX_FMT_ARGB, 1},
    {Rgba, AV_PIX_FMT_RGBA, 1},
    {Rgba64, AV_PIX_FMT_RGBA64LE, 1},
    {Rgba64Alt, AV_PIX_FMT_RGBA64BE, 1},
    {Dpx10, AV_PIX_FMT_X2RGB10BE, 1},
};
constexpr int kWidth = 1920;

template <typename LineBytes>
unsigned int all_lines(LineBytes line_bytes) {
  unsigned int sum = 0;
  for (const Layout& layout : kLayouts)
    for (int plane = 0; plane < layout.planes; ++plane) sum += line_bytes(layout, plane);
  return sum;
}

const bool kStrides[] = {
    measure("strides/ours",
            [] {
              return all_lines([](const Layout& layout, int plane) {
                return ColorspacesUtils::stride_for_colorspace(layout.ours, kWidth,
                                                               static_cast<unsigned int>(plane));
              });
            }),
    measure("strides/libavutil",
            [] {
              return all_lines([](const Layout& layout, int plane) {
                return static_cast<unsigned int>(
                    av_image_get_linesize(layout.theirs, kWidth, plane));
              });
            }),
};

}  // namespace
}  // namespace Korvane
