#include "media/image_info.h"

#include "core/exception.h"
#include "media/picture_track_descriptor.h"
#include "media/video_formats_helper.h"

namespace Korvane {
namespace {

template <typename T>
T require_attribute(const T* value, const char* message) {
  exception_enforce(value != nullptr, InvalidArgument, message, true);
  return *value;
}

bool are_compatible(Colorimetry a, Colorimetry b) {
  return a == b || a == ColorimetryUnspecified || b == ColorimetryUnspecified;
}

}  // namespace

ImageInfo::ImageInfo() : ImageInfo(0, 0, false, ColorspaceUndefined, ColorimetryUnspecified) {}

ImageInfo::ImageInfo(unsigned int new_width, unsigned int new_height, bool new_interlaced,
                     Colorspaces new_colorspace, Colorimetry new_colorimetry)
    : width(new_width),
      height(new_height),
      interlaced(new_interlaced),
      colorspace(new_colorspace),
      colorimetry(new_colorimetry) {}

ImageInfo::ImageInfo(Media::VideoFormats format, Colorspaces new_colorspace,
                     Colorimetry new_colorimetry)
    : width(Media::VideoFormatsHelper::width(format)),
      height(Media::VideoFormatsHelper::height(format)),
      interlaced(Media::VideoFormatsHelper::interlaced(format)),
      colorspace(new_colorspace),
      colorimetry(new_colorimetry) {}

ImageInfo::ImageInfo(const Media::PictureTrackDescriptor& descriptor)
    : width(require_attribute(descriptor.width(),
                              "Trying to set ImageInfo from track without width")),
      height(require_attribute(descriptor.height(),
                               "Trying to set ImageInfo from track without height")),
      interlaced(require_attribute(descriptor.interlaced(),
                                   "Trying to set ImageInfo from track without interlaced")),
      colorspace(descriptor.colorspace()),
      colorimetry(descriptor.colorimetry()) {}

ImageInfo::ImageInfo(const ImageInfo& other) = default;
ImageInfo& ImageInfo::operator=(const ImageInfo& other) = default;
ImageInfo& ImageInfo::operator=(ImageInfo&& other) noexcept = default;

void ImageInfo::update_info(const ImageInfo& other) { *this = other; }

void ImageInfo::update_info(unsigned int new_width, unsigned int new_height, bool new_interlaced,
                            Colorspaces new_colorspace, Colorimetry new_colorimetry) {
  *this = ImageInfo(new_width, new_height, new_interlaced, new_colorspace, new_colorimetry);
}

bool ImageInfo::operator==(const ImageInfo& other) const {
  return width == other.width && height == other.height && interlaced == other.interlaced &&
         colorspace == other.colorspace && are_compatible(colorimetry, other.colorimetry);
}

bool ImageInfo::operator!=(const ImageInfo& other) const { return !(*this == other); }

}  // namespace Korvane
