// The identifiers of the material that a file holds.

#ifndef KV_TOOLS_KVTOOL_MEDIA_SOURCE_READER_H
#define KV_TOOLS_KVTOOL_MEDIA_SOURCE_READER_H

#include <memory>

#include "media/libav.h"
#include "media/source_info.h"

namespace Korvane::Tool {

// The identifiers of the material, file and tape packages and the name of the reel, each from the
// container or else from the first stream that states it; null when there are none. What is no UMID
// of 32 or 64 bytes is left out.
std::unique_ptr<Media::SourceInfo> read_source(const AVFormatContext& format);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_SOURCE_READER_H
