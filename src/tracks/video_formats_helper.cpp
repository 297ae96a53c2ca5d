#include "media/video_formats_helper.h"

#include "core/exception.h"
#include "media/picture_track_descriptor.h"
#include "tracks/enum_table.h"

namespace Korvane::Media::VideoFormatsHelper {
namespace {

struct Row {
  VideoFormats key;
  unsigned int width;
  unsigned int height;
  bool interlaced;
  Rational32 edit_rate;
  Rational32 aspect_ratio;
  unsigned short rounded_rate;
  bool is_uhd;
  bool is_found;  // by its raster, scanning and rate; Ntsc and Pal are found by their rasters
};

// clang-format off
constexpr Row kRows[] = {
    // key            raster      interl. edit rate      aspect  rounded uhd found
    {Ntsc,              720,  486, true,  {30000, 1001}, { 4, 3}, 30, false, false},
    {Pal,               720,  576, true,  {   25,    1}, { 4, 3}, 25, false, false},
    {Hd1080p2398,      1920, 1080, false, {24000, 1001}, {16, 9}, 24, false, true},
    {Hd1080p24,        1920, 1080, false, {   24,    1}, {16, 9}, 24, false, true},
    {Hd1080p25,        1920, 1080, false, {   25,    1}, {16, 9}, 25, false, true},
    {Hd1080p2997,      1920, 1080, false, {30000, 1001}, {16, 9}, 30, false, true},
    {Hd1080p30,        1920, 1080, false, {   30,    1}, {16, 9}, 30, false, true},
    {Hd1080p50,        1920, 1080, false, {   50,    1}, {16, 9}, 50, false, true},
    {Hd1080p50Alt,     1920, 1080, false, {   50,    1}, {16, 9}, 50, false, false},
    {Hd1080p5994,      1920, 1080, false, {60000, 1001}, {16, 9}, 60, false, true},
    {Hd1080p5994Alt,   1920, 1080, false, {60000, 1001}, {16, 9}, 60, false, false},
    {Hd1080p60,        1920, 1080, false, {   60,    1}, {16, 9}, 60, false, true},
    {Hd1080p60Alt,     1920, 1080, false, {   60,    1}, {16, 9}, 60, false, false},
    {Hd1080i50,        1920, 1080, true,  {   25,    1}, {16, 9}, 25, false, true},
    {Hd1080i5994,      1920, 1080, true,  {30000, 1001}, {16, 9}, 30, false, true},
    {Hd1080i60,        1920, 1080, true,  {   30,    1}, {16, 9}, 30, false, true},
    {Hd720p50,         1280,  720, false, {   50,    1}, {16, 9}, 50, false, true},
    {Hd720p5994,       1280,  720, false, {60000, 1001}, {16, 9}, 60, false, true},
    {Hd720p60,         1280,  720, false, {   60,    1}, {16, 9}, 60, false, true},
    {Hd1080p2997Alt,   1920, 1080, false, {30000, 1001}, {16, 9}, 30, false, false},
    {Hd1080p25Alt,     1920, 1080, false, {   25,    1}, {16, 9}, 25, false, false},
    {Hd1080p2398Alt,   1920, 1080, false, {24000, 1001}, {16, 9}, 24, false, false},
    {Uhd2160p60,       3840, 2160, false, {   60,    1}, {16, 9}, 60, true,  true},
    {Uhd2160p60Alt,    3840, 2160, false, {   60,    1}, {16, 9}, 60, false, false},
    {Uhd2160p5994,     3840, 2160, false, {60000, 1001}, {16, 9}, 60, true,  true},
    {Uhd2160p5994Alt,  3840, 2160, false, {60000, 1001}, {16, 9}, 60, false, false},
    {Uhd2160p50,       3840, 2160, false, {   50,    1}, {16, 9}, 50, true,  true},
    {Uhd2160p50Alt,    3840, 2160, false, {   50,    1}, {16, 9}, 50, false, false},
    {Uhd2160p30,       3840, 2160, false, {   30,    1}, {16, 9}, 30, true,  true},
    {Uhd2160p2997,     3840, 2160, false, {30000, 1001}, {16, 9}, 30, true,  true},
    {Uhd2160p25,       3840, 2160, false, {   25,    1}, {16, 9}, 25, true,  true},
    {Uhd2160p24,       3840, 2160, false, {   24,    1}, {16, 9}, 24, true,  true},
    {Uhd2160p2398,     3840, 2160, false, {24000, 1001}, {16, 9}, 24, true,  true},
    {Uhd2160p2997Alt,  3840, 2160, false, {30000, 1001}, {16, 9}, 30, true,  false},
    {Uhd2160p25Alt,    3840, 2160, false, {   25,    1}, {16, 9}, 25, true,  false},
    {Uhd2160p2398Alt,  3840, 2160, false, {24000, 1001}, {16, 9}, 24, true,  false},
    {Hd1080p2997Alt2,  1920, 1080, false, {30000, 1001}, {16, 9}, 30, false, false},
    {Hd1080p25Alt2,    1920, 1080, false, {   25,    1}, {16, 9}, 25, false, false},
};
// clang-format on

static_assert(is_complete(kRows, static_cast<VideoFormats>(UnknownFormat - 1)));

constexpr bool are_equal(const Rational32& a, const Rational32& b) {
  return a.numerator == b.numerator && a.denominator == b.denominator;
}

constexpr bool describes(const Row& row, unsigned int width, unsigned int height, bool interlaced,
                         const Rational32& edit_rate) {
  return row.width == width && row.height == height && row.interlaced == interlaced &&
         are_equal(row.edit_rate, edit_rate);
}

constexpr bool each_is_found_by_its_own() {
  for (const Row& a : kRows)
    for (const Row& b : kRows)
      if (a.is_found && b.is_found && a.key != b.key &&
          describes(a, b.width, b.height, b.interlaced, b.edit_rate))
        return false;
  return true;
}
static_assert(each_is_found_by_its_own());

const Row& require_row(VideoFormats format, const char* message) {
  const Row* const row = find_row(kRows, format);
  exception_enforce(row != nullptr, InvalidArgument, message, true);
  return *row;
}

template <typename T>
T require_attribute(const T* value, const char* message) {
  exception_enforce(value != nullptr, MissingProperty, message, true);
  return *value;
}

}  // namespace

unsigned int width(VideoFormats format) {
  return require_row(format, "Unsupported value for video parameters (width mapping)").width;
}

unsigned int height(VideoFormats format) {
  return require_row(format, "Unsupported value for video parameters (height mapping)").height;
}

bool interlaced(VideoFormats format) {
  return require_row(format, "Unsupported value for video parameters (interlaced mapping)")
      .interlaced;
}

Rational32 edit_rate(VideoFormats format) {
  return require_row(format, "Unsupported value for video parameters (edit rate mapping)")
      .edit_rate;
}

Rational32 aspect_ratio(VideoFormats format) {
  return require_row(format, "Unsupported value for video parameters (aspect ratio mapping)")
      .aspect_ratio;
}

unsigned short rounded_frame_rate(VideoFormats format) {
  return require_row(format, "Unable to retrieve rounded frame rate for given format").rounded_rate;
}

bool is_uhd_format(VideoFormats format) {
  const Row* const row = find_row(kRows, format);
  return row != nullptr && row->is_uhd;
}

bool is_pal(const Rational32& edit_rate) {
  return are_equal(edit_rate, {25, 1}) || are_equal(edit_rate, {50, 1});
}

bool is_720p_edit_rate(const Rational32& edit_rate) {
  return are_equal(edit_rate, {60000, 1001}) || are_equal(edit_rate, {5994, 100}) ||
         are_equal(edit_rate, {60, 1}) || are_equal(edit_rate, {50, 1});
}

bool is_pal_dimensions(unsigned int width, unsigned int height) {
  return width == 720 && (height == 625 || height == 576);
}

bool is_ntsc_dimensions(unsigned int width, unsigned int height) {
  return width == 720 && (height == 525 || height == 486);
}

VideoFormats format_from_descriptor(const PictureTrackDescriptor& descriptor) {
  const unsigned int width =
      require_attribute(descriptor.width(), "Picture track descriptor doesn't define width");
  const unsigned int height =
      require_attribute(descriptor.height(), "Picture track descriptor doesn't define height");
  const bool interlaced = require_attribute(descriptor.interlaced(),
                                            "Picture track descriptor doesn't define interlaced");
  const Rational32 edit_rate = require_attribute(
      descriptor.sample_rate(), "Picture track descriptor doesn't define sample_rate");

  if (is_pal_dimensions(width, height)) return Pal;
  if (is_ntsc_dimensions(width, height)) return Ntsc;
  for (const Row& row : kRows)
    if (row.is_found && describes(row, width, height, interlaced, edit_rate)) return row.key;
  return UnknownFormat;
}

}  // namespace Korvane::Media::VideoFormatsHelper
