#include "media/track_descriptor_utils.h"

#include "tracks/enum_table.h"

namespace Korvane::Media::TrackDescriptorUtils {
namespace {

enum class Family { None, Audio, Video, Data };
enum class Codec { Other, Dnx, Prores };

struct Row {
  TrackDescriptorEssenceKind key;
  Family family;
  Codec codec;
};

// clang-format off
constexpr Row kRows[] = {
    {EssenceNone,         Family::None,  Codec::Other},
    {EssenceAudio,        Family::Audio, Codec::Other},
    {EssenceDnxhd,        Family::Video, Codec::Dnx},
    {EssenceVideo3,       Family::Video, Codec::Other},
    {EssenceOther4,       Family::None,  Codec::Other},
    {EssenceMpeg2,        Family::Video, Codec::Other},
    {EssenceVideo6,       Family::Video, Codec::Other},
    {EssenceAudio7,       Family::Audio, Codec::Other},
    {EssencePcm,          Family::Audio, Codec::Other},
    {EssenceAiff,         Family::Audio, Codec::Other},
    {EssenceAudio10,      Family::Audio, Codec::Other},
    {EssenceUncompressed, Family::Video, Codec::Other},
    {EssenceVideo12,      Family::Video, Codec::Other},
    {EssenceVideo13,      Family::Video, Codec::Other},
    {EssenceVideo14,      Family::Video, Codec::Other},
    {EssenceAvcIntra,     Family::Video, Codec::Other},
    {EssenceProres16,     Family::Video, Codec::Prores},
    {EssenceProres17,     Family::Video, Codec::Prores},
    {EssenceProres18,     Family::Video, Codec::Prores},
    {EssenceProres19,     Family::Video, Codec::Prores},
    {EssenceProres20,     Family::Video, Codec::Prores},
    {EssenceProres21,     Family::Video, Codec::Prores},
    {EssenceVideo22,      Family::Video, Codec::Other},
    {EssenceDnx23,        Family::Video, Codec::Dnx},
    {EssenceDnx24,        Family::Video, Codec::Dnx},
    {EssenceDnx25,        Family::Video, Codec::Dnx},
    {EssenceDnx26,        Family::Video, Codec::Dnx},
    {EssenceDnx27,        Family::Video, Codec::Dnx},
    {EssenceData,         Family::Data,  Codec::Other},
    {EssenceOther29,      Family::None,  Codec::Other},
    {EssenceVideo30,      Family::Video, Codec::Other},
    {EssenceVideo31,      Family::Video, Codec::Other},
    {EssenceVideo32,      Family::Video, Codec::Other},
    {EssenceVideo33,      Family::Video, Codec::Other},
    {EssenceVideo34,      Family::Video, Codec::Other},
    {EssenceVideo35,      Family::Video, Codec::Other},
    {EssenceVideo36,      Family::Video, Codec::Other},
    {EssenceVideo37,      Family::Video, Codec::Other},
    {EssenceVideo38,      Family::Video, Codec::Other},
    {EssenceVideo39,      Family::Video, Codec::Other},
};
// clang-format on

static_assert(is_complete(kRows, EssenceVideo39));

bool is_of(TrackDescriptorEssenceKind kind, Family family) {
  const Row* const row = find_row(kRows, kind);
  return row != nullptr && row->family == family;
}

bool is_of(TrackDescriptorEssenceKind kind, Codec codec) {
  const Row* const row = find_row(kRows, kind);
  return row != nullptr && row->codec == codec;
}

}  // namespace

bool is_audio_track(TrackDescriptorEssenceKind kind) { return is_of(kind, Family::Audio); }
bool is_video_track(TrackDescriptorEssenceKind kind) { return is_of(kind, Family::Video); }
bool is_data_track(TrackDescriptorEssenceKind kind) { return is_of(kind, Family::Data); }

bool is_dnx(TrackDescriptorEssenceKind kind) { return is_of(kind, Codec::Dnx); }
bool is_prores(TrackDescriptorEssenceKind kind) { return is_of(kind, Codec::Prores); }

}  // namespace Korvane::Media::TrackDescriptorUtils
