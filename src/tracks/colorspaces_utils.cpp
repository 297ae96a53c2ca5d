#include "media/colorspaces_utils.h"

#include <bit>
#include <initializer_list>

#include "core/exception.h"
#include "tracks/enum_table.h"

namespace Korvane::ColorspacesUtils {
namespace {

// Bytes of a line: its pixels multiplied, then divided, then rounded up to the alignment, a power
// of two.
struct LineBytes {
  unsigned int multiplier;
  unsigned int divisor;
  unsigned int alignment;
};

constexpr LineBytes kNone = {0, 0, 1};
constexpr LineBytes kHalf = {1, 2, 1};
constexpr LineBytes kV210Blocks = {16, 6, 128};  // 6 pixels in 16 bytes
constexpr LineBytes kPairsIn5 = {5, 2, 1};

constexpr LineBytes times(unsigned int bytes) { return {bytes, 1, 1}; }

struct Row {
  Colorspaces key;
  unsigned int planes;           // 0: not known, and so no line bytes either
  unsigned int component_depth;  // 0: not known
  LineBytes first_plane;
  LineBytes other_planes;
  unsigned int width_step;    // the width must be a multiple of it; a power of two
  unsigned int line_divisor;  // of the lines of the other planes
  const char* wrong_plane;    // the message for planes that do not exist
};

constexpr const char* kYuv420p = "YUV420P doesn't support given plane";
constexpr const char* kYuv422p = "YUV422P doesn't support given plane";
constexpr const char* kUyvy = "UYVY doesn't support given plane";
constexpr const char* kV210 = "V210 doesn't support given plane";
constexpr const char* kV216 = "V216 doesn't support given plane";
constexpr const char* kYuv422p10le = "YUV422P10LE doesn't support given plane";
constexpr const char* kRgb24 = "RGB24 doesn't support given plane";
constexpr const char* kFourBytes = "ARGB, RGBA and DPX10 doesn't support given plane";
constexpr const char* kRgba64 = "RGBA64 doesn't support given plane";
constexpr const char* kSmpte2110 = "SMPTE2110 10bits doesn't support given plane";

// clang-format off
constexpr Row kRows[] = {
    // key             planes depth first plane other planes step lines wrong plane
    {ColorspaceUndefined, 0,  0, kNone,       kNone,    1, 1, nullptr},
    {Yuv420p,             3,  8, times(1),    kHalf,    1, 2, kYuv420p},
    {Yuv422p,             3,  8, times(1),    kHalf,    1, 1, kYuv422p},
    {Uyvy,                1,  8, times(2),    kNone,    1, 1, kUyvy},
    {V210,                1, 10, kV210Blocks, kNone,    1, 1, kV210},
    {V216,                1, 10, times(4),    kNone,    1, 1, kV216},
    {Colorspace6,         0, 10, kNone,       kNone,    1, 1, nullptr},
    {Colorspace7,         0, 10, kNone,       kNone,    1, 1, nullptr},
    {Yuv422p10le,         3, 10, times(2),    times(1), 1, 1, kYuv422p10le},
    {Yuv422p10leAlt,      3, 10, times(2),    times(1), 1, 1, kYuv422p10le},
    {Colorspace10,        0,  0, kNone,       kNone,    1, 1, nullptr},
    {Rgb24,               1, 16, times(3),    kNone,    1, 1, kRgb24},
    {Argb,                1,  0, times(4),    kNone,    1, 1, kFourBytes},
    {Rgba,                1,  8, times(4),    kNone,    1, 1, kFourBytes},
    {Rgba64,              1, 16, times(8),    kNone,    1, 1, kRgba64},
    {Rgba64Alt,           1, 16, times(8),    kNone,    1, 1, kRgba64},
    {Dpx10,               1, 10, times(4),    kNone,    1, 1, kFourBytes},
    {Smpte2110Yuv10,      1, 10, kPairsIn5,   kNone,    2, 1, kSmpte2110},
    {Yuv420pAlt,          3,  8, times(1),    kHalf,    1, 2, kYuv420p},
};
// clang-format on

static_assert(is_complete(kRows, Yuv420pAlt));

constexpr bool planes_have_line_bytes() {
  for (const Row& row : kRows) {
    if ((row.planes > 0) != (row.first_plane.divisor > 0)) return false;
    if ((row.planes > 0) != (row.wrong_plane != nullptr)) return false;
    if ((row.planes > 1) != (row.other_planes.divisor > 0)) return false;
  }
  return true;
}
static_assert(planes_have_line_bytes());

constexpr bool divisors_are_known() {
  for (const Row& row : kRows)
    for (const unsigned int divisor : {row.first_plane.divisor, row.other_planes.divisor})
      if (divisor > 2 && divisor != 6) return false;
  return true;
}
static_assert(divisors_are_known());

constexpr bool steps_are_powers_of_two() {
  for (const Row& row : kRows)
    if (!std::has_single_bit(row.width_step) || !std::has_single_bit(row.first_plane.alignment) ||
        !std::has_single_bit(row.other_planes.alignment))
      return false;
  return true;
}
static_assert(steps_are_powers_of_two());

// By constants: dividing by a variable takes longer than all the rest.
unsigned int divided(unsigned int bytes, unsigned int divisor) {
  if (divisor == 1) return bytes;
  return divisor == 2 ? bytes / 2 : bytes / 6;
}

unsigned int bytes_of_line(const LineBytes& rule, unsigned int width) {
  const unsigned int bytes = divided(width * rule.multiplier, rule.divisor);
  return (bytes + rule.alignment - 1) & ~(rule.alignment - 1);
}

}  // namespace

unsigned int planes_for_colorspace(Colorspaces colorspace) {
  const Row* const row = find_row(kRows, colorspace);
  exception_enforce(row != nullptr && row->planes != 0, UnmappedValue,
                    "Unable to map between colorspace and planes count", true);
  return row->planes;
}

unsigned int component_depth_for_colorspace(Colorspaces colorspace) {
  const Row* const row = find_row(kRows, colorspace);
  exception_enforce(row != nullptr && row->component_depth != 0, UnmappedValue,
                    "Unable to map between colorspace and component depth", true);
  return row->component_depth;
}

unsigned int stride_for_colorspace(Colorspaces colorspace, unsigned int width, unsigned int plane) {
  const Row* const row = find_row(kRows, colorspace);
  if (row == nullptr || row->planes == 0)
    exception_throw(InvalidArgument, "Unable to map between colorspace and stride", true);
  if (plane >= row->planes) exception_throw(InvalidArgument, row->wrong_plane, true);
  if ((width & (row->width_step - 1)) != 0)
    exception_throw(InvalidArgument, "Width must be aligned", true);
  return bytes_of_line(plane == 0 ? row->first_plane : row->other_planes, width);
}

unsigned int heigth_for_colorspace(Colorspaces colorspace, unsigned int height,
                                   unsigned int plane) {
  const Row* const row = find_row(kRows, colorspace);
  return row == nullptr || plane == 0 ? height : height / row->line_divisor;
}

}  // namespace Korvane::ColorspacesUtils
