#include "layout.h"

#include "answer.h"
#include "enum_names.h"
#include "media/colorspaces_utils.h"

namespace Korvane::Tool {
namespace {

bool holds_all(const Layout& layout, unsigned int width, unsigned int height) {
  if (layout.planes.size() == 1) return true;
  const bool half_the_lines = layout.planes[1].lines != height;
  return width % 2 == 0 && (!half_the_lines || height % 2 == 0);
}

}  // namespace

std::optional<unsigned int> component_depth_of(Colorspaces colorspace) {
  return answer([&] { return ColorspacesUtils::component_depth_for_colorspace(colorspace); });
}

std::optional<unsigned int> plane_count_of(Colorspaces colorspace) {
  return answer([&] { return ColorspacesUtils::planes_for_colorspace(colorspace); });
}

std::optional<Layout> layout_of(Colorspaces colorspace, unsigned int width, unsigned int height) {
  const std::optional<unsigned int> planes = plane_count_of(colorspace);
  if (!planes) return std::nullopt;
  Layout layout{colorspace, component_depth_of(colorspace), {}, 0};
  for (unsigned int plane = 0; plane < *planes; ++plane) {
    const auto stride =
        answer([&] { return ColorspacesUtils::stride_for_colorspace(colorspace, width, plane); });
    if (!stride) return std::nullopt;
    const unsigned int lines = ColorspacesUtils::heigth_for_colorspace(colorspace, height, plane);
    layout.planes.push_back({*stride, lines});
    layout.frame_bytes += static_cast<unsigned long long>(*stride) * lines;
  }
  return layout;
}

std::vector<Layout> layouts_for(unsigned int width, unsigned int height) {
  std::vector<Layout> layouts;
  for (const Colorspaces colorspace : enumerators<Colorspaces>()) {
    std::optional<Layout> layout = layout_of(colorspace, width, height);
    if (layout && holds_all(*layout, width, height)) layouts.push_back(std::move(*layout));
  }
  return layouts;
}

}  // namespace Korvane::Tool
