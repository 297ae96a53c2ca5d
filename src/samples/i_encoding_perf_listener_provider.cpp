#include "media/i_encoding_perf_listener_provider.h"

namespace Korvane::Media {

IEncodingPerfListenerProvider::IEncodingPerfListenerProvider() = default;

IEncodingPerfListenerProvider::IEncodingPerfListenerProvider(const IEncodingPerfListenerProvider&) =
    default;

IEncodingPerfListenerProvider& IEncodingPerfListenerProvider::operator=(
    const IEncodingPerfListenerProvider&) = default;

IEncodingPerfListenerProvider::~IEncodingPerfListenerProvider() = default;

}  // namespace Korvane::Media
