// Takes values from the bytes that the fuzzer gives.

#ifndef KV_ENGINE_FUZZ_INPUT_H
#define KV_ENGINE_FUZZ_INPUT_H

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace Korvane {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  // The next value; zero bytes where there are no more.
  template <typename Value>
  Value take() {
    Value value{};
    const std::size_t count = std::min(sizeof value, size_);
    std::memcpy(&value, data_, count);
    data_ += count;
    size_ -= count;
    return value;
  }

  // Whether a sequence of operations goes on: up to a length that is worth its time.
  bool has_operation() { return size_ != 0 && operations_++ < 8; }

  // Below `count`.
  unsigned int take_below(unsigned int count) { return take<std::uint8_t>() % count; }

  bool take_bool() { return (take<std::uint8_t>() & 1) != 0; }

  // A rate, most often a supported one.
  unsigned short take_rate() {
    constexpr unsigned short kRates[] = {24, 25, 30, 50, 60};
    const auto choice = take<std::uint8_t>();
    return choice < 250 ? kRates[choice % 5] : take<unsigned short>();
  }

  std::string rest() const { return {reinterpret_cast<const char*>(data_), size_}; }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  int operations_ = 0;
};

// Ends the run when `holds` is false: a finding.
inline void expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace Korvane
#endif  // KV_ENGINE_FUZZ_INPUT_H
