// Reading and printing the text of a UMID: of a basic one, of an extended one, and of ever more
// digits, with which the cost grows and no faster.

#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "media/umid.h"

namespace Korvane::Media {
namespace {

constexpr int kBasicDigits = 64;
constexpr int kMostDigits = 1 << 20;

// Digits by chance, in groups of eight as they are usually written.
std::wstring text_of(long digits) {
  std::minstd_rand source(1);
  std::wstring text;
  for (long i = 0; i < digits; ++i) {
    if (i > 0 && i % 8 == 0) text += L'.';
    text += L"0123456789ABCDEF"[source() / 16 % 16];
  }
  return text;
}

void BM_Umid_FromText(benchmark::State& state) {
  const std::wstring text = text_of(state.range(0));
  for (auto _ : state) {
    const Umid umid(text.c_str());
    benchmark::DoNotOptimize(umid.value());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Umid_FromText)
    ->RangeMultiplier(4)
    ->Range(kBasicDigits, kMostDigits)
    ->Complexity(benchmark::oN);

void BM_Umid_Text(benchmark::State& state) {
  const Umid umid(text_of(state.range(0)).c_str());
  for (auto _ : state) {
    benchmark::DoNotOptimize(umid.c_str());
    benchmark::ClobberMemory();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Umid_Text)
    ->RangeMultiplier(4)
    ->Range(kBasicDigits, kMostDigits)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace Korvane::Media
