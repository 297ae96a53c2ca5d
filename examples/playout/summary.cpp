#include "summary.h"

#include <cstdio>
#include <string>

namespace Playout {
namespace {

using Korvane::Timecode;
using Korvane::Media::TrackDescriptor;

const char* text_under(const TrackDescriptor& track, const char* key) {
  const char* const text = track.get_key_value(key);
  return text != nullptr ? text : "?";
}

const char* text_of(const Timecode& timecode) {
  return timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkOmitted);
}

void print_tone(const char* channel, const ToneMeter& tone) {
  std::printf("%-10s %.0f Hz, peak %.2f dBFS, RMS %.2f dBFS, %u clicks\n", channel,
              tone.frequency(), tone.peak_dbfs(), tone.rms_dbfs(), tone.clicks());
}

}  // namespace

void print_track(const TrackDescriptor& track) {
  const bool sound = track.essence_kind() == Korvane::Media::EssencePcm;
  // Attributes that were never set are absent.
  const unsigned int id = track.track_id() != nullptr ? *track.track_id() : 0;
  const auto rate =
      track.sample_rate() != nullptr ? *track.sample_rate() : Korvane::Rational32{0, 1};

  std::printf("track %u    %s, %d/%d per second, ", id, sound ? "sound" : "picture", rate.numerator,
              rate.denominator);
  if (sound)
    std::printf("%s channels, ", text_under(track, "channels"));
  else
    std::printf("%sx%s, %s, ", text_under(track, "width"), text_under(track, "height"),
                text_under(track, "matrix"));
  std::printf("%s\n", text_under(track, "layout"));
}

void print_signals(const Monitor& monitor) {
  for (const std::string& signal : monitor.signals())
    std::printf("announced  %s\n", signal.c_str());
  for (const Monitor::Run& run : monitor.runs())
    std::printf("played     %s to %s, %u frames\n", text_of(run.first), text_of(run.last),
                run.frames);
  std::printf("bars      ");
  for (const Rgb& bar : monitor.bars()) std::printf(" %ld/%ld/%ld", bar[0], bar[1], bar[2]);
  std::printf(" (R/G/B in %%)\n");
  print_tone("left", monitor.left());
  print_tone("right", monitor.right());
}

bool print_faults(const Monitor::Faults& faults) {
  std::printf("faults     %u timecodes, %u times, %u pictures, %u samples\n", faults.timecodes,
              faults.times, faults.pictures, faults.samples);
  return faults.timecodes + faults.times + faults.pictures + faults.samples == 0;
}

bool print_count(const char* name, unsigned int expected, ObjectCount count) {
  const bool agreed = count.created == expected && count.destroyed == expected;
  std::printf("  %-11s %6u %8u %10u%s\n", name, expected, count.created, count.destroyed,
              agreed ? "" : "  <- disagree");
  return agreed;
}

}  // namespace Playout
