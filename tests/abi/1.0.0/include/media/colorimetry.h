// How colours are meant. The values other than 0 are known to the engine alone.

#ifndef KV_ENGINE_MEDIA_COLORIMETRY_H
#define KV_ENGINE_MEDIA_COLORIMETRY_H

namespace Korvane {

enum Colorimetry : unsigned int {
  ColorimetryUnspecified = 0  // nothing is stated; ImageInfo compares it equal to any
};

}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_COLORIMETRY_H
