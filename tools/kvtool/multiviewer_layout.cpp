#include "multiviewer_layout.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string_view>

#include "wide_text.h"

namespace Korvane::Tool {
namespace {

constexpr int kLowestInt = std::numeric_limits<int>::min();
constexpr int kHighestInt = std::numeric_limits<int>::max();

std::string list_names(std::initializer_list<const char*> names) {
  std::string list;
  for (const char* const name : names) list += (list.empty() ? "" : ", ") + std::string(name);
  return list;
}

// The members of an object; those that it has must be known, and each may stand there once.
class Members {
 public:
  Members(const JsonText& json, const JsonValue& object, const char* what,
          std::initializer_list<const char*> known)
      : json_(json), object_(object) {
    if (object.kind != JsonKind::Object)
      json.refuse(object, "is no " + std::string(what), "an object with " + list_names(known));
    for (const JsonValue& name : object.names)
      if (std::find(known.begin(), known.end(), name.text) == known.end())
        json.refuse(name, "is no key of a " + std::string(what), list_names(known));
    for (const char* const name : known) refuse_double(name);
  }

  const JsonValue* find(std::string_view name) const {
    for (std::size_t i = 0; i < object_.names.size(); ++i)
      if (object_.names[i].text == name) return &object_.values[i];
    return nullptr;
  }

  const JsonValue& require(const char* name) const {
    const JsonValue* const value = find(name);
    if (value == nullptr) json_.refuse(object_, std::string("lacks ") + name, name);
    return *value;
  }

