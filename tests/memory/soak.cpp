// A host that never rests: every exported operation, one after the other, on four threads at full
// speed, which also share samples and frames through handles.
//
//   soak SECONDS
//
// Resident memory must stay flat after a warm-up of a tenth of the time.

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <thread>
#include <vector>

#include <unistd.h>

#include "core/logger.h"
#include "memory/case_list.h"
#include "support/watched.h"

namespace Korvane::MemoryTests {
namespace {

constexpr int kThreads = 4;
constexpr long kAllowedGrowth = 512;  // KiB: a few bytes for each round of a minute show
using Clock = std::chrono::steady_clock;

std::atomic<bool> stop{false};
std::atomic<unsigned long long> operations{0};
std::atomic<unsigned long long> refusals{0};

long resident_kib() {
  long size = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// Frames that all threads share, each behind a handle that they replace and copy in turn.
class Exchange {
 public:
  void replace(unsigned int place) {
    const Media::FramePtr fresh(new WatchedFrame(watch_));
    const std::lock_guard lock(mutex_);
    frames_[place % frames_.size()] = fresh;
  }

  Media::FramePtr take(unsigned int place) {
    const std::lock_guard lock(mutex_);
    return frames_[place % frames_.size()];
  }

  void clear() {
    for (Media::FramePtr& frame : frames_) frame.reset();
  }
  long alive() const { return watch_.alive(); }

 private:
  Watch watch_;
  std::mutex mutex_;
  std::array<Media::FramePtr, 16> frames_;
};

// The singletons are used by one thread; their beginning, beside which nothing may allocate, and
// the ends of their copies belong to the tests.
bool is_for(unsigned int thread, const Case& each) {
  const auto is_named = [&](const char* part) {
    return each.covered.find(part) != std::string::npos;
  };
  if (is_named("Singleton::~") || is_named("Singleton::instance") || is_named("Singleton()"))
    return false;
  return thread == 0 || !is_named("Singleton");
}

Cases cases_for(unsigned int thread) {
  Cases all;
  for (const auto add : {add_foundation_cases, add_sample_cases, add_setting_cases,
                         add_source_cases, add_stream_cases, add_timecode_cases, add_track_cases})
    add(all);
  Cases mine;
  for (Case& each : all)
    if (is_for(thread, each)) mine.push_back(std::move(each));
  return mine;
}

void work(unsigned int thread, Exchange& exchange) {
  const Cases cases = cases_for(thread);
  std::array<Media::FramePtr, 4> held;
  for (unsigned int place = thread; !stop; ++place) {
    const Case& each = cases[place % cases.size()];
    each.run();
    held[place % held.size()] = exchange.take(place);
    if (place % 8 == thread) exchange.replace(place / 8);
  }
}

void ignore_line(void* /*context*/, const char* /*text*/) {}

int soak(int seconds) {
  Logging::Logger::instance().set_sink(ignore_line, nullptr);
  Exchange exchange;
  std::vector<std::thread> threads;
  for (unsigned int number = 0; number < kThreads; ++number)
    threads.emplace_back(work, number, std::ref(exchange));
  const auto start = Clock::now();
  long warm = 0;
  long highest = 0;
  for (int tenth = 1; tenth <= 10; ++tenth) {
    std::this_thread::sleep_until(start + std::chrono::milliseconds(100LL * seconds * tenth));
    const long resident = resident_kib();
    if (tenth == 1) warm = resident;
    highest = std::max(highest, resident);
    std::printf("%5d s  %12llu operations  %10llu refused  %6ld KiB resident\n",
                seconds * tenth / 10, operations.load(), refusals.load(), resident);
    std::fflush(stdout);
  }
  stop = true;
  for (std::thread& thread : threads) thread.join();
  exchange.clear();
  const bool flat = highest - warm <= kAllowedGrowth;
  std::printf("%s: grown by %ld KiB after the warm-up; %ld frames left over\n",
              flat ? "flat" : "NOT FLAT", highest - warm, exchange.alive());
  return flat && exchange.alive() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

// Here a case runs as it would in a host, with all the memory that it asks for.
void exhaust(Attempt& attempt, Failing /*as*/) {
  attempt.make();
  if (outcome_of([&] { attempt.operate(); }) == Outcome::Refused) ++refusals;
  attempt.end();
  ++operations;
}

}  // namespace Korvane::MemoryTests

int main(int count, char** arguments) {
  const int seconds = count == 2 ? std::atoi(arguments[1]) : 0;
  if (seconds <= 0) {
    std::fprintf(stderr, "soak: expected the number of seconds, 1 or more\n");
    return EXIT_FAILURE;
  }
  return Korvane::MemoryTests::soak(seconds);
}
