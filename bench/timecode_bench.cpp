// What hosts call per frame, and that no operation grows with the frame count.

#include <benchmark/benchmark.h>

#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

constexpr auto kSemicolon = Timecode::DropFrameSemicolon;
constexpr auto kDot = Timecode::FieldMarkDotSuffix;

void BM_Timecode_FromCount(benchmark::State& state) {
  const long long count = 1LL << state.range(0);
  for (auto _ : state) benchmark::DoNotOptimize(Timecode(30, count, true).absolute_frame_count());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Timecode_FromCount)->DenseRange(2, 62, 20)->Complexity(benchmark::o1);

void BM_Timecode_FromLabel(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(Timecode(30, 1, 2, 3, 4, true, false).frame_count());
}
BENCHMARK(BM_Timecode_FromLabel);

void BM_Timecode_Step(benchmark::State& state) {
  Timecode timecode(30, true);
  for (auto _ : state) ++timecode;
  benchmark::DoNotOptimize(timecode.frame_count());
}
BENCHMARK(BM_Timecode_Step);

void BM_Timecode_Text(benchmark::State& state) {
  const Timecode timecode(30, 1, 2, 3, 4, true, false);
  for (auto _ : state) benchmark::DoNotOptimize(timecode.c_str(kSemicolon, kDot));
}
BENCHMARK(BM_Timecode_Text);

void BM_Timecode_Formatter(benchmark::State& state) {
  const Timecode timecode(30, 1, 2, 3, 4, true, false);
  for (auto _ : state) benchmark::DoNotOptimize(timecode.formatter("%HH:%MM:%SS:%FF"));
}
BENCHMARK(BM_Timecode_Formatter);

void BM_Timecode_Words(benchmark::State& state) {
  const Timecode timecode(30, 1, 2, 3, 4, true, false);
  for (auto _ : state) {
    benchmark::DoNotOptimize(timecode.to_12m());
    benchmark::DoNotOptimize(timecode.to_12m_full());
  }
}
BENCHMARK(BM_Timecode_Words);

void BM_Timecode_StrictParse(benchmark::State& state) {
  for (auto _ : state) {
    const Timecode timecode =
        TimecodeUtils::load_timecode_from_string(30, "01:02:03;04", kSemicolon, kDot);
    benchmark::DoNotOptimize(timecode.frame_count());
  }
}
BENCHMARK(BM_Timecode_StrictParse);

}  // namespace
}  // namespace Korvane
