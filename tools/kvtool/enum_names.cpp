#include "enum_names.h"

#include "ext/print.h"

namespace Korvane::Tool {

const char* name_of(Media::VideoFormats format) { return Ext::name_of(format); }
const char* name_of(Colorspaces colorspace) { return Ext::name_of(colorspace); }
const char* name_of(Colorimetry colorimetry) { return Ext::name_of(colorimetry); }
const char* name_of(Media::TrackDescriptorEssenceKind kind) { return Ext::name_of(kind); }

}  // namespace Korvane::Tool
