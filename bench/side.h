// Every benchmark is named OPERATION/SIDE: what is done, and by whom.

#ifndef KV_ENGINE_BENCH_SIDE_H
#define KV_ENGINE_BENCH_SIDE_H

#include <benchmark/benchmark.h>

namespace Korvane {

// Runs `operation` as often as the benchmark asks and keeps what it answers from being optimised
// away.
template <typename Operation>
bool measure(const char* name, Operation operation) {
  benchmark::RegisterBenchmark(name, [operation](benchmark::State& state) mutable {
    for (auto _ : state) benchmark::DoNotOptimize(operation());
  });
  return true;
}

}  // namespace Korvane
#endif  // KV_ENGINE_BENCH_SIDE_H
