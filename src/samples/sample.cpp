#include "media/sample.h"

namespace Korvane::Memory {

Sample::Sample() = default;

Sample::Sample(const Sample& other) = default;

Sample& Sample::operator=(const Sample& other) = default;

Sample::~Sample() = default;

}  // namespace Korvane::Memory
