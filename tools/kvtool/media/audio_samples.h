// One channel of decoded audio as floating-point samples from -1 to 1.

#ifndef KV_TOOLS_KVTOOL_MEDIA_AUDIO_SAMPLES_H
#define KV_TOOLS_KVTOOL_MEDIA_AUDIO_SAMPLES_H

#include <vector>

#include "media/libav.h"

namespace Korvane::Tool {

// Of the first channel; replaces the contents of `samples`. False for an unknown sample format.
bool first_channel(const AVFrame& frame, std::vector<float>& samples);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_AUDIO_SAMPLES_H
