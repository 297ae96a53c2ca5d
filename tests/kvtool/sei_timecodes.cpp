#include "kvtool/sei_timecodes.h"

#include <gtest/gtest.h>

namespace Korvane::Tool {
namespace {

const std::string kStartCode("\0\0\1", 3);
constexpr char kSei = 6;
constexpr char kPictureTiming = 1;

class BitWriter {
 public:
  void put(unsigned int value, int bits) {
    for (int i = bits - 1; i >= 0; --i) {
      if (count_ % 8 == 0) bytes_ += '\0';
      const unsigned int bit = value >> i & 1U;
      bytes_.back() =
          static_cast<char>(static_cast<unsigned char>(bytes_.back()) | bit << (7 - count_ % 8));
      ++count_;
    }
  }

  // A one and zeros up to the end of the byte.
  const std::string& aligned() {
    if (count_ % 8 != 0) put(1, 1);
    while (count_ % 8 != 0) put(0, 1);
    return bytes_;
  }

 private:
  std::string bytes_;
  int count_ = 0;
};

// Two zeros must not be followed by a byte below 4.
std::string with_emulation_prevention(const std::string& bytes) {
  std::string result;
  int zeros = 0;
  for (const char byte : bytes) {
    if (zeros == 2 && static_cast<unsigned char>(byte) < 4) {
      result += '\3';
      zeros = 0;
    }
    result += byte;
    zeros = byte == '\0' ? zeros + 1 : 0;
  }
  return result;
}

std::string picture_timing(const ClockTimestamp& time) {
  BitWriter payload;
  payload.put(0, 4);          // picture structure: frame
  payload.put(1, 1);          // a timestamp follows
  payload.put(0, 2 + 1 + 5);  // progressive, whole frames, nothing dropped
  payload.put(1, 1);          // all fields are given
  payload.put(0, 1 + 1);      // no discontinuity, no dropped count
  payload.put(time.frames, 8);
  payload.put(time.seconds, 6);
  payload.put(time.minutes, 6);
  payload.put(time.hours, 5);
  payload.put(0, 24);  // time offset
  const std::string& bytes = payload.aligned();
  std::string message = {kSei, kPictureTiming, static_cast<char>(bytes.size())};
  return with_emulation_prevention(message + bytes + '\x80');
}

}  // namespace

std::string with_sei_timecodes(const std::string& stream,
                               const std::vector<ClockTimestamp>& timestamps) {
  std::string result;
  std::size_t picture = 0;
  std::size_t start = stream.find(kStartCode);
  while (start != std::string::npos) {
    const std::size_t next = stream.find(kStartCode, start + kStartCode.size());
    std::string unit = stream.substr(start + kStartCode.size(),
                                     next == std::string::npos ? next : next - start - 3);
    if (unit[0] == kSei && unit[1] == kPictureTiming && picture < timestamps.size())
      unit = picture_timing(timestamps[picture++]);
    result += kStartCode + unit;
    start = next;
  }
  EXPECT_EQ(timestamps.size(), picture) << "pictures with a picture-timing message";
  return result;
}

}  // namespace Korvane::Tool
