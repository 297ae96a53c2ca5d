#include <algorithm>
#include <cmath>
#include <vector>

#include "multiviewer_layout.h"
#include "printable.h"
#include "wide_text.h"

namespace Korvane::Tool {
namespace {

constexpr const char* kFills[] = {"#4e79a7", "#f28e2b", "#59a14f", "#b07aa1", "#76b7b2", "#9c755f"};

std::string xml_text(const std::string& text) {
  std::string escaped;
  for (const char c : printable_name(text)) {
    if (c == '&')
      escaped += "&amp;";
    else if (c == '<')
      escaped += "&lt;";
    else
      escaped += c;
  }
  return escaped;
}

std::string label_of(const Media::MultiviewerSource& tile) {
  return std::to_string(tile.id()) + ' ' + utf8_of(tile.channel_id()) +
         (tile.use_audio() ? " (audio)" : "");
}

std::string attribute(const char* name, long long value) {
  return std::string(" ") + name + "=\"" + std::to_string(value) + '"';
}

std::string svg_tile(const Media::MultiviewerSource& tile, std::size_t index) {
  const long long width = tile.width();
  const long long height = tile.height();
  if (width <= 0 || height <= 0) return {};
  const long long font = std::max(1LL, std::min(height / 8, width / 12));
  return "  <rect" + attribute("x", tile.x_offset()) + attribute("y", tile.y_offset()) +
         attribute("width", width) + attribute("height", height) + " fill=\"" +
         kFills[index % std::size(kFills)] +
         "\" fill-opacity=\"0.8\" stroke=\"#ffffff\" stroke-width=\"2\"/>\n  <text" +
         attribute("x", tile.x_offset() + width / 2) +
         attribute("y", tile.y_offset() + height / 2) + attribute("font-size", font) +
         " text-anchor=\"middle\" fill=\"#ffffff\">" + xml_text(label_of(tile)) + "</text>\n";
}

// Characters of the terminal, one for each cell; a character may be of several bytes.
class Canvas {
 public:
  Canvas(long long columns, long long rows)
      : rows_(static_cast<std::size_t>(rows),
              std::vector<std::string>(static_cast<std::size_t>(columns), " ")) {}

  // Both corners are part of it.
  void box(long long left, long long top, long long right, long long bottom) {
    for (long long y = top + 1; y < bottom; ++y)
      for (long long x = left + 1; x < right; ++x) at(x, y) = " ";
    for (long long x = left + 1; x < right; ++x) at(x, top) = at(x, bottom) = "-";
    for (long long y = top + 1; y < bottom; ++y) at(left, y) = at(right, y) = "|";
    at(left, top) = at(right, top) = at(left, bottom) = at(right, bottom) = "+";
  }

  // As much of `text` as has room before column `end`.
  void write(long long x, long long y, long long end, const std::string& text) {
    for (std::size_t i = 0; i < text.size() && x < end; ++x) {
      std::size_t next = i + 1;
      while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0U) == 0x80) ++next;
      at(x, y) = text.substr(i, next - i);
      i = next;
    }
  }

  void print(std::ostream& out) const {
    for (const std::vector<std::string>& row : rows_) {
      for (const std::string& cell : row) out << cell;
      out << '\n';
    }
  }

 private:
  std::string& at(long long x, long long y) {
    return rows_[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
  }

  std::vector<std::vector<std::string>> rows_;
};

// The character column or row of a pixel, within the picture.
long long scaled(long long pixel, long long pixels, long long last) {
  const long long inside = std::clamp(pixel, 0LL, pixels);
  return (inside * last + pixels / 2) / pixels;
}

}  // namespace

std::string svg_of(const MultiviewerLayout& layout) {
  const std::string width = std::to_string(layout.config.width());
  const std::string height = std::to_string(layout.config.height());
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + width + ' ' +
                    height + "\" width=\"" + width + "\" height=\"" + height +
                    "\" font-family=\"sans-serif\">\n"
                    "  <rect width=\"" +
                    width + "\" height=\"" + height + "\" fill=\"#202020\"/>\n";
  for (std::size_t i = 0; i < layout.sources.size(); ++i)
    svg += svg_tile(layout.sources.source_at(i), i);
  return svg + "</svg>\n";
}

void draw_on_terminal(std::ostream& out, const MultiviewerLayout& layout) {
  constexpr long long kLastColumn = 72;
  const long long width = layout.config.width();
  const long long height = layout.config.height();
  // A character is about twice as high as it is wide.
  const long long last_row = std::clamp(kLastColumn * height / (2 * width), 2LL, 48LL);
  Canvas canvas(kLastColumn + 1, last_row + 1);
  canvas.box(0, 0, kLastColumn, last_row);
  for (std::size_t i = 0; i < layout.sources.size(); ++i) {
    const Media::MultiviewerSource tile = layout.sources.source_at(i);
    const long long x = tile.x_offset();
    const long long y = tile.y_offset();
    const long long left = scaled(x, width, kLastColumn);
    const long long top = scaled(y, height, last_row);
    const long long right = scaled(x + tile.width(), width, kLastColumn);
    const long long bottom = scaled(y + tile.height(), height, last_row);
    if (left >= right || top >= bottom) continue;  // nothing of it can be seen
    canvas.box(left, top, right, bottom);
    if (bottom - top > 1) canvas.write(left + 1, top + 1, right, printable_name(label_of(tile)));
  }
  canvas.print(out);
}

}  // namespace Korvane::Tool
