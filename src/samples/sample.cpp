#include "media/sample.h"

namespace Korvane::Memory {

Sample::Sample() = default;

Sample::Sample(const Sample&) = default;

Sample& Sample::operator=(const Sample&) = default;

Sample::~Sample() = default;

}  // namespace Korvane::Memory
