// The first calls of every instance(), raced by several threads in a fresh process, again and
// again.

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstring>
#include <future>
#include <thread>
#include <vector>

#include "kv_engine.h"
#include "support/run_self.h"

namespace Korvane {
namespace {

constexpr int kThreads = 4;
constexpr int kProcesses = 1000;
constexpr char kRace[] = "--race";

using Instances = std::array<const void*, 3>;

Instances call_every_instance() {
  return {&AdditionalProcessHandlerSingleton::instance(),
          &StorageAuthenticationSingleton::instance(),
          &Media::EncodingPerfListenerSingleton::instance()};
}

// 0 when all threads got the same objects, and these worked at once.
int race() {
  std::array<Instances, kThreads> seen = {};
  std::atomic<int> waiting{kThreads};
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (Instances& instances : seen) {
    threads.emplace_back([&] {
      --waiting;
      while (waiting != 0) std::this_thread::yield();
      instances = call_every_instance();
      AdditionalProcessHandlerSingleton::instance().set_new_process(1);
      StorageAuthenticationSingleton::instance().authenticate_storage(L"");
      Media::EncodingPerfListenerSingleton::instance()
          .new_encoding_perf_listener("")
          ->frame_dropped(0);
    });
  }
  for (std::thread& thread : threads) thread.join();
  const Instances expected = call_every_instance();
  for (const Instances& instances : seen)
    if (instances != expected) return 1;
  return 0;
}

TEST(SingletonsRace, AThousandFreshProcessesCreateOneObjectEach) {
  std::atomic<int> started{0};
  std::atomic<int> failed{0};
  const auto run = [&] {
    while (started++ < kProcesses)
      if (run_self(kRace) != 0) ++failed;
  };
  std::future<void> second = std::async(std::launch::async, run);
  run();
  second.get();
  EXPECT_EQ(0, failed);
}

}  // namespace
}  // namespace Korvane

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], Korvane::kRace) == 0) return Korvane::race();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
