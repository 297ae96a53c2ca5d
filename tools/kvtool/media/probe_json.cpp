#include <nlohmann/json.hpp>

#include "label.h"
#include "media/probe_report.h"
#include "timecode_forms.h"
#include "tracks.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

Json video_json(const VideoTrack& track) {
  Json json = {{"stream", track.stream},  {"codec", track.codec},
               {"profile", nullptr},      {"width", track.width},
               {"height", track.height},  {"frame_rate", describe(track.frame_rate)},
               {"timecode_rate", nullptr}};
  if (!track.profile.empty()) json["profile"] = track.profile;
  if (track.timecode_rate != 0) json["timecode_rate"] = track.timecode_rate;
  return json;
}

Json source_json(const ProbeReport& report) {
  if (report.source == nullptr) return nullptr;
  Json json;
  for (const SourceText& text : texts_of(*report.source))
    json[text.name] = text.value ? Json(*text.value) : Json();
  return json;
}

Json timecode_json(const ProbeReport& report) {
  if (!report.start) return nullptr;
  Json json = {{"stored", {{"text", report.start->text}, {"where", report.start->where}}},
               {"start", to_json(forms_of(report.start->value, report.rate.edit))},
               {"end", nullptr}};
  if (report.end) json["end"] = to_json(forms_of(*report.end, report.rate.edit));
  return json;
}

const char* name_of(TimecodeCarrier carrier) {
  switch (carrier) {
    case TimecodeCarrier::Frame:
      return "frame";
    case TimecodeCarrier::GroupOfPictures:
      return "group_of_pictures";
  }
  return "";
}

Json frame_timecodes_json(const ProbeReport& report) {
  if (!report.frame_timecodes) return nullptr;
  const FrameTimecodeList& timecodes = *report.frame_timecodes;
  Json list = Json::array();
  for (const ListedTimecode& listed : timecodes.list)
    list.push_back({{"frame", listed.frame}, {"timecode", label(report.value_of(listed))}});
  Json differences = Json::array();
  for (const auto& [frame, difference] : timecodes.differences)
    differences.push_back({{"frame", frame},
                           {"expected", difference.expected},
                           {"actual", difference.actual},
                           {"frames", difference.frames}});
  return {{"carrier", name_of(timecodes.carrier)},
          {"count", timecodes.list.size()},
          {"list", std::move(list)},
          {"differences", std::move(differences)}};
}

Json start_difference_json(const ProbeReport& report) {
  if (!report.start_difference) return nullptr;
  return {{"container", report.start_difference->container},
          {"first_frame", report.start_difference->first_frame}};
}

Json report_json(const ProbeReport& report) {
  Json video = Json::array();
  for (const VideoTrack& track : report.video) video.push_back(video_json(track));
  return {{"file", report.file},
          {"container", {{"format", report.format}, {"name", report.format_name}}},
          {"video", std::move(video)},
          {"source", source_json(report)},
          {"tracks", to_json(report.tracks)},
          {"frames", report.frames ? Json(*report.frames) : Json()},
          {"timecode", timecode_json(report)},
          {"frame_timecodes", frame_timecodes_json(report)},
          {"start_difference", start_difference_json(report)}};
}

}  // namespace

// Text of the file that is not UTF-8 does not keep the rest from being read.
void write_json(std::ostream& out, const ProbeReport& report) {
  out << report_json(report).dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace Korvane::Tool
