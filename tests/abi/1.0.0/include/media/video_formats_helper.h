// What each video format means, and the format that a descriptor means. Rates are compared as they
// are written, never reduced: 50/2 is not 25/1.

#ifndef KV_ENGINE_MEDIA_VIDEO_FORMATS_HELPER_H
#define KV_ENGINE_MEDIA_VIDEO_FORMATS_HELPER_H

#include "foundation/export.h"
#include "foundation/rational32.h"
#include "media/video_formats.h"

namespace Korvane {
namespace Media {

class PictureTrackDescriptor;

namespace VideoFormatsHelper {

// Pixels. Raises InvalidArgument "Unsupported value for video parameters (width mapping)" for
// UnknownFormat and every value above.
KV_ENGINE_API unsigned int width(VideoFormats format);

// Lines of the frame. Raises InvalidArgument "Unsupported value for video parameters (height
// mapping)" for UnknownFormat and every value above.
KV_ENGINE_API unsigned int height(VideoFormats format);

// Raises InvalidArgument "Unsupported value for video parameters (interlaced mapping)" for
// UnknownFormat and every value above.
KV_ENGINE_API bool interlaced(VideoFormats format);

// Frames per second, also of interlaced formats. Raises InvalidArgument "Unsupported value for
// video parameters (edit rate mapping)" for UnknownFormat and every value above.
KV_ENGINE_API Rational32 edit_rate(VideoFormats format);

// Of the picture as displayed. Raises InvalidArgument "Unsupported value for video parameters
// (aspect ratio mapping)" for UnknownFormat and every value above.
KV_ENGINE_API Rational32 aspect_ratio(VideoFormats format);

// Frames per second as a whole number, as timecode counts them. Raises InvalidArgument "Unable to
// retrieve rounded frame rate for given format" for UnknownFormat and every value above.
KV_ENGINE_API unsigned short rounded_frame_rate(VideoFormats format);

// Of the formats with 2160 lines, all but Uhd2160p60Alt, Uhd2160p5994Alt and Uhd2160p50Alt. False
// for values outside the enumeration.
KV_ENGINE_API bool is_uhd_format(VideoFormats format);

// Whether it is 25/1 or 50/1.
KV_ENGINE_API bool is_pal(const Rational32& edit_rate);

// Whether it is 60000/1001, 5994/100, 60/1 or 50/1.
KV_ENGINE_API bool is_720p_edit_rate(const Rational32& edit_rate);

// Whether it is 720 by 576 or 625.
KV_ENGINE_API bool is_pal_dimensions(unsigned int width, unsigned int height);

// Whether it is 720 by 486 or 525.
KV_ENGINE_API bool is_ntsc_dimensions(unsigned int width, unsigned int height);

// The format of that raster, scanning and sample_rate(): Pal and Ntsc by their dimensions alone,
// UnknownFormat when there is none, never one of the Alt formats. Raises MissingProperty, in this
// order: "Picture track descriptor doesn't define width", "... height", "... interlaced", "...
// sample_rate".
KV_ENGINE_API VideoFormats format_from_descriptor(const PictureTrackDescriptor& descriptor);

}  // namespace VideoFormatsHelper
}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_VIDEO_FORMATS_HELPER_H
