#include "answer.h"
#include "enum_names.h"
#include "media/picture_track_descriptor.h"
#include "media/video_formats_helper.h"
#include "rate.h"
#include "table_command.h"

namespace Korvane::Tool {
namespace {

using Media::VideoFormats;
namespace Helper = Media::VideoFormatsHelper;

constexpr TableOption kFormatOptions[] = {
    {"--value", "value", TableValue::Number, "N", "The format of this number"},
    {"--name", "name", TableValue::Listed, "NAME", "The format of this name"},
    {"--width", "width", TableValue::Number, "PIXELS", "Formats of this width"},
    {"--height", "height", TableValue::Number, "LINES", "Formats of this height"},
    {"--scanning", "scanning", TableValue::Listed, "SCANNING:{interlaced,progressive}",
     "Formats of this scanning"},
    {"--rate", "edit_rate", TableValue::Rate, "RATE", "Formats of so many frames per second"},
    {"--aspect", "aspect_ratio", TableValue::Listed, "RATIO:{4/3,16/9}", "Formats of this picture"},
    {"--uhd", "uhd", TableValue::YesNo, "WHETHER:{yes,no}", "Whether the library counts it as UHD"},
};

constexpr const char* kFormatFooter =
    R"(Without a filter, every format; with several, those that pass them all. The edit rate
counts frames, also of interlaced formats. "found as" is the format that a picture track
of this raster, scanning and rate is taken for.

Examples:
  kvtool formats
  kvtool formats --width 3840 --rate 60000/1001
  kvtool formats --scanning interlaced --csv

JSON and CSV:
  The columns are value, name, width, height, scanning, edit_rate, aspect_ratio,
  rounded_rate, uhd, found_as; no value (of UnknownFormat) is null, or an empty field.

Exit codes:
  0  done
  2  wrong usage)";

VideoFormats found_as(VideoFormats format) {
  Media::PictureTrackDescriptor descriptor;
  descriptor.width(Helper::width(format));
  descriptor.height(Helper::height(format));
  descriptor.interlaced(Helper::interlaced(format));
  descriptor.sample_rate(Helper::edit_rate(format));
  return Helper::format_from_descriptor(descriptor);
}

template <typename Ask>
Cell cell_of(const Ask& ask) {
  const auto value = answer(ask);
  return value ? Cell(*value) : Cell();
}

std::vector<Cell> format_row(VideoFormats format) {
  return {
      Integer{format},
      std::string(name_of(format)),
      cell_of([&] { return Integer{Helper::width(format)}; }),
      cell_of([&] { return Integer{Helper::height(format)}; }),
      cell_of(
          [&] { return std::string(Helper::interlaced(format) ? "interlaced" : "progressive"); }),
      cell_of([&] { return describe(Helper::edit_rate(format)); }),
      cell_of([&] { return describe_ratio(Helper::aspect_ratio(format)); }),
      cell_of([&] { return Integer{Helper::rounded_frame_rate(format)}; }),
      Helper::is_uhd_format(format),
      cell_of([&] { return std::string(name_of(found_as(format))); }),
  };
}

Table build_formats(const TableRequest&) {
  Table table{{"value", "name", "width", "height", "scanning", "edit_rate", "aspect_ratio",
               "rounded_rate", "uhd", "found_as"},
              {}};
  for (const VideoFormats format : enumerators<VideoFormats>())
    table.rows.push_back(format_row(format));
  return table;
}

}  // namespace

const TableSubject& formats_subject() {
  static constexpr TableSubject kSubject{"formats", "List the video formats", kFormatFooter,
                                         kFormatOptions, build_formats};
  return kSubject;
}

}  // namespace Korvane::Tool
