// What a picture takes in memory, as the library computes it.

#ifndef KV_TOOLS_KVTOOL_LAYOUT_H
#define KV_TOOLS_KVTOOL_LAYOUT_H

#include <optional>
#include <vector>

#include "media/colorspaces.h"

namespace Korvane::Tool {

struct PlaneSize {
  unsigned int stride;  // bytes of a line
  unsigned int lines;
};

struct Layout {
  Colorspaces colorspace;
  std::optional<unsigned int> component_depth;  // where the library states one
  std::vector<PlaneSize> planes;
  unsigned long long frame_bytes;
};

// The library's answers; absent where it has none.
std::optional<unsigned int> component_depth_of(Colorspaces colorspace);
std::optional<unsigned int> plane_count_of(Colorspaces colorspace);

// Absent where the library has no planes, or no line of that width.
std::optional<Layout> layout_of(Colorspaces colorspace, unsigned int width, unsigned int height);

// The layouts that hold the picture whole: chroma planes at half the size need an even width, and
// an even height where they have half the lines.
std::vector<Layout> layouts_for(unsigned int width, unsigned int height);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_LAYOUT_H
