// Geometry, scanning and colours of a picture, apart from any track.

#ifndef KV_ENGINE_MEDIA_IMAGE_INFO_H
#define KV_ENGINE_MEDIA_IMAGE_INFO_H

#include "foundation/export.h"
#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/video_formats.h"

namespace Korvane {
namespace Media {
class PictureTrackDescriptor;
}

struct KV_ENGINE_API ImageInfo {
  // All zero: progressive, ColorspaceUndefined, ColorimetryUnspecified.
  ImageInfo();

  // Any values are kept.
  ImageInfo(unsigned int width, unsigned int height, bool interlaced, Colorspaces colorspace,
            Colorimetry colorimetry);

  // Raises the errors of VideoFormatsHelper::width for a format without a raster.
  ImageInfo(Media::VideoFormats format, Colorspaces colorspace, Colorimetry colorimetry);

  // Raises InvalidArgument, in this order: "Trying to set ImageInfo from track without width", "...
  // height", "... interlaced".
  ImageInfo(const Media::PictureTrackDescriptor& descriptor);

  ImageInfo(const ImageInfo& other);
  ImageInfo& operator=(const ImageInfo& other);
  ImageInfo& operator=(ImageInfo&& other) noexcept;  // copies

  // Replaces all five fields.
  void update_info(const ImageInfo& other);
  void update_info(unsigned int width, unsigned int height, bool interlaced, Colorspaces colorspace,
                   Colorimetry colorimetry);

  // ColorimetryUnspecified equals every colorimetry, so equality is not transitive.
  bool operator==(const ImageInfo& other) const;
  bool operator!=(const ImageInfo& other) const;

  unsigned int width;       // pixels
  unsigned int height;      // lines of the frame
  bool interlaced;          // whether the frame is made of two fields
  Colorspaces colorspace;   // how the pixels lie in memory
  Colorimetry colorimetry;  // how their colours are meant
};

}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_IMAGE_INFO_H
