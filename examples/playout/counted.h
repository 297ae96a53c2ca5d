// Counts the objects of a class, so that a leak shows. Handles are let go on any thread: the counts
// are atomic.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_COUNTED_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_COUNTED_H

#include <atomic>

namespace Playout {

struct ObjectCount {
  unsigned int created = 0;
  unsigned int destroyed = 0;
};

// A member of every object of the class Owner.
template <typename Owner>
class Counted {
 public:
  Counted() { ++tally().created; }
  Counted(const Counted& /*other*/) : Counted() {}
  Counted& operator=(const Counted&) = default;
  ~Counted() { ++tally().destroyed; }

  static ObjectCount count() { return {tally().created, tally().destroyed}; }

 private:
  struct Tally {
    std::atomic<unsigned int> created{0};
    std::atomic<unsigned int> destroyed{0};
  };

  static Tally& tally() {
    static Tally counts;
    return counts;
  }
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_COUNTED_H
