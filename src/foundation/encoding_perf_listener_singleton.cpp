#include "foundation/encoding_perf_listener_singleton.h"

#include <atomic>

#include "foundation/lazy_instance.h"
#include "media/i_encoding_perf_listener.h"
#include "media/i_encoding_perf_listener_provider.h"

namespace Korvane::Media {

class DummyIEncodingPerfListener final : public IEncodingPerfListener {
 public:
  void frame_encoded(unsigned long long /*number*/, unsigned long long /*duration*/,
                     size_t /*size*/) override {}
  void frame_dropped(unsigned long long /*number*/) override {}
};

class DummyIEncodingPerfListenerProvider final : public IEncodingPerfListenerProvider {
 public:
  IEncodingPerfListenerPtr new_encoding_perf_listener(const char* /*name*/) override {
    return IEncodingPerfListenerPtr(new DummyIEncodingPerfListener);
  }
};

namespace {

LazyInstance<EncodingPerfListenerSingleton> the_perf_listeners;

}  // namespace

struct EncodingPerfListenerSingletonPrivate {
  DummyIEncodingPerfListenerProvider fallback;
  std::atomic<IEncodingPerfListenerProvider*> provider{nullptr};
};

EncodingPerfListenerSingleton& EncodingPerfListenerSingleton::instance() {
  return the_perf_listeners.get([] { return new EncodingPerfListenerSingleton; });
}

EncodingPerfListenerSingleton::EncodingPerfListenerSingleton()
    : private_(new EncodingPerfListenerSingletonPrivate) {}

EncodingPerfListenerSingleton::EncodingPerfListenerSingleton(
    const EncodingPerfListenerSingleton& other) = default;

EncodingPerfListenerSingleton& EncodingPerfListenerSingleton::operator=(
    const EncodingPerfListenerSingleton& other) = default;

EncodingPerfListenerSingleton::~EncodingPerfListenerSingleton() { delete private_; }

void EncodingPerfListenerSingleton::encoding_perf_listener_provider(
    IEncodingPerfListenerProvider* provider) {
  private_->provider = provider;
}

IEncodingPerfListenerPtr EncodingPerfListenerSingleton::new_encoding_perf_listener(
    const char* name) {
  if (IEncodingPerfListenerProvider* const provider = private_->provider)
    return provider->new_encoding_perf_listener(name);
  return private_->fallback.new_encoding_perf_listener(name);
}

}  // namespace Korvane::Media
