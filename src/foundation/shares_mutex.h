// The mutex of all shares of one object, which deletes itself.

#ifndef KV_ENGINE_FOUNDATION_SHARES_MUTEX_H
#define KV_ENGINE_FOUNDATION_SHARES_MUTEX_H

#include <atomic>
#include <boost/thread/mutex.hpp>

namespace Korvane::Utils {

// Only made by new, by the first share. Every other share enters it once, with the lock; every
// share leaves it once, without the lock and as its last use. `last` says whether the count came to
// 0.
#ifdef _WIN32
// Here boost::mutex touches itself after it has given up its lock, where others wait for it: it
// must outlive every unlock(), not only every lock.
class SharesMutex : public boost::mutex {
 public:
  void enter() { inside_.fetch_add(1, std::memory_order_relaxed); }
  void leave(bool /*last*/) {
    if (inside_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 private:
  std::atomic<unsigned int> inside_{1};
};
#else
class SharesMutex : public boost::mutex {
 public:
  void enter() {}
  void leave(bool last) {
    if (last) delete this;
  }
};
#endif

}  // namespace Korvane::Utils
#endif  // KV_ENGINE_FOUNDATION_SHARES_MUTEX_H
