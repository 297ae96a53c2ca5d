// Where a fixed number of threads wait for each other, again and again. Stands for std::barrier:
// that of GCC 12's library loses wake-ups on Windows, and its threads then wait for ever.

#ifndef KV_ENGINE_TESTS_SUPPORT_RENDEZVOUS_H
#define KV_ENGINE_TESTS_SUPPORT_RENDEZVOUS_H

#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>

namespace Korvane {

class Rendezvous {
 public:
  // The last of each `threads` to arrive calls `when_all_are_here` before any of them goes on.
  Rendezvous(int threads, std::function<void()> when_all_are_here)
      : threads_(threads), when_all_are_here_(std::move(when_all_are_here)) {}

  void arrive_and_wait() {
    std::unique_lock lock(mutex_);
    if (++arrived_ == threads_) {
      when_all_are_here_();
      arrived_ = 0;
      ++meetings_;
      all_are_here_.notify_all();
      return;
    }
    all_are_here_.wait(lock, [this, meeting = meetings_] { return meetings_ != meeting; });
  }

 private:
  const int threads_;
  const std::function<void()> when_all_are_here_;
  std::mutex mutex_;
  std::condition_variable all_are_here_;
  int arrived_ = 0;
  unsigned int meetings_ = 0;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_RENDEZVOUS_H
