// What `kvtool probe` found: filled by one part, printed as text or JSON by others.

#ifndef KV_TOOLS_KVTOOL_MEDIA_PROBE_REPORT_H
#define KV_TOOLS_KVTOOL_MEDIA_PROBE_REPORT_H

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "difference_log.h"
#include "media/frame_timecodes.h"
#include "media/source_info.h"
#include "media/video_track.h"
#include "streams.h"
#include "timecode/timecode.h"
#include "tracks.h"

namespace Korvane::Tool {

// Short, because a long recording has many.
struct ListedTimecode {
  unsigned long long frame;
  long long frame_count;
  bool drop_frame;
};

struct FrameDifference {
  unsigned long long frame;
  Difference difference;
};

struct FrameTimecodeList {
  TimecodeCarrier carrier;
  std::vector<ListedTimecode> list;
  std::vector<FrameDifference> differences;
};

struct StoredTimecode {
  std::string text;   // as the file has it, or as its first frame carries it
  std::string where;  // "container", "video stream 0", "frames"
  Timecode value;     // of frame 0
};

// The container's start timecode and that of the first frame's own, brought to frame 0.
struct StartDifference {
  std::string container;
  std::string first_frame;
};

struct ProbeReport {
  std::string file;
  std::string format, format_name;
  std::unique_ptr<Media::SourceInfo> source;  // null where the file has no identifiers
  TrackReport tracks;
  std::vector<VideoTrack> video;
  // What keeps the timecodes of a video from being shown: the line for the user.
  std::optional<std::string> complaint;
  Rate rate;                                 // of the first video stream, which the rest is about
  std::optional<unsigned long long> frames;  // absent where none are read: no video, no rate
  std::optional<StoredTimecode> start;
  std::optional<Timecode> end;  // of the last frame
  std::optional<FrameTimecodeList> frame_timecodes;
  std::optional<StartDifference> start_difference;

  Timecode value_of(const ListedTimecode& listed) const {
    return Timecode(rate.nominal, listed.frame_count, listed.drop_frame);
  }
};

// Raises InputError.
ProbeReport read_probe_report(const std::string& path, Streams& streams);

struct SourceText {
  const char* name;  // as a JSON key
  std::optional<std::string> value;
};

// Every field of the source: UMIDs in digits, the name in UTF-8.
std::vector<SourceText> texts_of(const Media::SourceInfo& source);

void write_text(std::ostream& out, const ProbeReport& report, Ink ink = {});
void write_json(std::ostream& out, const ProbeReport& report);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_PROBE_REPORT_H
