#include "media/i_encoding_perf_listener.h"

namespace Korvane::Media {

IEncodingPerfListener::IEncodingPerfListener() = default;

IEncodingPerfListener::IEncodingPerfListener(const IEncodingPerfListener&) = default;

IEncodingPerfListener& IEncodingPerfListener::operator=(const IEncodingPerfListener&) = default;

IEncodingPerfListener::~IEncodingPerfListener() = default;

}  // namespace Korvane::Media
