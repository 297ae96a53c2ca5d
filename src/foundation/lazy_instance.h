// The one object of a class, created on first use and never destroyed.

#ifndef KV_ENGINE_FOUNDATION_LAZY_INSTANCE_H
#define KV_ENGINE_FOUNDATION_LAZY_INSTANCE_H

#include <atomic>
#include <boost/thread/lock_guard.hpp>
#include <boost/thread/mutex.hpp>
#include <new>

namespace Korvane {

// For objects of static duration.
template <typename T>
class LazyInstance {
 public:
  LazyInstance() noexcept { new (&mutex) boost::mutex; }
  LazyInstance(const LazyInstance&) = delete;
  LazyInstance& operator=(const LazyInstance&) = delete;
  ~LazyInstance() {}  // NOLINT(modernize-use-equals-default): not the mutex, see below

  // `create` returns a new object. It is called once, unless it fails: then the next call tries
  // again.
  template <typename Create>
  T& get(Create create) {
    T* instance = instance_.load(std::memory_order_acquire);
    if (instance == nullptr) {
      const boost::lock_guard<boost::mutex> lock(mutex);
      instance = instance_.load(std::memory_order_relaxed);
      if (instance == nullptr) {
        instance = create();
        instance_.store(instance, std::memory_order_release);
      }
    }
    return *instance;
  }

 private:
  std::atomic<T*> instance_{nullptr};
  union {
    boost::mutex mutex;  // never destroyed: the first use may come while the process ends
  };
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_LAZY_INSTANCE_H
