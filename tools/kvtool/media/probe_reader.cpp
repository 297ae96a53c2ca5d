#include <span>
#include <utility>

#include "failure.h"
#include "label.h"
#include "media/probe_report.h"
#include "media/source_reader.h"
#include "media/track_reader.h"
#include "printable.h"
#include "progress.h"
#include "reading.h"

namespace Korvane::Tool {
namespace {

struct StoredText {
  std::string text;
  std::string where;
};

std::optional<StoredText> stored_in(const AVDictionary* metadata, const std::string& where) {
  const AVDictionaryEntry* const entry = av_dict_get(metadata, "timecode", nullptr, 0);
  if (entry == nullptr) return std::nullopt;
  return StoredText{entry->value, where};
}

std::string name_of(const AVStream& stream) {
  const char* const type = av_get_media_type_string(stream.codecpar->codec_type);
  return std::string(type != nullptr ? type : "unknown") + " stream " +
         std::to_string(stream.index);
}

// The container's own first, then that of the video stream, then that of any other.
std::optional<StoredText> find_stored_text(const AVFormatContext& format, const AVStream& video) {
  if (auto stored = stored_in(format.metadata, "container")) return stored;
  if (auto stored = stored_in(video.metadata, name_of(video))) return stored;
  for (const AVStream* const stream : std::span(format.streams, format.nb_streams))
    if (auto stored = stored_in(stream->metadata, name_of(*stream))) return stored;
  return std::nullopt;
}

std::optional<StoredTimecode> read_stored(const MediaFile& file, const AVStream& video,
                                          const Rate& rate) {
  std::optional<StoredText> stored = find_stored_text(file.format(), video);
  if (!stored) return std::nullopt;
  const std::optional<Timecode> value = read_label(stored->text, rate);
  if (!value)
    throw InputError(file.name() + ": start timecode of the " + stored->where + ": " +
                     no_label(stored->text, rate));
  return StoredTimecode{std::move(stored->text), std::move(stored->where), *value};
}

// Checks each timecode against the former one, stepped over the frames in between.
class ContinuityCheck {
 public:
  explicit ContinuityCheck(FrameTimecodeList& list) : list_(list) {}

  void add(const FrameTimecode& found) {
    if (previous_) {
      previous_->value.add(static_cast<long long>(found.frame - previous_->frame) - 1);
      const std::string position = "frame " + std::to_string(found.frame);
      if (auto difference = log_.compare(position, previous_->value, found.value))
        list_.differences.push_back({found.frame, std::move(*difference)});
    }
    previous_ = found;
    list_.list.push_back({found.frame, found.value.frame_count(), found.value.drop_frame()});
  }

 private:
  FrameTimecodeList& list_;
  DifferenceLog log_;
  std::optional<FrameTimecode> previous_;
};

void read_frames(const MediaFile& file, AVStream& stream, ProbeReport& report) {
  FrameTimecodes timecodes(file, stream, report.rate);
  FrameTimecodeList list{timecodes.carrier(), {}, {}};
  ContinuityCheck check(list);
  while (const std::optional<FrameTimecode> found = timecodes.next()) {
    check.add(*found);
    report.frames = timecodes.frames_read();
  }
  const unsigned long long frames = timecodes.frames_read();
  report.frames = frames;
  if (!list.list.empty()) report.frame_timecodes = std::move(list);

  const std::optional<unsigned long long> stated = stated_frames(file, stream);
  if (stated && frames + timecodes.frames_discarded() < *stated)
    throw InputError(file.name() + ": " + std::to_string(frames) +
                     " frames can be read (expected " + std::to_string(*stated) +
                     ", which the container states)");
}

// The first own timecode of a frame, stepped back to frame 0.
std::optional<Timecode> start_by_frames(const ProbeReport& report) {
  if (!report.frame_timecodes) return std::nullopt;
  const ListedTimecode& first = report.frame_timecodes->list.front();
  Timecode start = report.value_of(first);
  start.add(-static_cast<long long>(first.frame));
  return start;
}

void conclude(ProbeReport& report) {
  const std::optional<Timecode> by_frames = start_by_frames(report);
  if (!report.start && by_frames)
    report.start = StoredTimecode{label(*by_frames), "frames", *by_frames};
  else if (by_frames &&
           by_frames->absolute_frame_count() != report.start->value.absolute_frame_count())
    report.start_difference = {label(report.start->value), label(*by_frames)};
  if (!report.start || report.frames == 0U) return;
  report.end = report.start->value;
  report.end->add(static_cast<long long>(report.frames.value()) - 1);
}

// The first video stream, frame by frame.
void read_timecodes(const MediaFile& file, Input& input, Streams& streams, ProbeReport& report) {
  const VideoTrack& track = report.video.front();
  if (track.timecode_rate == 0) {
    report.complaint = describe_rate_without_timecode(file, track.frame_rate);
    return;
  }
  AVStream& video = *file.format().streams[track.stream];
  report.rate = timecode_rate_of(file, video);
  report.start = read_stored(file, video, report.rate);
  Progress progress(streams, input.name(), input.size());
  report.frames = 0;
  input.on_read([&] { progress.update(file.bytes_read(), report.frames.value_or(0)); });
  read_frames(file, video, report);
  conclude(report);
  if (!report.start)
    report.complaint = file.name() + ": no timecode (expected one in the container or in a frame)";
}

}  // namespace

ProbeReport read_probe_report(const std::string& path, Streams& streams) {
  Input input(path, streams.in);
  const MediaFile file(input);

  ProbeReport report{};
  report.file = input.name();
  report.format = file.format().iformat->name;
  report.format_name = file.format().iformat->long_name;
  report.source = read_source(file.format());
  report.tracks = read_tracks(file);
  for (AVStream* const stream : std::span(file.format().streams, file.format().nb_streams))
    if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !is_cover_picture(*stream))
      report.video.push_back(video_track_of(file, *stream));
  if (!report.video.empty()) read_timecodes(file, input, streams, report);
  return report;
}

}  // namespace Korvane::Tool
