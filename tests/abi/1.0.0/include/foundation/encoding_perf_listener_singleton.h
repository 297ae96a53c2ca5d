// Where encoders get the listener to report to: from the provider that the host registered, or one
// that ignores everything.
//
// instance() may be called from any thread. Registering and asking take no lock: a provider that is
// replaced while a call is forwarded may still receive that one call.

#ifndef KV_ENGINE_FOUNDATION_ENCODING_PERF_LISTENER_SINGLETON_H
#define KV_ENGINE_FOUNDATION_ENCODING_PERF_LISTENER_SINGLETON_H

#include "foundation/export.h"
#include "foundation/i_encoding_perf_listener_ptr.h"

namespace Korvane {
namespace Media {

class IEncodingPerfListenerProvider;
struct EncodingPerfListenerSingletonPrivate;

class KV_ENGINE_API EncodingPerfListenerSingleton {
 public:
  // Created on the first call; lives until the process ends.
  static EncodingPerfListenerSingleton& instance();

  // A copy shares the registration, and its end frees what the instance still uses: published so,
  // and best left alone.
  EncodingPerfListenerSingleton(const EncodingPerfListenerSingleton& other);
  EncodingPerfListenerSingleton& operator=(const EncodingPerfListenerSingleton& other);
  ~EncodingPerfListenerSingleton();

  // Registers `provider` in place of an earlier one, without owning it: it must live until another
  // or null is registered.
  void encoding_perf_listener_provider(IEncodingPerfListenerProvider* provider);

  // What the registered provider makes for the encoder `name` (UTF-8). Without a provider a new
  // listener that ignores every call.
  IEncodingPerfListenerPtr new_encoding_perf_listener(const char* name);

 private:
  EncodingPerfListenerSingleton();

  EncodingPerfListenerSingletonPrivate* private_;  // bare, since copies share it
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_ENCODING_PERF_LISTENER_SINGLETON_H
