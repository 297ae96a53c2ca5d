#include "enum_names.h"
#include "layout.h"
#include "table_command.h"

namespace Korvane::Tool {
namespace {

constexpr unsigned int kMostPlanes = 3;
constexpr unsigned int kHighestRaster = 65535;  // keeps every line far below 32 bits

constexpr TableOption kColorspaceOptions[] = {
    {"--width", nullptr, TableValue::Number, "PIXELS", "Width of the picture, 1920 by default"},
    {"--height", nullptr, TableValue::Number, "LINES", "Height of the picture, 1080 by default"},
    {"--value", "value", TableValue::Number, "N", "The colour space of this number"},
    {"--name", "name", TableValue::Listed, "NAME", "The colour space of this name"},
    {"--planes", "planes", TableValue::Number, "N", "Colour spaces of so many planes"},
    {"--depth", "depth", TableValue::Number, "BITS", "Colour spaces of this depth"},
};

constexpr const char* kColorspaceFooter =
    R"(How the pixels of raw pictures lie in memory: for each colour space its planes, the bits
of a component, the bytes of a line (stride) and the lines of each plane, and the bytes
of a frame of the given size. "-" where the colour space has none.

Examples:
  kvtool colorspaces
  kvtool colorspaces --name V210 --width 1280 --height 720
  kvtool colorspaces --planes 3 --depth 10 --json

JSON and CSV:
  The columns are value, name, planes, depth, stride_0 to stride_2, lines_0 to lines_2,
  frame_bytes; no value is null, or an empty field.

Exit codes:
  0  done
  2  wrong usage)";

unsigned int raster_option(const TableRequest& request, const char* option, unsigned int usual) {
  const auto given = request.given.find(option);
  return given == request.given.end() ? usual
                                      : parse_number(option, given->second, 1, kHighestRaster);
}

Cell number_or_none(const std::optional<unsigned int>& value) {
  return value ? Cell(Integer{*value}) : Cell();
}

std::vector<Cell> colorspace_row(Colorspaces colorspace, unsigned int width, unsigned int height) {
  std::vector<Cell> row = {Integer{colorspace}, std::string(name_of(colorspace)),
                           number_or_none(plane_count_of(colorspace)),
                           number_or_none(component_depth_of(colorspace))};
  std::vector<Cell> strides(kMostPlanes);
  std::vector<Cell> lines(kMostPlanes);
  Cell frame_bytes;
  if (const std::optional<Layout> layout = layout_of(colorspace, width, height)) {
    for (std::size_t plane = 0; plane < layout->planes.size(); ++plane) {
      strides.at(plane) = Integer{layout->planes[plane].stride};
      lines.at(plane) = Integer{layout->planes[plane].lines};
    }
    frame_bytes = static_cast<Integer>(layout->frame_bytes);
  }
  row.insert(row.end(), strides.begin(), strides.end());
  row.insert(row.end(), lines.begin(), lines.end());
  row.push_back(frame_bytes);
  return row;
}

Table build_colorspaces(const TableRequest& request) {
  const unsigned int width = raster_option(request, "--width", 1920);
  const unsigned int height = raster_option(request, "--height", 1080);
  Table table{{"value", "name", "planes", "depth", "stride_0", "stride_1", "stride_2", "lines_0",
               "lines_1", "lines_2", "frame_bytes"},
              {}};
  for (const Colorspaces colorspace : enumerators<Colorspaces>())
    table.rows.push_back(colorspace_row(colorspace, width, height));
  return table;
}

}  // namespace

const TableSubject& colorspaces_subject() {
  static constexpr TableSubject kSubject{"colorspaces", "List the colour spaces", kColorspaceFooter,
                                         kColorspaceOptions, build_colorspaces};
  return kSubject;
}

}  // namespace Korvane::Tool
