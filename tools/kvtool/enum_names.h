// The names of the library's enumerators, as its headers spell them.

#ifndef KV_TOOLS_KVTOOL_ENUM_NAMES_H
#define KV_TOOLS_KVTOOL_ENUM_NAMES_H

#include <vector>

#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/track_descriptor_essence_kind.h"
#include "media/video_formats.h"

namespace Korvane::Tool {

// Null for a value without a name.
const char* name_of(Media::VideoFormats format);
const char* name_of(Colorspaces colorspace);
const char* name_of(Colorimetry colorimetry);
const char* name_of(Media::TrackDescriptorEssenceKind kind);

// Every enumerator, from 0 on.
template <typename Enum>
std::vector<Enum> enumerators() {
  std::vector<Enum> all;
  while (name_of(static_cast<Enum>(all.size())) != nullptr)
    all.push_back(static_cast<Enum>(all.size()));
  return all;
}

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_ENUM_NAMES_H
