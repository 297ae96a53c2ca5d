#include "tracks.h"

#include "answer.h"
#include "enum_names.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"
#include "media/video_formats_helper.h"
#include "rate.h"

namespace Korvane::Tool {
namespace {

using Media::PictureTrackDescriptor;
using Media::SoundTrackDescriptor;
using Media::TrackDescriptor;

template <typename Value>
Cell defined(const Value* value) {
  return value != nullptr ? Cell(*value) : Cell();
}

Cell defined(const unsigned int* value) {
  return value != nullptr ? Cell(static_cast<long long>(*value)) : Cell();
}

Cell defined(const int* value) {
  return value != nullptr ? Cell(static_cast<long long>(*value)) : Cell();
}

template <typename Enum>
Cell named(Enum value) {
  const char* const name = name_of(value);
  return name != nullptr ? std::string(name) : std::to_string(static_cast<unsigned int>(value));
}

void add_common_fields(const TrackDescriptor& descriptor, std::vector<TrackField>& fields) {
  const Rational32* const rate = descriptor.sample_rate();
  fields.insert(fields.end(), {
                                  {"essence_kind", named(descriptor.essence_kind())},
                                  {"track_id", defined(descriptor.track_id())},
                                  {"sample_rate", rate != nullptr ? Cell(describe(*rate)) : Cell()},
                                  {"pre_charge", defined(descriptor.pre_charge())},
                                  {"private_data", defined(descriptor.private_data())},
                              });
}

void add_fields(const PictureTrackDescriptor& picture, std::vector<TrackField>& fields) {
  const Rational32* const aspect = picture.aspect_ratio();
  fields.insert(fields.end(),
                {
                    {"width", defined(picture.width())},
                    {"height", defined(picture.height())},
                    {"field_height", defined(picture.field_height())},
                    {"interlaced", defined(picture.interlaced())},
                    {"aspect_ratio", aspect != nullptr ? Cell(describe_ratio(*aspect)) : Cell()},
                    {"bit_rate", defined(picture.bit_rate())},
                    {"component_depth", defined(picture.component_depth())},
                    {"colorspace", named(picture.colorspace())},
                    {"colorimetry", named(picture.colorimetry())},
                });
}

void add_fields(const SoundTrackDescriptor& sound, std::vector<TrackField>& fields) {
  fields.insert(fields.end(), {
                                  {"sampling_rate", defined(sound.sampling_rate())},
                                  {"sampling_bits", defined(sound.sampling_bits())},
                                  {"channel_count", defined(sound.channel_count())},
                              });
}

const PictureTrackDescriptor* as_picture(const TrackDescriptor& descriptor) {
  return dynamic_cast<const PictureTrackDescriptor*>(&descriptor);
}

const SoundTrackDescriptor* as_sound(const TrackDescriptor& descriptor) {
  return dynamic_cast<const SoundTrackDescriptor*>(&descriptor);
}

}  // namespace

std::string kind_of(const TrackDescriptor& descriptor) {
  if (as_picture(descriptor) != nullptr) return "picture";
  return as_sound(descriptor) != nullptr ? "sound" : "data";
}

std::vector<TrackField> fields_of(const TrackDescriptor& descriptor) {
  std::vector<TrackField> fields;
  add_common_fields(descriptor, fields);
  if (const auto* const picture = as_picture(descriptor)) add_fields(*picture, fields);
  if (const auto* const sound = as_sound(descriptor)) add_fields(*sound, fields);
  return fields;
}

TrackConclusions conclusions_of(const TrackDescriptor& descriptor) {
  TrackConclusions conclusions;
  if (const auto* const picture = as_picture(descriptor)) {
    conclusions.video_format =
        answer([&] { return Media::VideoFormatsHelper::format_from_descriptor(*picture); });
    conclusions.image_info = answer([&] { return ImageInfo(*picture); });
    if (picture->width() != nullptr && picture->height() != nullptr)
      conclusions.layouts = layouts_for(*picture->width(), *picture->height());
  }
  if (const auto* const sound = as_sound(descriptor)) conclusions.audio_info = AudioInfo(*sound);
  return conclusions;
}

}  // namespace Korvane::Tool
