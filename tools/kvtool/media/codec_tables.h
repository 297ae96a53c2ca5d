// What the library calls the codecs of a file.

#ifndef KV_TOOLS_KVTOOL_MEDIA_CODEC_TABLES_H
#define KV_TOOLS_KVTOOL_MEDIA_CODEC_TABLES_H

#include "media/colorspaces.h"
#include "media/libav.h"
#include "media/track_descriptor_essence_kind.h"

namespace Korvane::Tool {

// EssenceNone where it is not known which kind stands for the codec: the ProRes kinds, the DNx
// kinds but DNxHD, and those without a name of their own.
Media::TrackDescriptorEssenceKind essence_kind_of(const AVFormatContext& format,
                                                  const AVCodecParameters& parameters);

// Whether the coded pictures themselves state a bit rate. That of other codecs is an average that
// the media library has computed.
bool states_bit_rate(AVCodecID codec);

// ColorspaceUndefined for compressed pictures and for layouts that the library has no name for.
Colorspaces raw_colorspace_of(const AVCodecParameters& parameters);

bool is_pcm(AVCodecID codec);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_CODEC_TABLES_H