  int integer(const JsonValue& value, int lowest, int highest) const {
    if (value.kind != JsonKind::Whole || value.integer < lowest || value.integer > highest)
      json_.refuse(
          value, "is not supported",
          "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    return static_cast<int>(value.integer);
  }
  int integer(const char* name) const { return integer(require(name), kLowestInt, kHighestInt); }
  int integer_or(const char* name, int other, int lowest, int highest) const {
    const JsonValue* const value = find(name);
    return value != nullptr ? integer(*value, lowest, highest) : other;
  }

  std::wstring text(const JsonValue& value) const {
    if (value.kind != JsonKind::Text || value.text.find('\0') != std::string::npos)
      json_.refuse(value, "is not supported", "a text without a character of value 0");
    return wide_of(value.text);
  }

  bool flag_or(const char* name, bool other) const {
    const JsonValue* const value = find(name);
    if (value == nullptr) return other;
    if (value->kind != JsonKind::Flag) json_.refuse(*value, "is not supported", "true or false");
    return value->flag;
  }

 private:
  void refuse_double(const char* name) const {
    const JsonValue* first = nullptr;
    for (const JsonValue& other : object_.names) {
      if (other.text != name) continue;
      if (first != nullptr) json_.refuse(other, "stands here again", "each key once");
      first = &other;
    }
  }

  const JsonText& json_;
  const JsonValue& object_;
};

// "30000/1001", "25"; both numbers as they are, without reducing them.
std::optional<Rational32> read_rate(const std::string& text) {
  Rational32 rate{0, 1};
  const char* const end = text.data() + text.size();
  const auto [slash, error] = std::from_chars(text.data(), end, rate.numerator);
  if (error != std::errc() || rate.numerator < 0) return std::nullopt;
  if (slash == end) return rate;
  if (*slash != '/') return std::nullopt;
  const auto [stop, second_error] = std::from_chars(slash + 1, end, rate.denominator);
  if (second_error != std::errc() || stop != end || rate.denominator <= 0) return std::nullopt;
  return rate;
}

Rational32 edit_rate_of(const JsonText& json, const Members& members, Rational32 other) {
  const JsonValue* const value = members.find("edit_rate");
  if (value == nullptr) return other;
  const bool is_written = value->kind == JsonKind::Text || value->kind == JsonKind::Whole;
  const std::optional<Rational32> rate =
      is_written ? read_rate(value->kind == JsonKind::Text ? value->text : value->source)
                 : std::nullopt;
  if (!rate) json.refuse(*value, "is no edit rate", "such as 25 or \"30000/1001\"");
  return *rate;
}

Media::MultiviewerSource source_of(const JsonText& json, const JsonValue& object) {
  const Members members(
      json, object, "source",
      {"id", "channel_id", "width", "height", "x_offset", "y_offset", "use_audio"});
  const int id = members.integer("id");
  const std::wstring channel = members.text(members.require("channel_id"));
  const int width = members.integer("width");
  const int height = members.integer("height");
  const int x = members.integer("x_offset");
  const int y = members.integer("y_offset");
  return {id, channel.c_str(), width, height, x, y, members.flag_or("use_audio", false)};
}

Media::MultiviewerConfig config_of(const JsonText& json, const Members& members) {
  Media::MultiviewerConfig defaults;
  const JsonValue* const address = members.find("server_address");
  const std::wstring text = address != nullptr ? members.text(*address) : std::wstring();
  const int port = members.integer_or("port", defaults.port(), 0, 65535);
  const int width = members.integer_or("width", defaults.width(), 1, kWidestRaster);
  const int height = members.integer_or("height", defaults.height(), 1, kWidestRaster);
  const Rational32 rate = edit_rate_of(json, members, defaults.edit_rate());
  return {text.c_str(), port, width,
          height,       rate, members.flag_or("keep_aspect_ratio", defaults.keep_aspect_ratio())};
}

struct Box {
  long long left, top, right, bottom;  // right and bottom lie behind it
};

Box box_of(const Media::MultiviewerSource& tile) {
  const long long left = tile.x_offset();
  const long long top = tile.y_offset();
  return {left, top, left + tile.width(), top + tile.height()};
}

bool has_area(const Box& box) { return box.left < box.right && box.top < box.bottom; }

Box common_part(const Box& a, const Box& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

std::string size_text(long long width, long long height) {
  return std::to_string(width) + 'x' + std::to_string(height);
}

void warn_of_place(const MultiviewerLayout& layout, const std::string& name, const Box& box,
                   std::vector<std::string>& warnings) {
  const std::string size = size_text(box.right - box.left, box.bottom - box.top);
  if (!has_area(box)) {
    warnings.push_back(name + " is " + size + " and shows nothing");
    return;
  }
  const Box raster{0, 0, layout.config.width(), layout.config.height()};
  const Box seen = common_part(box, raster);
  const std::string place = " the raster of " + size_text(raster.right, raster.bottom) + ": " +
                            size + " at " + std::to_string(box.left) + ',' +
                            std::to_string(box.top);
  if (!has_area(seen))
    warnings.push_back(name + " lies outside" + place);
  else if (seen.left != box.left || seen.top != box.top || seen.right != box.right ||
           seen.bottom != box.bottom)
    warnings.push_back(name + " reaches beyond" + place);
}

void warn_of_pair(const std::string& first, const Media::MultiviewerSource& a,
                  const std::string& second, const Media::MultiviewerSource& b,
                  std::vector<std::string>& warnings) {
  if (a.id() == b.id()) warnings.push_back(first + " and " + second + " have the same id");
  const Box box_a = box_of(a);
  const Box box_b = box_of(b);
  const Box both = common_part(box_a, box_b);
  if (has_area(box_a) && has_area(box_b) && has_area(both))
    warnings.push_back(first + " and " + second +
                       " overlap: " + size_text(both.right - both.left, both.bottom - both.top) +
                       " at " + std::to_string(both.left) + ',' + std::to_string(both.top));
}

}  // namespace

MultiviewerLayout read_layout(const JsonText& json) {
  const Members members(
      json, json.root(), "layout",
      {"server_address", "port", "width", "height", "edit_rate", "keep_aspect_ratio", "sources"});
  MultiviewerLayout layout{config_of(json, members), {}};
  const JsonValue& sources = members.require("sources");
  if (sources.kind != JsonKind::List) json.refuse(sources, "is no list", "the list of sources");
  for (const JsonValue& source : sources.values) layout.sources.add_source(source_of(json, source));
  return layout;
}

std::string tile_name(std::size_t index, const Media::MultiviewerSource& tile) {
  return "tile " + std::to_string(index + 1) + " (id " + std::to_string(tile.id()) + ')';
}

std::vector<std::string> warnings_of(const MultiviewerLayout& layout) {
  std::vector<std::string> warnings;
  for (std::size_t i = 0; i < layout.sources.size(); ++i) {
    const Media::MultiviewerSource tile = layout.sources.source_at(i);
    warn_of_place(layout, tile_name(i, tile), box_of(tile), warnings);
    for (std::size_t j = 0; j < i; ++j) {
      const Media::MultiviewerSource former = layout.sources.source_at(j);
      warn_of_pair(tile_name(j, former), former, tile_name(i, tile), tile, warnings);
    }
  }
  return warnings;
}

}  // namespace Korvane::Tool
