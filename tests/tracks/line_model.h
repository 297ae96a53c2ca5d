// The lines of each raw layout by a naive model, and how the library compares with it.

#ifndef KV_ENGINE_TESTS_TRACKS_LINE_MODEL_H
#define KV_ENGINE_TESTS_TRACKS_LINE_MODEL_H

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "core/exception.h"
#include "media/colorspaces_utils.h"

namespace Korvane {

constexpr unsigned int kLastNamed = 18;

// Every named layout, 64 values beyond, and the ends of the type.
inline std::vector<unsigned int> every_value() {
  std::vector<unsigned int> values;
  for (unsigned int value = 0; value <= kLastNamed + 64; ++value) values.push_back(value);
  values.insert(values.end(), {0x7FFFFFFFU, 0x80000001U, 0xFFFFFFFFU});
  return values;
}

inline Colorspaces layout(unsigned int value) { return static_cast<Colorspaces>(value); }

// A naive model: line bytes, or the message of the error, in 64 bits cut to 32 after each product.
struct Line {
  unsigned long long bytes;
  const char* error;
};

inline unsigned long long product(unsigned long long a, unsigned long long b) {
  return a * b % 4294967296ULL;
}

inline Line planar(unsigned long long first, unsigned long long others, unsigned int plane,
                   const char* error) {
  if (plane > 2) return {0, error};
  return {plane == 0 ? first : others, nullptr};
}

inline Line packed(unsigned long long bytes, unsigned int plane, const char* error) {
  if (plane != 0) return {0, error};
  return {bytes, nullptr};
}

inline Line expected_line(unsigned int value, unsigned long long width, unsigned int plane) {
  switch (value) {
    case 1:
    case 18:
      return planar(width, width / 2, plane, "YUV420P doesn't support given plane");
    case 2:
      return planar(width, width / 2, plane, "YUV422P doesn't support given plane");
    case 3:
      return packed(product(width, 2), plane, "UYVY doesn't support given plane");
    case 4: {
      unsigned long long bytes = product(width, 16) / 6;
      while (bytes % 128 != 0) ++bytes;
      return packed(bytes, plane, "V210 doesn't support given plane");
    }
    case 5:
      return packed(product(width, 4), plane, "V216 doesn't support given plane");
    case 8:
    case 9:
      return planar(product(width, 2), width, plane, "YUV422P10LE doesn't support given plane");
    case 11:
      return packed(product(width, 3), plane, "RGB24 doesn't support given plane");
    case 12:
    case 13:
    case 16:
      return packed(product(width, 4), plane, "ARGB, RGBA and DPX10 doesn't support given plane");
    case 14:
    case 15:
      return packed(product(width, 8), plane, "RGBA64 doesn't support given plane");
    case 17:
      if (plane != 0) return {0, "SMPTE2110 10bits doesn't support given plane"};
      if (width % 2 != 0) return {0, "Width must be aligned"};
      return {product(width, 5) / 2, nullptr};
    default:
      return {0, "Unable to map between colorspace and stride"};
  }
}

// Bare of all that takes time when it holds, as the whole domain raises millions of errors.
inline bool stride_equals(const Line& expected, unsigned int value, unsigned int width,
                          unsigned int plane) {
  try {
    const unsigned int bytes = ColorspacesUtils::stride_for_colorspace(layout(value), width, plane);
    return expected.error == nullptr && bytes == expected.bytes;
  } catch (const Exception& error) {
    return expected.error != nullptr && error.code() == InvalidArgument &&
           std::strcmp(error.message(), expected.error) == 0;
  }
}

inline ::testing::AssertionResult stride_is_as_expected(unsigned int value, unsigned int width,
                                                        unsigned int plane) {
  const Line expected = expected_line(value, width, plane);
  if (stride_equals(expected, value, width, plane)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "layout " << value << ", width " << width << ", plane " << plane << ": not "
         << expected.bytes << " bytes, or not "
         << (expected.error != nullptr ? expected.error : "without an error");
}

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_TRACKS_LINE_MODEL_H
