#include "media/video_track.h"

#include "failure.h"

namespace Korvane::Tool {
namespace {

Rational32 frame_rate_of(const MediaFile& file, AVStream& stream) {
  const AVRational rate = av_guess_frame_rate(&file.format(), &stream, nullptr);
  return {rate.num, rate.den};
}

}  // namespace

VideoTrack video_track_of(const MediaFile& file, AVStream& stream) {
  const AVCodecParameters& parameters = *stream.codecpar;
  const char* const profile = avcodec_profile_name(parameters.codec_id, parameters.profile);
  const Rational32 frame_rate = frame_rate_of(file, stream);
  return {stream.index,
          avcodec_get_name(parameters.codec_id),
          profile != nullptr ? profile : "",
          parameters.width,
          parameters.height,
          frame_rate,
          nominal_rate(frame_rate)};
}

std::string describe_rate_without_timecode(const MediaFile& file, const Rational32& frame_rate) {
  return file.name() + ": video of " + describe(frame_rate) +
         " frames per second has no timecode rate (expected 24, 25, 30, 50, 60, 24000/1001, "
         "30000/1001 or 60000/1001)";
}

Rate timecode_rate_of(const MediaFile& file, AVStream& stream) {
  const Rational32 frame_rate = frame_rate_of(file, stream);
  const unsigned short nominal = nominal_rate(frame_rate);
  if (nominal == 0) throw InputError(describe_rate_without_timecode(file, frame_rate));
  return {nominal, frame_rate, false};
}

std::optional<unsigned long long> stated_frames(const MediaFile& file, AVStream& stream) {
  if (stream.nb_frames > 0) return static_cast<unsigned long long>(stream.nb_frames);
  // Elsewhere the duration counts frames when it was read, not estimated, and its unit is a frame.
  const AVRational unit = av_inv_q(stream.time_base);
  const bool counts_frames =
      av_cmp_q(unit, av_guess_frame_rate(&file.format(), &stream, nullptr)) == 0;
  if (file.format().duration_estimation_method != AVFMT_DURATION_FROM_STREAM || !counts_frames ||
      stream.duration <= 0)
    return std::nullopt;
  return static_cast<unsigned long long>(stream.duration);
}

}  // namespace Korvane::Tool
