// Takes the place of the media folder in builds without its libraries.

#include "failure.h"
#include "media_inputs.h"

namespace Korvane::Tool {
namespace {

[[noreturn]] void refuse(const char* what) {
  throw UsageError(std::string("this build has no media support, which ") + what + " needs");
}

}  // namespace

std::unique_ptr<TimecodeSource> open_media_timecodes(Input&, const std::optional<Rate>&) {
  refuse("gaps --input media");
}

std::unique_ptr<TimecodeSource> open_ltc_timecodes(Input&, const Rate&) {
  refuse("gaps --input ltc");
}

int run_probe(const ProbeOptions&, Streams&) { refuse("probe"); }

int run_sdp(const SdpOptions&, Streams&) { refuse("sdp"); }

int run_srt(const SrtOptions&, Streams&) { refuse("srt"); }

}  // namespace Korvane::Tool
