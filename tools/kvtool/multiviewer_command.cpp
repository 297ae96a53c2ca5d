#include "multiviewer_command.h"

#include <nlohmann/json.hpp>

#include "failure.h"
#include "input.h"
#include "multiviewer_layout.h"
#include "printable.h"
#include "rate.h"
#include "table.h"
#include "whole_file.h"
#include "wide_text.h"

namespace Korvane::Tool {
namespace {

constexpr std::size_t kLongestLayout = 4UL * 1024 * 1024;
constexpr std::size_t kMostTiles = 1000;

Table tiles_of(const MultiviewerLayout& layout) {
  Table table{{"tile", "id", "channel_id", "width", "height", "x_offset", "y_offset", "use_audio"},
              {}};
  for (std::size_t i = 0; i < layout.sources.size(); ++i) {
    const Media::MultiviewerSource tile = layout.sources.source_at(i);
    table.rows.push_back({static_cast<Integer>(i + 1), Integer{tile.id()},
                          printable_name(utf8_of(tile.channel_id())), Integer{tile.width()},
                          Integer{tile.height()}, Integer{tile.x_offset()},
                          Integer{tile.y_offset()}, tile.use_audio()});
  }
  return table;
}

void write_config(std::ostream& out, Media::MultiviewerConfig config) {
  const std::string address = printable_name(utf8_of(config.server_address()));
  const Rational32 rate = config.edit_rate();
  out << config.width() << 'x' << config.height() << ", "
      << (rate.numerator == 0 ? "no edit rate" : describe(rate) + " pictures per second")
      << ", aspect ratios " << (config.keep_aspect_ratio() ? "kept" : "not kept") << ", to "
      << (address.empty() ? "no address" : address) << ", port " << config.port() << '\n';
}

using LayoutJson = nlohmann::ordered_json;

LayoutJson tile_json(const Media::MultiviewerSource& tile) {
  return {{"id", tile.id()},
          {"channel_id", utf8_of(tile.channel_id())},
          {"width", tile.width()},
          {"height", tile.height()},
          {"x_offset", tile.x_offset()},
          {"y_offset", tile.y_offset()},
          {"use_audio", tile.use_audio()}};
}

void write_layout_json(std::ostream& out, MultiviewerLayout layout) {
  Media::MultiviewerConfig& config = layout.config;
  LayoutJson tiles = LayoutJson::array();
  for (std::size_t i = 0; i < layout.sources.size(); ++i)
    tiles.push_back(tile_json(layout.sources.source_at(i)));
  const Rational32 rate = config.edit_rate();
  const LayoutJson json = {
      {"server_address", utf8_of(config.server_address())},
      {"port", config.port()},
      {"width", config.width()},
      {"height", config.height()},
      {"edit_rate", rate.numerator == 0 ? LayoutJson() : LayoutJson(describe(rate))},
      {"keep_aspect_ratio", config.keep_aspect_ratio()},
      {"sources", tiles},
      {"warnings", warnings_of(layout)}};
  out << json.dump(2) << '\n';
}

void write_layout_text(Streams& streams, const MultiviewerLayout& layout) {
  write_config(streams.out, layout.config);
  draw_on_terminal(streams.out, layout);
  write_text(streams.out, tiles_of(layout), "", streams.out_ink);
  for (const std::string& warning : warnings_of(layout))
    streams.out << streams.out_ink.alarm("warning:") << ' ' << warning << '\n';
}

}  // namespace

const char* multiviewer_footer() {
  return R"(LAYOUT is a JSON object with these keys; what is left out has the value shown:
  "server_address": "", "port": 0, "width": 1920, "height": 1080, "edit_rate": 0,
  "keep_aspect_ratio": false, and "sources", the list of tiles.
An edit rate is written as 25 or "30000/1001". Of a tile all but "use_audio" is needed:
  {"id": 1, "channel_id": "CAM 1", "width": 960, "height": 540,
   "x_offset": 0, "y_offset": 0, "use_audio": false}

Tiles that overlap, reach beyond the raster, show nothing or share an id are warned of; the
library takes them, so the exit code is 0. Later tiles are drawn over former ones.

Examples:
  kvtool multiviewer wall.json
  kvtool multiviewer wall.json --svg wall.svg
  kvtool multiviewer - --json < wall.json

JSON:
  The keys of LAYOUT, with nothing left out (edit_rate a text, or null without one), and
  warnings, a list of texts.

Exit codes:
  0  done, even with warnings
  1  the layout is bad, or the drawing cannot be written
  2  wrong usage)";
}

int run_multiviewer(const MultiviewerOptions& options, Streams& streams) {
  Input input(options.file, streams.in);
  const MultiviewerLayout layout =
      read_layout(JsonText(input.name(), input.read_all(kLongestLayout, "a layout")));
  // Checking every pair takes its time.
  if (layout.sources.size() > kMostTiles)
    throw InputError(printable_name(input.name()) + ": " + std::to_string(layout.sources.size()) +
                     " sources (expected at most " + std::to_string(kMostTiles) + ')');
  if (options.svg) write_whole_file(*options.svg, svg_of(layout));

  if (options.json)
    write_layout_json(streams.out, layout);
  else
    write_layout_text(streams, layout);
  return Done;
}

}  // namespace Korvane::Tool
