#include <algorithm>
#include <iomanip>

#include "label.h"
#include "media/probe_report.h"
#include "printable.h"
#include "timecode_forms.h"

namespace Korvane::Tool {
namespace {

constexpr std::size_t kLabelsPerLine = 6;

void write_video(std::ostream& out, const VideoTrack& track) {
  out << "video stream " << track.stream << "  " << track.codec;
  if (!track.profile.empty()) out << " (" << track.profile << ')';
  out << ", " << track.width << 'x' << track.height << ", " << describe(track.frame_rate)
      << " frames per second, ";
  if (track.timecode_rate == 0)
    out << "no timecode rate\n";
  else
    out << "timecode rate " << track.timecode_rate << '\n';
}

void write_source(std::ostream& out, const Media::SourceInfo& source, Ink ink) {
  out << '\n' << ink.heading("source") << '\n';
  for (const SourceText& text : texts_of(source)) {
    if (!text.value) continue;
    std::string name = text.name;
    std::replace(name.begin(), name.end(), '_', ' ');
    out << "  " << std::left << std::setw(18) << name << std::right << printable_name(*text.value)
        << '\n';
  }
}

void write_start_and_end(std::ostream& out, const ProbeReport& report, Ink ink) {
  if (!report.start) {
    out << "\ntimecode        none\n";
    return;
  }
  out << '\n'
      << ink.heading("start timecode, stored as " + in_quotes(report.start->text) + " (" +
                     printable_name(report.start->where) + ')')
      << '\n';
  write_text(out, forms_of(report.start->value, report.rate.edit), "  ");
  if (!report.end) return;
  out << '\n' << ink.heading("end timecode, of the last frame") << '\n';
  write_text(out, forms_of(*report.end, report.rate.edit), "  ");
}

const char* describe(TimecodeCarrier carrier) {
  switch (carrier) {
    case TimecodeCarrier::Frame:
      return "their own ST 12 words";
    case TimecodeCarrier::GroupOfPictures:
      return "the headers of their groups of pictures";
  }
  return "";
}

void write_list(std::ostream& out, const ProbeReport& report, const FrameTimecodeList& timecodes,
                Ink ink) {
  out << '\n'
      << ink.heading("timecodes of " + std::to_string(timecodes.list.size()) + " frames, in " +
                     describe(timecodes.carrier))
      << '\n';
  std::size_t column = 0;
  unsigned long long next = 0;
  for (const ListedTimecode& listed : timecodes.list) {
    if (column == kLabelsPerLine || listed.frame != next) column = 0;
    if (column == 0) out << (next == 0 ? "" : "\n") << std::setw(8) << listed.frame;
    out << "  " << label(report.value_of(listed));
    next = listed.frame + 1;
    ++column;
  }
  out << '\n';
}

void write_differences(std::ostream& out, const FrameTimecodeList& timecodes, Ink ink) {
  out << '\n';
  if (timecodes.differences.empty()) out << "continuous: every timecode follows from the former\n";
  for (const FrameDifference& difference : timecodes.differences)
    out << difference.difference.line << ink.alarm(describe_jump(difference.difference.frames))
        << '\n';
}

}  // namespace

void write_text(std::ostream& out, const ProbeReport& report, Ink ink) {
  out << printable_name(report.file) << '\n';
  out << "container       " << report.format_name << '\n';
  for (const VideoTrack& track : report.video) write_video(out, track);
  if (report.frames) out << "frames          " << *report.frames << '\n';
  if (report.source != nullptr) write_source(out, *report.source, ink);
  write_text(out, report.tracks, ink);
  if (report.frames) write_start_and_end(out, report, ink);
  if (report.frame_timecodes) {
    write_list(out, report, *report.frame_timecodes, ink);
    write_differences(out, *report.frame_timecodes, ink);
  }
  if (report.start_difference)
    out << "the container starts at " << report.start_difference->container << ", the frames at "
        << report.start_difference->first_frame << '\n';
}

}  // namespace Korvane::Tool
