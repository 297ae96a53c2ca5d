// What the host prints at the end.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_SUMMARY_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_SUMMARY_H

#include "counted.h"
#include "kv_engine.h"
#include "monitor.h"

namespace Playout {

void print_track(const Korvane::Media::TrackDescriptor& track);

void print_signals(const Monitor& monitor);

// Answers whether there were none.
bool print_faults(const Monitor::Faults& faults);

// Answers whether as many objects were created as the host `expected`, and all of them destroyed.
bool print_count(const char* name, unsigned int expected, ObjectCount count);

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_SUMMARY_H
