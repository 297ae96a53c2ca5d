// The families of essence kinds. EssenceNone, EssenceOther4, EssenceOther29 and values that have no
// name belong to none.

#ifndef KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_UTILS_H
#define KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_UTILS_H

#include "foundation/export.h"
#include "media/track_descriptor_essence_kind.h"

namespace Korvane {
namespace Media {
namespace TrackDescriptorUtils {

// Of PCM and AIFF, and the kinds named EssenceAudio.
KV_ENGINE_API bool is_audio_track(TrackDescriptorEssenceKind kind);

// The DNx and ProRes kinds among them.
KV_ENGINE_API bool is_video_track(TrackDescriptorEssenceKind kind);

// EssenceData alone.
KV_ENGINE_API bool is_data_track(TrackDescriptorEssenceKind kind);

// EssenceDnxhd and the kinds named EssenceDnx.
KV_ENGINE_API bool is_dnx(TrackDescriptorEssenceKind kind);

// The kinds named EssenceProres.
KV_ENGINE_API bool is_prores(TrackDescriptorEssenceKind kind);

}  // namespace TrackDescriptorUtils
}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_UTILS_H
