#include "media/codec_tables.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace Korvane::Tool {
namespace {

// As the streams have them; the names of the media library change with its versions.
constexpr int kAnyProfile = -1;
constexpr int kDnxhd = 0;                      // the others of the codec are DNxHR
constexpr int kHigh10Intra = 110 | (1 << 11);  // with constraint_set3_flag
constexpr int kHigh422Intra = 122 | (1 << 11);

struct KindRow {
  AVCodecID codec;
  int profile;
  Media::TrackDescriptorEssenceKind kind;
};

// clang-format off
constexpr KindRow kPictureKinds[] = {
    {AV_CODEC_ID_DNXHD,      kDnxhd,        Media::EssenceDnxhd},
    {AV_CODEC_ID_MPEG2VIDEO, kAnyProfile,   Media::EssenceMpeg2},
    {AV_CODEC_ID_H264,       kHigh10Intra,  Media::EssenceAvcIntra},
    {AV_CODEC_ID_H264,       kHigh422Intra, Media::EssenceAvcIntra},
    {AV_CODEC_ID_RAWVIDEO,   kAnyProfile,   Media::EssenceUncompressed},
    {AV_CODEC_ID_V210,       kAnyProfile,   Media::EssenceUncompressed},
    {AV_CODEC_ID_BITPACKED,  kAnyProfile,   Media::EssenceUncompressed},
};

struct RawRow {
  AVCodecID codec;
  AVPixelFormat format;  // to which the codec unpacks
  Colorspaces colorspace;
};

constexpr RawRow kRawLayouts[] = {
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_YUV420P,     Yuv420p},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_YUV422P,     Yuv422p},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_UYVY422,     Uyvy},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_YUV422P10LE, Yuv422p10le},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_RGB24,       Rgb24},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_ARGB,        Argb},
    {AV_CODEC_ID_RAWVIDEO,  AV_PIX_FMT_RGBA,        Rgba},
    {AV_CODEC_ID_V210,      AV_PIX_FMT_YUV422P10LE, V210},
    {AV_CODEC_ID_BITPACKED, AV_PIX_FMT_YUV422P10LE, Smpte2110Yuv10},
};
// clang-format on

// Files whose tag says that V comes before U; the media library swaps the planes back.
constexpr std::uint32_t kSwappedChroma[] = {MKTAG('Y', 'V', '1', '2'), MKTAG('Y', 'V', '1', '6')};

Media::TrackDescriptorEssenceKind picture_kind_of(const AVCodecParameters& parameters) {
  for (const KindRow& row : kPictureKinds)
    if (row.codec == parameters.codec_id &&
        (row.profile == kAnyProfile || row.profile == parameters.profile))
      return row.kind;
  return Media::EssenceNone;
}

}  // namespace

Media::TrackDescriptorEssenceKind essence_kind_of(const AVFormatContext& format,
                                                  const AVCodecParameters& parameters) {
  if (parameters.codec_type == AVMEDIA_TYPE_VIDEO) return picture_kind_of(parameters);
  if (parameters.codec_type == AVMEDIA_TYPE_DATA || parameters.codec_type == AVMEDIA_TYPE_SUBTITLE)
    return Media::EssenceData;
  if (!is_pcm(parameters.codec_id)) return Media::EssenceNone;
  return std::string_view(format.iformat->name) == "aiff" ? Media::EssenceAiff : Media::EssencePcm;
}

bool states_bit_rate(AVCodecID codec) {
  return codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO;
}

Colorspaces raw_colorspace_of(const AVCodecParameters& parameters) {
  if (std::find(std::begin(kSwappedChroma), std::end(kSwappedChroma), parameters.codec_tag) !=
      std::end(kSwappedChroma))
    return ColorspaceUndefined;
  for (const RawRow& row : kRawLayouts)
    if (row.codec == parameters.codec_id && row.format == parameters.format) return row.colorspace;
  return ColorspaceUndefined;
}

bool is_pcm(AVCodecID codec) {
  const AVCodecDescriptor* const descriptor = avcodec_descriptor_get(codec);
  return descriptor != nullptr && std::string_view(descriptor->name).starts_with("pcm_") &&
         (descriptor->props & AV_CODEC_PROP_LOSSY) == 0;
}

}  // namespace Korvane::Tool
