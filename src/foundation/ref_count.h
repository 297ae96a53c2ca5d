// The count of the handles to one shared object. Not synchronised: its users hold a mutex.

#ifndef KV_ENGINE_FOUNDATION_REF_COUNT_H
#define KV_ENGINE_FOUNDATION_REF_COUNT_H

#include <memory>

namespace Korvane::Utils {

// Only made by new: it deletes itself when the count comes to 0.
class RefCount {
 public:
  // Counts 1.
  RefCount();
  RefCount(const RefCount&) = delete;
  RefCount& operator=(const RefCount&) = delete;
  virtual ~RefCount();

  // Both return the new count. After 0 the object is gone.
  unsigned int increment();
  unsigned int decrement();

 private:
  std::unique_ptr<unsigned int> counter_;
};

}  // namespace Korvane::Utils
#endif  // KV_ENGINE_FOUNDATION_REF_COUNT_H
