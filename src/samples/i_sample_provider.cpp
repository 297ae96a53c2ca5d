#include "media/i_sample_provider.h"

namespace Korvane::Media {

ISampleProvider::ISampleProvider() = default;

ISampleProvider::ISampleProvider(const ISampleProvider& other) = default;

ISampleProvider& ISampleProvider::operator=(const ISampleProvider& other) = default;

ISampleProvider::~ISampleProvider() = default;

}  // namespace Korvane::Media
