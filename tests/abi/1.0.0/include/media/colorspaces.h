// How the pixels of raw video lie in memory. ColorspacesUtils tells planes, depth, line bytes and
// lines of each. The layouts that are named by number are known to the engine alone.

#ifndef KV_ENGINE_MEDIA_COLORSPACES_H
#define KV_ENGINE_MEDIA_COLORSPACES_H

namespace Korvane {

enum Colorspaces : unsigned int {
  ColorspaceUndefined = 0,
  Yuv420p = 1,
  Yuv422p = 2,
  Uyvy = 3,
  V210 = 4,
  V216 = 5,
  Colorspace6 = 6,
  Colorspace7 = 7,
  Yuv422p10le = 8,
  Yuv422p10leAlt = 9,
  Colorspace10 = 10,
  Rgb24 = 11,
  Argb = 12,
  Rgba = 13,
  Rgba64 = 14,
  Rgba64Alt = 15,
  Dpx10 = 16,
  Smpte2110Yuv10 = 17,
  Yuv420pAlt = 18
};

}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_COLORSPACES_H
