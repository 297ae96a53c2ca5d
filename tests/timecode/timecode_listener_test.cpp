#include "timecode/timecode_listener.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <vector>

#include "timecode/timecode.h"

namespace Korvane {
namespace {

static_assert(sizeof(TimecodeListener) == sizeof(void*));
static_assert(std::is_abstract_v<TimecodeListener>);
static_assert(std::has_virtual_destructor_v<TimecodeListener>);

class Recorder : public TimecodeListener {
 public:
  explicit Recorder(int& destroyed) : destroyed_(&destroyed) {}
  Recorder(const Recorder&) = default;
  Recorder& operator=(const Recorder&) = default;
  ~Recorder() override { ++*destroyed_; }

  void timecode_received(unsigned long long frame_index, const Timecode& timecode) override {
    received.push_back(timecode.frame_count() - static_cast<long long>(frame_index));
  }
  void timecode_missing(unsigned long long frame_index) override { missing.push_back(frame_index); }

  std::vector<long long> received;
  std::vector<unsigned long long> missing;

 private:
  int* destroyed_;
};

TEST(TimecodeListener, ReceivesAndIsDestroyedThroughItsInterface) {
  int destroyed = 0;
  {
    auto owned = std::make_unique<Recorder>(destroyed);
    Recorder& recorder = *owned;
    const std::unique_ptr<TimecodeListener> listener = std::move(owned);
    listener->timecode_received(1, Timecode(25, 101LL, false));
    listener->timecode_missing(2);
    EXPECT_EQ(std::vector<long long>{100}, recorder.received);
    EXPECT_EQ(std::vector<unsigned long long>{2}, recorder.missing);
  }
  EXPECT_EQ(1, destroyed);
}

TEST(TimecodeListener, CopiesAndAssigns) {
  int destroyed = 0;
  Recorder first(destroyed);
  first.timecode_missing(7);
  Recorder second(first);
  EXPECT_EQ(first.missing, second.missing);
  Recorder third(destroyed);
  TimecodeListener& assigned = third.operator=(second);
  EXPECT_EQ(&third, &assigned);
  EXPECT_EQ(first.missing, third.missing);
}

}  // namespace
}  // namespace Korvane
