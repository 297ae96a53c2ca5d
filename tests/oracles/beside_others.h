// What is counted of each library.

#ifndef KV_ENGINE_TESTS_ORACLES_BESIDE_OTHERS_H
#define KV_ENGINE_TESTS_ORACLES_BESIDE_OTHERS_H

#include <array>
#include <cstddef>

extern "C" {
#include <libavutil/rational.h>
}

namespace Korvane {

constexpr AVRational kRealRate = {30000, 1001};

constexpr std::size_t kOurs = 0;
constexpr std::size_t kLibraryCount = 4;  // ours, libavutil, GStreamer, libltc

struct Count {
  long wrong = 0;
  long of = 0;  // 0: the library does no such thing

  void add(bool is_wrong) {
    ++of;
    if (is_wrong) ++wrong;
  }
};

using Counts = std::array<Count, kLibraryCount>;

struct MemoryCounts {
  Counts ended;
  Counts leaked;
};

MemoryCounts run_without_memory();

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_ORACLES_BESIDE_OTHERS_H
