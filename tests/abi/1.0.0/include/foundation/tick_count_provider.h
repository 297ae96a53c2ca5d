// A source of tick counts. The library reads no clock; whoever needs ticks is given one of these.

#ifndef KV_ENGINE_FOUNDATION_TICK_COUNT_PROVIDER_H
#define KV_ENGINE_FOUNDATION_TICK_COUNT_PROVIDER_H

#include "foundation/export.h"

namespace Korvane {

class KV_ENGINE_API TickCountProvider {
 public:
  TickCountProvider();
  TickCountProvider(const TickCountProvider& other);
  TickCountProvider& operator=(const TickCountProvider& other);
  virtual ~TickCountProvider();

  // The ticks since a moment that the implementing module chooses, as it chooses their unit. Never
  // falls; called from any thread.
  virtual unsigned long long tick_count() const = 0;
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_TICK_COUNT_PROVIDER_H
