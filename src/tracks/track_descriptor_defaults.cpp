#include "media/track_descriptor_defaults.h"

#include "media/colorspaces_utils.h"
#include "media/video_formats_helper.h"

namespace Korvane::Media::TrackDescriptorDefaults {
namespace {

struct Picture {
  unsigned int width;
  unsigned int height;
  bool interlaced;
  Rational32 edit_rate;
  Rational32 aspect_ratio;
};

// clang-format off
constexpr Picture kHd50i    = {1920, 1080, true,  {   25,    1}, {16, 9}};
constexpr Picture kHd60i    = {1920, 1080, true,  {30000, 1001}, {16, 9}};
constexpr Picture kHd2398p  = {1920, 1080, false, {24000, 1001}, {16, 9}};
constexpr Picture kHd720p60 = {1280,  720, false, {60000, 1001}, {16, 9}};
constexpr Picture kNtsc     = { 720,  486, true,  {30000, 1001}, { 4, 3}};
constexpr Picture kPal      = { 720,  576, true,  {   25,    1}, { 4, 3}};
constexpr Picture kNtscWide = { 720,  486, true,  {30000, 1001}, {16, 9}};
constexpr Picture kPalWide  = { 720,  576, true,  {   25,    1}, {16, 9}};
// clang-format on

SoundTrackDescriptor sound_48k(unsigned int track_id, TrackDescriptorEssenceKind kind,
                               unsigned int channel_count, unsigned int sampling_bits) {
  SoundTrackDescriptor track;
  track.track_id(track_id);
  track.channel_count(channel_count);
  track.sampling_bits(sampling_bits);
  track.sample_rate({48000, 1});
  track.sampling_rate(48000);
  track.essence_kind(kind);
  return track;
}

PictureTrackDescriptor picture(unsigned int track_id, TrackDescriptorEssenceKind kind,
                               const Picture& shape) {
  PictureTrackDescriptor track;
  track.track_id(track_id);
  track.essence_kind(kind);
  track.width(shape.width);
  track.height(shape.height);
  track.interlaced(shape.interlaced);
  track.sample_rate(shape.edit_rate);
  track.aspect_ratio(shape.aspect_ratio);
  return track;
}

PictureTrackDescriptor compressed(unsigned int track_id, TrackDescriptorEssenceKind kind,
                                  const Picture& shape, unsigned int bit_rate) {
  PictureTrackDescriptor track = picture(track_id, kind, shape);
  track.bit_rate(bit_rate);
  return track;
}

PictureTrackDescriptor compressed(unsigned int track_id, TrackDescriptorEssenceKind kind,
                                  const Picture& shape, unsigned int bit_rate,
                                  unsigned int component_depth) {
  PictureTrackDescriptor track = compressed(track_id, kind, shape, bit_rate);
  track.component_depth(component_depth);
  return track;
}

PictureTrackDescriptor uncompressed(unsigned int track_id, const Picture& shape,
                                    Colorspaces colorspace,
                                    Colorimetry colorimetry = ColorimetryUnspecified) {
  PictureTrackDescriptor track = picture(track_id, EssenceUncompressed, shape);
  track.component_depth(ColorspacesUtils::component_depth_for_colorspace(colorspace));
  track.colorspace(colorspace);
  track.colorimetry(colorimetry);
  return track;
}

}  // namespace

SoundTrackDescriptor aiff_stereo_16b_48k(unsigned int track_id) {
  return sound_48k(track_id, EssenceAiff, 2, 16);
}

SoundTrackDescriptor pcm_mono_24b_48k(unsigned int track_id) {
  return sound_48k(track_id, EssencePcm, 1, 24);
}

SoundTrackDescriptor pcm_stereo_24b_48k(unsigned int track_id) {
  return sound_48k(track_id, EssencePcm, 2, 24);
}

SoundTrackDescriptor sound_pcm_48k(unsigned int track_id, unsigned int channel_count,
                                   unsigned int sampling_bits) {
  return sound_48k(track_id, EssencePcm, channel_count, sampling_bits);
}

PictureTrackDescriptor avcintra_100_1920_1080_50i(unsigned int track_id) {
  return compressed(track_id, EssenceAvcIntra, kHd50i, 100000000, 10);
}

PictureTrackDescriptor dnxhd_145_60i(unsigned int track_id) {
  return compressed(track_id, EssenceDnxhd, kHd60i, 145000000, 8);
}

PictureTrackDescriptor dnxhd_220_60i(unsigned int track_id) {
  return compressed(track_id, EssenceDnxhd, kHd60i, 220000000, 8);
}

PictureTrackDescriptor imx_30_ntsc(unsigned int track_id) {
  return compressed(track_id, EssenceMpeg2, kNtsc, 30000000);
}

PictureTrackDescriptor imx_50_pal(unsigned int track_id) {
  return compressed(track_id, EssenceMpeg2, kPal, 50000000);
}

PictureTrackDescriptor mpeg2_lgop_50_60i(unsigned int track_id) {
  return compressed(track_id, EssenceMpeg2, kHd60i, 50000000);
}

PictureTrackDescriptor mpeg2_lgop_50_2398p(unsigned int track_id) {
  return compressed(track_id, EssenceMpeg2, kHd2398p, 50000000);
}

PictureTrackDescriptor mpeg2_lgop_50_60p(unsigned int track_id) {
  return compressed(track_id, EssenceMpeg2, kHd720p60, 50000000);
}

PictureTrackDescriptor compressed_format_1080i60(unsigned int track_id,
                                                 TrackDescriptorEssenceKind kind) {
  PictureTrackDescriptor track = picture(track_id, kind, kHd60i);
  track.component_depth(8);
  return track;
}

PictureTrackDescriptor compressed_descriptor_for_video_format(unsigned int track_id,
                                                              TrackDescriptorEssenceKind kind,
                                                              VideoFormats format,
                                                              unsigned int bit_rate,
                                                              unsigned int component_depth) {
  // The edit rate is looked up first: its message is the one for a value that is no format.
  const Rational32 edit_rate = VideoFormatsHelper::edit_rate(format);
  const Picture shape = {VideoFormatsHelper::width(format),
                         VideoFormatsHelper::height(format),
                         VideoFormatsHelper::interlaced(format),
                         edit_rate,
                         {16, 9}};
  PictureTrackDescriptor track = picture(track_id, kind, shape);
  track.component_depth(component_depth);
  if (bit_rate != 0) track.bit_rate(bit_rate);
  return track;
}

PictureTrackDescriptor uyvy_1280_720_60p(unsigned int track_id) {
  return uncompressed(track_id, kHd720p60, Uyvy);
}

PictureTrackDescriptor uyvy_1920_1080_60i(unsigned int track_id) {
  return uncompressed(track_id, kHd60i, Uyvy);
}

PictureTrackDescriptor uyvy_720_486_60i(unsigned int track_id) {
  return uncompressed(track_id, kNtscWide, Uyvy);
}

PictureTrackDescriptor uyvy_ntsc(unsigned int track_id) { return uyvy_720_486_60i(track_id); }

PictureTrackDescriptor uyvy_pal(unsigned int track_id) {
  return uncompressed(track_id, kPalWide, Uyvy);
}

PictureTrackDescriptor v210_1920_1080_60i(unsigned int track_id) {
  return uncompressed(track_id, kHd60i, V210);
}

PictureTrackDescriptor yuv422p_1920_1080_60i(unsigned int track_id) {
  return uncompressed(track_id, kHd60i, Yuv422p);
}

PictureTrackDescriptor yuv422p10e_1920_1080_60i(unsigned int track_id) {
  return uncompressed(track_id, kHd60i, Yuv422p10le);
}

PictureTrackDescriptor uncompressed_descriptor(unsigned int track_id, Rational32 edit_rate,
                                               unsigned int width, unsigned int height,
                                               bool interlaced, Rational32 aspect_ratio,
                                               Colorspaces colorspace, Colorimetry colorimetry) {
  return uncompressed(track_id, {width, height, interlaced, edit_rate, aspect_ratio}, colorspace,
                      colorimetry);
}

PictureTrackDescriptor uncompressed_descriptor_for_video_format(unsigned int track_id,
                                                                VideoFormats format,
                                                                Colorspaces colorspace,
                                                                Colorimetry colorimetry) {
  // The aspect ratio is looked up first: its message is the one for a value that is no format.
  const Rational32 aspect_ratio = VideoFormatsHelper::aspect_ratio(format);
  const Picture shape = {VideoFormatsHelper::width(format), VideoFormatsHelper::height(format),
                         VideoFormatsHelper::interlaced(format),
                         VideoFormatsHelper::edit_rate(format), aspect_ratio};
  return uncompressed(track_id, shape, colorspace, colorimetry);
}

}  // namespace Korvane::Media::TrackDescriptorDefaults
