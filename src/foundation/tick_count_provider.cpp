#include "foundation/tick_count_provider.h"

namespace Korvane {

TickCountProvider::TickCountProvider() = default;

TickCountProvider::TickCountProvider(const TickCountProvider&) = default;

TickCountProvider& TickCountProvider::operator=(const TickCountProvider&) = default;

TickCountProvider::~TickCountProvider() = default;

}  // namespace Korvane
