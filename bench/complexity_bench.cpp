// How the cost grows: not at all with the frame count, with the digits of a UMID and the values of
// a list in step, with the keys of a descriptor as a logarithm.

#include <random>
#include <string>

#include "media/picture_track_descriptor.h"
#include "media/srt_stream_stats_data_list.h"
#include "media/umid.h"
#include "side.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

void growth_from_count(benchmark::State& state) {
  const long long count = 1LL << state.range(0);
  for (auto _ : state) benchmark::DoNotOptimize(Timecode(30, count, true).frame_count());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(growth_from_count)->DenseRange(2, 62, 20)->Complexity(benchmark::o1);

// Digits by chance, in groups of eight as they are usually written.
std::wstring umid_text(long digits) {
  std::minstd_rand source(1);
  std::wstring text;
  for (long i = 0; i < digits; ++i) {
    if (i > 0 && i % 8 == 0) text += L'.';
    text += L"0123456789ABCDEF"[source() / 16 % 16];
  }
  return text;
}

void growth_umid_parse(benchmark::State& state) {
  const std::wstring text = umid_text(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(Media::Umid(text.c_str()).value());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(growth_umid_parse)->RangeMultiplier(4)->Range(64, 1 << 20)->Complexity(benchmark::oN);

void growth_umid_print(benchmark::State& state) {
  const Media::Umid umid(umid_text(state.range(0)).c_str());
  for (auto _ : state) {
    benchmark::DoNotOptimize(umid.c_str());
    benchmark::ClobberMemory();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(growth_umid_print)->RangeMultiplier(4)->Range(64, 1 << 20)->Complexity(benchmark::oN);

void growth_list_copy(benchmark::State& state) {
  Media::SRTStreamStatsDataList list;
  for (long i = 0; i < state.range(0); ++i) list.add_value(Media::SRTStreamStatsData());
  for (auto _ : state) benchmark::DoNotOptimize(Media::SRTStreamStatsDataList(list).size());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(growth_list_copy)->RangeMultiplier(4)->Range(16, 1 << 14)->Complexity(benchmark::oN);

void growth_look_up(benchmark::State& state) {
  Media::PictureTrackDescriptor descriptor;
  for (long i = 0; i < state.range(0); ++i)
    descriptor.add_key_value(("key " + std::to_string(i)).c_str(), "value");
  const std::string key = "key " + std::to_string(state.range(0) / 3);
  for (auto _ : state) benchmark::DoNotOptimize(descriptor.get_key_value(key.c_str()));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(growth_look_up)->RangeMultiplier(4)->Range(16, 1 << 14)->Complexity(benchmark::oLogN);

}  // namespace
}  // namespace Korvane
