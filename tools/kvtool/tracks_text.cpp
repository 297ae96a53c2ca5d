#include <algorithm>

#include "enum_names.h"
#include "printable.h"
#include "tracks.h"

namespace Korvane::Tool {
namespace {

constexpr const char* kIndent = "  ";

std::string readable(std::string name) {
  std::replace(name.begin(), name.end(), '_', ' ');
  return name;
}

std::string quoted_name(const std::string& text) { return '"' + printable_name(text) + '"'; }

void write_line(std::ostream& out, std::string name, const std::string& value) {
  constexpr std::size_t kColumn = 18;
  name.resize(std::max(kColumn, name.size() + 2), ' ');
  out << kIndent << name << value << '\n';
}

std::string describe(const ImageInfo& image) {
  return std::to_string(image.width) + 'x' + std::to_string(image.height) +
         (image.interlaced ? " interlaced, " : " progressive, ") + name_of(image.colorspace) +
         ", " + name_of(image.colorimetry);
}

std::string describe(const AudioInfo& audio) {
  return std::to_string(audio.sampling_bits) + " bits, " + std::to_string(audio.channel_count) +
         (audio.channel_count == 1 ? " channel, " : " channels, ") +
         std::to_string(audio.sampling_rate) + " per second, block align " +
         std::to_string(audio.block_align());
}

// "1920 960 960".
std::string plane_texts(const Layout& layout, unsigned int PlaneSize::*member) {
  std::string texts;
  for (const PlaneSize& plane : layout.planes) {
    if (!texts.empty()) texts += ' ';
    texts += std::to_string(plane.*member);
  }
  return texts;
}

void write_layouts(std::ostream& out, const std::vector<Layout>& layouts, Ink ink) {
  if (layouts.empty()) return;
  Table table{{"raw_layout", "planes", "depth", "stride", "lines", "frame_bytes"}, {}};
  for (const Layout& layout : layouts)
    table.rows.push_back(
        {std::string(name_of(layout.colorspace)), static_cast<long long>(layout.planes.size()),
         layout.component_depth ? Cell(static_cast<long long>(*layout.component_depth)) : Cell(),
         plane_texts(layout, &PlaneSize::stride), plane_texts(layout, &PlaneSize::lines),
         static_cast<long long>(layout.frame_bytes)});
  write_text(out, table, kIndent, ink);
}

void write_track(std::ostream& out, const TrackSource& source,
                 const Media::TrackDescriptor& descriptor, Ink ink) {
  std::string heading = "track of stream " + std::to_string(source.stream) + ": " +
                        kind_of(descriptor) + ", " + source.codec;
  if (!source.profile.empty()) heading += " (" + source.profile + ')';
  out << '\n' << ink.heading(heading) << '\n';
  for (const TrackField& field : fields_of(descriptor))
    if (!std::holds_alternative<std::monostate>(field.value))
      write_line(out, readable(field.name), text_of(field.value));
  for (const std::string& key : source.keys)
    write_line(out, quoted_name(key), quoted_name(descriptor.get_key_value(key.c_str())));

  const TrackConclusions conclusions = conclusions_of(descriptor);
  if (conclusions.video_format) write_line(out, "video format", name_of(*conclusions.video_format));
  if (conclusions.image_info) write_line(out, "image", describe(*conclusions.image_info));
  if (conclusions.audio_info) write_line(out, "audio", describe(*conclusions.audio_info));
  write_layouts(out, conclusions.layouts, ink);
}

}  // namespace

void write_text(std::ostream& out, const TrackReport& tracks, Ink ink) {
  for (std::size_t i = 0; i < tracks.sources.size(); ++i)
    write_track(out, tracks.sources[i], *tracks.descriptors.track_at(i), ink);
}

}  // namespace Korvane::Tool
