// Signed 64-bit arithmetic that wraps instead of overflowing.

#ifndef KV_ENGINE_SRC_FOUNDATION_WRAPPING_H
#define KV_ENGINE_SRC_FOUNDATION_WRAPPING_H

namespace Korvane {

constexpr long long wrapping_add(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) +
                                static_cast<unsigned long long>(b));
}

constexpr long long wrapping_multiply(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) *
                                static_cast<unsigned long long>(b));
}

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_FOUNDATION_WRAPPING_H
