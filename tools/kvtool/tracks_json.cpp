#include <nlohmann/json.hpp>

#include "enum_names.h"
#include "tracks.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

Json value_json(const Cell& cell) {
  if (const bool* const flag = std::get_if<bool>(&cell)) return *flag;
  if (const auto* const number = std::get_if<long long>(&cell)) return *number;
  if (const std::string* const text = std::get_if<std::string>(&cell)) return *text;
  return nullptr;
}

Json descriptor_json(const TrackSource& source, const Media::TrackDescriptor& descriptor) {
  Json json;
  for (const TrackField& field : fields_of(descriptor)) json[field.name] = value_json(field.value);
  Json key_values = Json::object();
  for (const std::string& key : source.keys)
    key_values[key] = descriptor.get_key_value(key.c_str());
  json["key_values"] = std::move(key_values);
  return json;
}

Json layout_json(const Layout& layout) {
  Json planes = Json::array();
  for (const PlaneSize& plane : layout.planes)
    planes.push_back({{"stride", plane.stride}, {"lines", plane.lines}});
  return {{"colorspace", name_of(layout.colorspace)},
          {"component_depth", layout.component_depth ? Json(*layout.component_depth) : Json()},
          {"planes", std::move(planes)},
          {"frame_bytes", layout.frame_bytes}};
}

Json image_json(const ImageInfo& image) {
  return {{"width", image.width},
          {"height", image.height},
          {"interlaced", image.interlaced},
          {"colorspace", name_of(image.colorspace)},
          {"colorimetry", name_of(image.colorimetry)}};
}

Json audio_json(const AudioInfo& audio) {
  return {{"sampling_bits", audio.sampling_bits},
          {"channel_count", audio.channel_count},
          {"sampling_rate", audio.sampling_rate},
          {"block_align", audio.block_align()}};
}

void add_picture(const TrackConclusions& conclusions, Json& json) {
  json["video_format"] =
      conclusions.video_format ? Json(name_of(*conclusions.video_format)) : Json();
  json["image_info"] = conclusions.image_info ? image_json(*conclusions.image_info) : Json();
  json["layouts"] = Json::array();
  for (const Layout& layout : conclusions.layouts) json["layouts"].push_back(layout_json(layout));
}

Json track_json(const TrackSource& source, const Media::TrackDescriptor& descriptor) {
  const std::string kind = kind_of(descriptor);
  Json json = {{"stream", source.stream},
               {"kind", kind},
               {"codec", source.codec},
               {"profile", source.profile.empty() ? Json() : Json(source.profile)},
               {"descriptor", descriptor_json(source, descriptor)}};
  const TrackConclusions conclusions = conclusions_of(descriptor);
  if (kind == "picture") add_picture(conclusions, json);
  if (conclusions.audio_info) json["audio_info"] = audio_json(*conclusions.audio_info);
  return json;
}

}  // namespace

Json to_json(const TrackReport& tracks) {
  Json list = Json::array();
  for (std::size_t i = 0; i < tracks.sources.size(); ++i)
    list.push_back(track_json(tracks.sources[i], *tracks.descriptors.track_at(i)));
  return list;
}

}  // namespace Korvane::Tool
