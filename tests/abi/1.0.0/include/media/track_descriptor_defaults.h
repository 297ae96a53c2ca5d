// Descriptors ready made, of the tracks that are recorded and played most. `track_id` becomes the
// track id; attributes that the comment of a function does not name stay absent, colour space and
// colorimetry 0 where none are named. Rasters are in pixels and lines, edit rates in frames per
// second, bit rates in bits per second. The edit rate becomes the sample rate of the track.
//
// An aspect ratio of 16/9 where the raster is 720 pixels wide is meant so.

#ifndef KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_DEFAULTS_H
#define KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_DEFAULTS_H

#include "foundation/export.h"
#include "foundation/rational32.h"
#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"
#include "media/track_descriptor_essence_kind.h"
#include "media/video_formats.h"

namespace Korvane {
namespace Media {
namespace TrackDescriptorDefaults {

// Sound: 48000 samples per second, as sampling rate and as sample rate 48000/1.

// EssenceAiff, 2 channels of 16 bits.
KV_ENGINE_API SoundTrackDescriptor aiff_stereo_16b_48k(unsigned int track_id);

// EssencePcm, 1 channel of 24 bits.
KV_ENGINE_API SoundTrackDescriptor pcm_mono_24b_48k(unsigned int track_id);

// EssencePcm, 2 channels of 24 bits.
KV_ENGINE_API SoundTrackDescriptor pcm_stereo_24b_48k(unsigned int track_id);

// EssencePcm.
KV_ENGINE_API SoundTrackDescriptor sound_pcm_48k(unsigned int track_id, unsigned int channel_count,
                                                 unsigned int sampling_bits);

// Compressed pictures.

// EssenceAvcIntra, 1920 x 1080 interlaced at 25/1, 16/9, 100000000, component depth 10.
KV_ENGINE_API PictureTrackDescriptor avcintra_100_1920_1080_50i(unsigned int track_id);

// EssenceDnxhd, 1920 x 1080 interlaced at 30000/1001, 16/9, 145000000, component depth 8.
KV_ENGINE_API PictureTrackDescriptor dnxhd_145_60i(unsigned int track_id);

// The same at 220000000.
KV_ENGINE_API PictureTrackDescriptor dnxhd_220_60i(unsigned int track_id);

// EssenceMpeg2, 720 x 486 interlaced at 30000/1001, 4/3, 30000000.
KV_ENGINE_API PictureTrackDescriptor imx_30_ntsc(unsigned int track_id);

// EssenceMpeg2, 720 x 576 interlaced at 25/1, 4/3, 50000000.
KV_ENGINE_API PictureTrackDescriptor imx_50_pal(unsigned int track_id);

// EssenceMpeg2, 1920 x 1080 interlaced at 30000/1001, 16/9, 50000000.
KV_ENGINE_API PictureTrackDescriptor mpeg2_lgop_50_60i(unsigned int track_id);

// EssenceMpeg2, 1920 x 1080 progressive at 24000/1001, 16/9, 50000000.
KV_ENGINE_API PictureTrackDescriptor mpeg2_lgop_50_2398p(unsigned int track_id);

// EssenceMpeg2, 1280 x 720 progressive at 60000/1001, 16/9, 50000000.
KV_ENGINE_API PictureTrackDescriptor mpeg2_lgop_50_60p(unsigned int track_id);

// 1920 x 1080 interlaced at 30000/1001, 16/9, component depth 8.
KV_ENGINE_API PictureTrackDescriptor compressed_format_1080i60(unsigned int track_id,
                                                               TrackDescriptorEssenceKind kind);

// Raster, scanning and edit rate of `format`, and 16/9 whatever the format. A bit rate of 0 stays
// absent; a component depth of 0 is set. Raises InvalidArgument "Unsupported value for video
// parameters (edit rate mapping)" for UnknownFormat and every value above.
KV_ENGINE_API PictureTrackDescriptor compressed_descriptor_for_video_format(
    unsigned int track_id, TrackDescriptorEssenceKind kind, VideoFormats format,
    unsigned int bit_rate, unsigned int component_depth);

// Uncompressed pictures: EssenceUncompressed, with the component depth of their colour space.

// 1280 x 720 progressive at 60000/1001, 16/9, Uyvy.
KV_ENGINE_API PictureTrackDescriptor uyvy_1280_720_60p(unsigned int track_id);

// 1920 x 1080 interlaced at 30000/1001, 16/9, Uyvy.
KV_ENGINE_API PictureTrackDescriptor uyvy_1920_1080_60i(unsigned int track_id);

// 720 x 486 interlaced at 30000/1001, 16/9, Uyvy.
KV_ENGINE_API PictureTrackDescriptor uyvy_720_486_60i(unsigned int track_id);

// The same as uyvy_720_486_60i.
KV_ENGINE_API PictureTrackDescriptor uyvy_ntsc(unsigned int track_id);

// 720 x 576 interlaced at 25/1, 16/9, Uyvy.
KV_ENGINE_API PictureTrackDescriptor uyvy_pal(unsigned int track_id);

// 1920 x 1080 interlaced at 30000/1001, 16/9, V210.
KV_ENGINE_API PictureTrackDescriptor v210_1920_1080_60i(unsigned int track_id);

// 1920 x 1080 interlaced at 30000/1001, 16/9, Yuv422p.
KV_ENGINE_API PictureTrackDescriptor yuv422p_1920_1080_60i(unsigned int track_id);

// 1920 x 1080 interlaced at 30000/1001, 16/9, Yuv422p10le.
KV_ENGINE_API PictureTrackDescriptor yuv422p10e_1920_1080_60i(unsigned int track_id);

// Raises UnmappedValue "Unable to map between colorspace and component depth" for a colour space
// without one.
KV_ENGINE_API PictureTrackDescriptor uncompressed_descriptor(
    unsigned int track_id, Rational32 edit_rate, unsigned int width, unsigned int height,
    bool interlaced, Rational32 aspect_ratio, Colorspaces colorspace, Colorimetry colorimetry);

// Raster, scanning, edit rate and aspect ratio of `format`. Raises InvalidArgument "Unsupported
// value for video parameters (aspect ratio mapping)" for UnknownFormat and every value above, then
// the error of uncompressed_descriptor.
KV_ENGINE_API PictureTrackDescriptor uncompressed_descriptor_for_video_format(
    unsigned int track_id, VideoFormats format, Colorspaces colorspace, Colorimetry colorimetry);

}  // namespace TrackDescriptorDefaults
}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_DEFAULTS_H
