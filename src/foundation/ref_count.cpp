#include "foundation/ref_count.h"

namespace Korvane::Utils {

RefCount::RefCount() : counter_(new unsigned int(1)) {}

RefCount::~RefCount() = default;

unsigned int RefCount::increment() { return ++*counter_; }

unsigned int RefCount::decrement() {
  const unsigned int count = --*counter_;
  if (count == 0) delete this;
  return count;
}

}  // namespace Korvane::Utils
