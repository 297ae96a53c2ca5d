// The operations that a host calls for every frame, one at a time, for a tool that counts
// instructions (scripts/checks/speed) and for systems without the benchmark library
// (scripts/bench):
//
//   per_frame                  prints their names
//   per_frame NAME TIMES       runs one of them
//   per_frame --time TIMES     prints the nanoseconds of one call of each, the median of 7 runs

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "kv_engine.h"
#include "support/watched.h"

namespace Korvane {
namespace {

constexpr long long kStart = 1234567;  // 11:26:33;21 at 30 drop-frame

// What is answered goes here, so that no call is left out.
volatile unsigned long long sink;

Timecode start() { return {30, kStart, true}; }

void construct_from_label(long times) {
  for (long i = 0; i < times; ++i) sink = Timecode(30, 11, 26, 33, 21, true, false).frame_count();
}

void construct_from_count(long times) {
  for (long i = 0; i < times; ++i) sink = Timecode(30, kStart + i, true).frame_count();
}

void construct_from_word(long times) {
  const unsigned int word = start().to_12m();
  for (long i = 0; i < times; ++i) sink = Timecode(30, word).frame_count();
}

void copy(long times) {
  const Timecode original = start();
  for (long i = 0; i < times; ++i) sink = Timecode(original).frame_count();
}

void step(long times) {
  Timecode timecode = start();
  for (long i = 0; i < times; ++i) ++timecode;
}

void step_back(long times) {
  Timecode timecode = start();
  for (long i = 0; i < times; ++i) --timecode;
}

void add(long times) {
  Timecode timecode = start();
  for (long i = 0; i < times; ++i) timecode.add(1001);
}

void print(long times) {
  Timecode timecode = start();
  for (long i = 0; i < times; ++i)
    sink = static_cast<unsigned char>(
        timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix)[10]);
}

void parse(long times) {
  for (long i = 0; i < times; ++i)
    sink = TimecodeUtils::load_timecode_from_string(30, "11:26:33;21", Timecode::DropFrameSemicolon,
                                                    Timecode::FieldMarkDotSuffix)
               .frame_count();
}

void pack(long times) {
  const Timecode timecode = start();
  for (long i = 0; i < times; ++i) sink = timecode.to_12m();
}

void pack_full(long times) {
  const Timecode timecode = start();
  for (long i = 0; i < times; ++i) sink = timecode.to_12m_full();
}

void share(long times) {
  Watch watch;
  const Media::FramePtr held(new WatchedFrame(watch));
  for (long i = 0; i < times; ++i) sink = Media::FramePtr(held).get() != nullptr;
}

struct Operation {
  const char* name;
  void (*run)(long times);
};

constexpr Operation kOperations[] = {
    {"construct_from_label", construct_from_label},
    {"construct_from_count", construct_from_count},
    {"construct_from_word", construct_from_word},
    {"copy", copy},
    {"step", step},
    {"step_back", step_back},
    {"add", add},
    {"print", print},
    {"parse", parse},
    {"pack", pack},
    {"pack_full", pack_full},
    {"share", share},
};

double nanoseconds_of_a_call(const Operation& operation, long times) {
  std::array<double, 7> runs = {};
  for (double& run : runs) {
    const auto start = std::chrono::steady_clock::now();
    operation.run(times);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    run = taken.count() / static_cast<double>(times);
  }
  std::sort(runs.begin(), runs.end());
  return runs[runs.size() / 2];
}

void print_times(long times) {
  for (const Operation& operation : kOperations)
    std::printf("%s %.2f\n", operation.name, nanoseconds_of_a_call(operation, times));
}

}  // namespace
}  // namespace Korvane

int main(int count, char** arguments) {
  if (count == 3 && std::strcmp(arguments[1], "--time") == 0) {
    Korvane::print_times(std::max(1L, std::atol(arguments[2])));
    return EXIT_SUCCESS;
  }
  for (const Korvane::Operation& operation : Korvane::kOperations) {
    if (count == 1) std::puts(operation.name);
    if (count != 3 || std::strcmp(operation.name, arguments[1]) != 0) continue;
    operation.run(std::atol(arguments[2]));
    return EXIT_SUCCESS;
  }
  return count == 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}
