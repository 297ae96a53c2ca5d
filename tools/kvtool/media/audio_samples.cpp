#include "media/audio_samples.h"

#include <cstdint>

extern "C" {
#include <libavutil/samplefmt.h>
}

namespace Korvane::Tool {
namespace {

// Planes begin at addresses that suit their sample type.
template <typename Sample>
void convert(const AVFrame& frame, std::size_t step, double zero, double full_scale,
             std::vector<float>& samples) {
  const auto* sample = reinterpret_cast<const Sample*>(frame.extended_data[0]);
  for (int i = 0; i < frame.nb_samples; ++i, sample += step)
    samples.push_back(static_cast<float>((static_cast<double>(*sample) - zero) / full_scale));
}

}  // namespace

bool first_channel(const AVFrame& frame, std::vector<float>& samples) {
  const auto format = static_cast<AVSampleFormat>(frame.format);
  const bool planar = av_sample_fmt_is_planar(format) != 0;
  const std::size_t step = planar ? 1 : static_cast<std::size_t>(frame.ch_layout.nb_channels);
  samples.clear();
  const AVSampleFormat packed = av_get_packed_sample_fmt(format);
  if (packed == AV_SAMPLE_FMT_U8)
    convert<std::uint8_t>(frame, step, 128, 128, samples);
  else if (packed == AV_SAMPLE_FMT_S16)
    convert<std::int16_t>(frame, step, 0, 32768, samples);
  else if (packed == AV_SAMPLE_FMT_S32)
    convert<std::int32_t>(frame, step, 0, 2147483648.0, samples);
  else if (packed == AV_SAMPLE_FMT_FLT)
    convert<float>(frame, step, 0, 1, samples);
  else if (packed == AV_SAMPLE_FMT_DBL)
    convert<double>(frame, step, 0, 1, samples);
  else
    return false;
  return true;
}

}  // namespace Korvane::Tool
