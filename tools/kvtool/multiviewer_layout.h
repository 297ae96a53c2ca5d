// A multiviewer layout: the library's records of it, what is odd about them, and their pictures.

#ifndef KV_TOOLS_KVTOOL_MULTIVIEWER_LAYOUT_H
#define KV_TOOLS_KVTOOL_MULTIVIEWER_LAYOUT_H

#include <ostream>
#include <string>
#include <vector>

#include "json_text.h"
#include "media/multiviewer_config.h"
#include "media/multiviewer_source.h"
#include "media/multiviewer_source_list.h"

namespace Korvane::Tool {

struct MultiviewerLayout {
  Media::MultiviewerConfig config;
  Media::MultiviewerSourceList sources;
};

// The raster has at least a pixel and at most kWidestRaster either way; all else may be what the
// records can hold. Raises InputError.
MultiviewerLayout read_layout(const JsonText& json);

constexpr int kWidestRaster = 1000000;

// One line for each thing that the library takes but no one can want.
std::vector<std::string> warnings_of(const MultiviewerLayout& layout);

// "tile 2 (id 7)": by its place in the list, counted from 1, since ids may be double.
std::string tile_name(std::size_t index, const Media::MultiviewerSource& tile);

std::string svg_of(const MultiviewerLayout& layout);
void draw_on_terminal(std::ostream& out, const MultiviewerLayout& layout);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MULTIVIEWER_LAYOUT_H
