// What a file says of a video stream.

#ifndef KV_TOOLS_KVTOOL_MEDIA_VIDEO_TRACK_H
#define KV_TOOLS_KVTOOL_MEDIA_VIDEO_TRACK_H

#include <optional>
#include <string>

#include "foundation/rational32.h"
#include "media/media_file.h"
#include "rate.h"

namespace Korvane::Tool {

struct VideoTrack {
  int stream;
  std::string codec;
  std::string profile;  // may be empty
  int width, height;
  Rational32 frame_rate;
  unsigned short timecode_rate;  // 0 when no timecode counts at the frame rate
};

VideoTrack video_track_of(const MediaFile& file, AVStream& stream);

// "no timecode counts at this rate", for the user.
std::string describe_rate_without_timecode(const MediaFile& file, const Rational32& frame_rate);

// Raises InputError for a frame rate at which no timecode counts.
Rate timecode_rate_of(const MediaFile& file, AVStream& stream);

// How many frames the container states for the stream, where it counts frames at all.
std::optional<unsigned long long> stated_frames(const MediaFile& file, AVStream& stream);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_VIDEO_TRACK_H
