// How many bytes and lines raw video takes. Sizes are computed in 32 bits and wrap; divisions round
// down.

#ifndef KV_ENGINE_MEDIA_COLORSPACES_UTILS_H
#define KV_ENGINE_MEDIA_COLORSPACES_UTILS_H

#include "foundation/export.h"
#include "media/colorspaces.h"

namespace Korvane {
namespace ColorspacesUtils {

// Raises UnmappedValue "Unable to map between colorspace and planes count" for ColorspaceUndefined,
// Colorspace6, Colorspace7, Colorspace10 and values that have no name.
KV_ENGINE_API unsigned int planes_for_colorspace(Colorspaces colorspace);

// Bits per component; of Rgb24, 16. Raises UnmappedValue "Unable to map between colorspace and
// component depth" for ColorspaceUndefined, Colorspace10, Argb and values that have no name.
KV_ENGINE_API unsigned int component_depth_for_colorspace(Colorspaces colorspace);

// Bytes of one line of `plane`, counted from 0, of a picture `width` pixels wide. The lines of V210
// are padded to multiples of 128. All errors are InvalidArgument, in this order: "Unable to map
// between colorspace and stride" for those without a plane count; "... doesn't support given
// plane", which begins with the name of the layout, from the plane count on; "Width must be
// aligned" for an odd width of Smpte2110Yuv10.
KV_ENGINE_API unsigned int stride_for_colorspace(Colorspaces colorspace, unsigned int width,
                                                 unsigned int plane);

// Lines of `plane` of a picture `height` lines high. Half of them for all planes but 0 of Yuv420p
// and Yuv420pAlt, planes that do not exist among them; else `height`, also for values that have no
// name. Published with this spelling.
KV_ENGINE_API unsigned int heigth_for_colorspace(Colorspaces colorspace, unsigned int height,
                                                 unsigned int plane);

}  // namespace ColorspacesUtils
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_COLORSPACES_UTILS_H
