#include "media/i_sample_provider.h"

namespace Korvane::Media {

ISampleProvider::ISampleProvider() = default;

ISampleProvider::ISampleProvider(const ISampleProvider&) = default;

ISampleProvider& ISampleProvider::operator=(const ISampleProvider&) = default;

ISampleProvider::~ISampleProvider() = default;

}  // namespace Korvane::Media
