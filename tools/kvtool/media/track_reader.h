// Describes every stream of a media file: what the file states, and nothing else.

#ifndef KV_TOOLS_KVTOOL_MEDIA_TRACK_READER_H
#define KV_TOOLS_KVTOOL_MEDIA_TRACK_READER_H

#include "media/media_file.h"
#include "tracks.h"

namespace Korvane::Tool {

// In the order of the streams. What is neither picture nor sound is data.
TrackReport read_tracks(const MediaFile& file);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_TRACK_READER_H
