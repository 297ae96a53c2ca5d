// The tracks of a file, and what the library makes of their descriptors.

#ifndef KV_TOOLS_KVTOOL_TRACKS_H
#define KV_TOOLS_KVTOOL_TRACKS_H

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "layout.h"
#include "media/audio_info.h"
#include "media/image_info.h"
#include "media/track_descriptor.h"
#include "media/track_descriptor_list.h"
#include "media/video_formats.h"
#include "table.h"

namespace Korvane::Tool {

// What a descriptor has no place for.
struct TrackSource {
  int stream;
  std::string codec;
  std::string profile;            // may be empty
  std::vector<std::string> keys;  // of the descriptor's key/values, in the order of the file
};

struct TrackReport {
  Media::TrackDescriptorList descriptors;
  std::vector<TrackSource> sources;  // one for each descriptor
};

// "picture", "sound", "data".
std::string kind_of(const Media::TrackDescriptor& descriptor);

struct TrackField {
  std::string name;  // "sample_rate"
  Cell value;        // empty where the descriptor doesn't define it
};

// Every attribute of the descriptor but its key/values.
std::vector<TrackField> fields_of(const Media::TrackDescriptor& descriptor);

// What follows from a descriptor, as far as it defines enough.
struct TrackConclusions {
  std::optional<Media::VideoFormats> video_format;
  std::optional<ImageInfo> image_info;
  std::vector<Layout> layouts;
  std::optional<AudioInfo> audio_info;
};

TrackConclusions conclusions_of(const Media::TrackDescriptor& descriptor);

void write_text(std::ostream& out, const TrackReport& tracks, Ink ink = {});
nlohmann::ordered_json to_json(const TrackReport& tracks);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TRACKS_H
