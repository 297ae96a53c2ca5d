// What stands behind every exported handle: a share of an object, its count and its mutex.
//
// All that share one object share one RefCount and one mutex as well; the count is the number of
// shares. An empty one has a count and a mutex of its own. Only when memory ran out is there none
// of the three; such a share holds nothing, and may be copied, reset and destroyed like any other.

#ifndef KV_ENGINE_FOUNDATION_BASE_SHARED_PTR_H
#define KV_ENGINE_FOUNDATION_BASE_SHARED_PTR_H

#include <boost/thread/lock_types.hpp>
#include <memory>

#include "foundation/ref_count.h"
#include "foundation/shares_mutex.h"

namespace Korvane::Utils {

template <typename T>
class BaseSharedPtr {
 public:
  // The first share of `object`, which may be null. On failure `object` stays with the caller.
  explicit BaseSharedPtr(T* object) { hold(object); }

  BaseSharedPtr(const BaseSharedPtr& other)
      : object_(other.object_), count_(other.count_), mutex_(other.mutex_) {
    if (mutex_ == nullptr) return;
    const Lock lock(*mutex_);
    count_->increment();
    mutex_->enter();
  }

  BaseSharedPtr& operator=(const BaseSharedPtr&) = delete;

  virtual ~BaseSharedPtr() { release_if_held(); }

  // Gives up the share; the last one deletes the object and then the mutex. Raises
  // boost::lock_error when there is nothing to give up.
  void release() {
    Lock lock = mutex_ != nullptr ? Lock(*mutex_, boost::defer_lock) : Lock();
    lock.lock();
    const unsigned int count = count_->decrement();
    lock.unlock();
    if (count == 0) delete object_;
    mutex_->leave(count == 0);
    object_ = nullptr;
    count_ = nullptr;
    mutex_ = nullptr;
  }

  void release_if_held() {
    if (mutex_ != nullptr) release();
  }

  // Gives up the share, then takes the first share of `object`. On failure `object` is deleted.
  void reset(T* object) {
    std::unique_ptr<T> owned(object);
    release_if_held();
    hold(object);
    static_cast<void>(owned.release());
  }

  T* get() const { return object_; }

 private:
  using Lock = boost::unique_lock<boost::mutex>;

  void hold(T* object) {
    auto count = std::make_unique<RefCount>();
    mutex_ = new SharesMutex;
    count_ = count.release();
    object_ = object;
  }

  T* object_ = nullptr;
  RefCount* count_ = nullptr;
  SharesMutex* mutex_ = nullptr;
};

// A new Impl with the first share of `object`, which is deleted on failure.
template <typename Impl, typename T>
Impl* make_impl(T* object) {
  std::unique_ptr<T> owned(object);
  Impl* const impl = new Impl(object);
  static_cast<void>(owned.release());
  return impl;
}

// Replaces `own` by a copy of `other`. The old share is given up first, as callers can see by when
// the object goes; if the copy then fails, `own` holds nothing.
template <typename Impl>
void assign_impl(Impl*& own, const Impl* other) {
  if (own == other) return;
  own->release_if_held();
  Impl* const copy = new Impl(*other);
  delete own;
  own = copy;
}

}  // namespace Korvane::Utils
#endif  // KV_ENGINE_FOUNDATION_BASE_SHARED_PTR_H
