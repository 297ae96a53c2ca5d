// The functions that the host looks up in the module by name. All else goes through the interfaces
// of kv_Engine_r.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_MODULE_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_MODULE_H

#include "counted.h"
#include "media/i_frame_provider.h"

#ifdef _WIN32
#define PLAYOUT_EXPORT extern "C" __declspec(dllexport)
#else
#define PLAYOUT_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace Playout {

struct ObjectCounts {
  ObjectCount providers;
  ObjectCount descriptors;
  ObjectCount frames;
  ObjectCount samples;
};

}  // namespace Playout

// A new provider of "tone-and-bars". The caller owns it: FrameProviderPtr takes it over.
PLAYOUT_EXPORT Korvane::Media::IFrameProvider* playout_new_frame_provider();

// What the module created and destroyed since it was opened.
PLAYOUT_EXPORT void playout_object_counts(Playout::ObjectCounts* counts);

#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_MODULE_H
