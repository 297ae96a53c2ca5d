// Distinct handles to shared objects, used by many threads at once.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <thread>
#include <vector>

#include "support/rendezvous.h"
#include "support/watched.h"

namespace Korvane {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 50;
constexpr int kOperationsPerRound = 20'000;  // of each thread: 1,000,000 in all
constexpr unsigned int kObjects = 16;

using Handles = std::array<Media::FramePtr, kObjects>;

// A round of one thread. `shared` are its own handles to objects that all threads share.
void use_handles(Handles& shared, Watch& watch, std::minstd_rand& random) {
  Handles mine;
  for (int i = 0; i < kOperationsPerRound; ++i) {
    const auto choice = static_cast<unsigned int>(random());
    Media::FramePtr& target = mine[choice / 8 % kObjects];
    const Media::FramePtr& source = shared[choice / 128 % kObjects];
    switch (choice % 8) {
      case 0:
        target.reset();
        break;
      case 1:
        target.reset(new WatchedFrame(watch));
        break;
      case 2:
      case 3:
      case 4:
        target = source;
        break;
      default: {
        const Media::FramePtr copy(source);
        ASSERT_EQ(source.get(), copy.get());
      }
    }
  }
}

TEST(HandleThreads, EveryObjectIsDestroyedOnceAndNotBeforeItsLastHandle) {
  Watch shared_watch;
  Watch own_watch;
  std::array<Handles, kThreads> shared;
  // Between rounds the objects are replaced; the threads themselves let the old ones go, all at
  // once.
  Rendezvous start(kThreads, [&] {
    for (unsigned int object = 0; object < kObjects; ++object) {
      const Media::FramePtr handle(new WatchedFrame(shared_watch));
      for (Handles& handles : shared) handles[object] = handle;
    }
  });
  Rendezvous finish(kThreads, [&] {
    // Every thread still has its handle to each object.
    EXPECT_EQ(static_cast<long>(kObjects), shared_watch.alive());
  });
  std::vector<std::thread> threads;
  for (unsigned int number = 0; number < kThreads; ++number) {
    threads.emplace_back([&, number] {
      std::minstd_rand random(number + 1);
      for (int round = 0; round < kRounds; ++round) {
        start.arrive_and_wait();
        use_handles(shared[number], own_watch, random);
        finish.arrive_and_wait();
        for (Media::FramePtr& handle : shared[number]) handle.reset();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(static_cast<long>(kRounds * kObjects), shared_watch.created);
  EXPECT_EQ(0, shared_watch.alive());
  EXPECT_LT(0, own_watch.created);
  EXPECT_EQ(0, own_watch.alive());
}

}  // namespace
}  // namespace Korvane
