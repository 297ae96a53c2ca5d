#include "media/track_reader.h"

#include <limits>
#include <numeric>
#include <optional>
#include <span>

#include "media/codec_tables.h"
#include "media/data_track_descriptor.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace Korvane::Tool {
namespace {

// Absent unless it is positive and fits.
std::optional<unsigned int> stated_number(std::int64_t value) {
  if (value <= 0 || value > std::numeric_limits<unsigned int>::max()) return std::nullopt;
  return static_cast<unsigned int>(value);
}

// Reduced; absent unless it is positive and fits.
std::optional<Rational32> stated_ratio(std::int64_t numerator, std::int64_t denominator) {
  if (numerator <= 0 || denominator <= 0) return std::nullopt;
  const std::int64_t divisor = std::gcd(numerator, denominator);
  numerator /= divisor;
  denominator /= divisor;
  if (numerator > std::numeric_limits<int>::max() || denominator > std::numeric_limits<int>::max())
    return std::nullopt;
  return Rational32{static_cast<int>(numerator), static_cast<int>(denominator)};
}

std::optional<bool> stated_scanning(AVFieldOrder order) {
  if (order == AV_FIELD_UNKNOWN) return std::nullopt;
  return order != AV_FIELD_PROGRESSIVE;
}

std::optional<Rational32> stated_aspect(const AVCodecParameters& parameters,
                                        const AVRational& pixel_aspect) {
  return stated_ratio(std::int64_t{parameters.width} * pixel_aspect.num,
                      std::int64_t{parameters.height} * pixel_aspect.den);
}

std::optional<unsigned int> stated_depth(const AVCodecParameters& parameters) {
  if (parameters.bits_per_raw_sample > 0) return stated_number(parameters.bits_per_raw_sample);
  const AVPixFmtDescriptor* const pixel =
      av_pix_fmt_desc_get(static_cast<AVPixelFormat>(parameters.format));
  return pixel != nullptr ? stated_number(pixel->comp[0].depth) : std::nullopt;
}

// Of compressed sound only where it is lossless.
std::optional<unsigned int> stated_sampling_bits(const AVCodecParameters& parameters) {
  if (is_pcm(parameters.codec_id))
    return stated_number(av_get_exact_bits_per_sample(parameters.codec_id));
  return stated_number(parameters.bits_per_raw_sample);
}

// Containers that do not number their tracks leave the number 0.
std::optional<unsigned int> stated_id(const AVFormatContext& format, const AVStream& stream) {
  const bool has_ids = (format.iformat->flags & AVFMT_SHOW_IDS) != 0;
  if (stream.id == 0 && has_ids) return 0;
  return stated_number(stream.id);
}

std::unique_ptr<Media::TrackDescriptor> describe_picture(const MediaFile& file, AVStream& stream) {
  const AVCodecParameters& parameters = *stream.codecpar;
  auto picture = std::make_unique<Media::PictureTrackDescriptor>();
  if (const auto width = stated_number(parameters.width)) picture->width(*width);
  if (const auto height = stated_number(parameters.height)) picture->height(*height);
  if (const auto interlaced = stated_scanning(parameters.field_order))
    picture->interlaced(*interlaced);
  const AVRational rate = av_guess_frame_rate(&file.format(), &stream, nullptr);
  const auto sample_rate = stated_ratio(rate.num, rate.den);
  if (sample_rate && !is_cover_picture(stream)) picture->sample_rate(*sample_rate);
  const AVRational pixel = av_guess_sample_aspect_ratio(&file.format(), &stream, nullptr);
  if (const auto aspect = stated_aspect(parameters, pixel)) picture->aspect_ratio(*aspect);
  if (states_bit_rate(parameters.codec_id))
    if (const auto bit_rate = stated_number(parameters.bit_rate)) picture->bit_rate(*bit_rate);
  if (const auto depth = stated_depth(parameters)) picture->component_depth(*depth);
  picture->colorspace(raw_colorspace_of(parameters));
  return picture;
}

std::unique_ptr<Media::TrackDescriptor> describe_sound(const AVStream& stream) {
  const AVCodecParameters& parameters = *stream.codecpar;
  auto sound = std::make_unique<Media::SoundTrackDescriptor>();
  if (const auto channels = stated_number(parameters.ch_layout.nb_channels))
    sound->channel_count(*channels);
  if (const auto bits = stated_sampling_bits(parameters)) sound->sampling_bits(*bits);
  if (const auto rate = stated_ratio(parameters.sample_rate, 1)) {
    sound->sample_rate(*rate);
    sound->sampling_rate(static_cast<unsigned int>(rate->numerator));
  }
  return sound;
}

std::unique_ptr<Media::TrackDescriptor> describe_data(const AVStream& stream) {
  auto data = std::make_unique<Media::DataTrackDescriptor>();
  const AVRational rate = stream.avg_frame_rate;
  if (const auto sample_rate = stated_ratio(rate.num, rate.den)) data->sample_rate(*sample_rate);
  return data;
}

std::unique_ptr<Media::TrackDescriptor> describe_stream(const MediaFile& file, AVStream& stream) {
  if (stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO) return describe_picture(file, stream);
  if (stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO) return describe_sound(stream);
  return describe_data(stream);
}

// Returns the keys, each once: of several values under one the descriptor keeps the first.
std::vector<std::string> add_metadata(const AVStream& stream, Media::TrackDescriptor& descriptor) {
  std::vector<std::string> keys;
  const AVDictionaryEntry* entry = nullptr;
  while ((entry = av_dict_get(stream.metadata, "", entry, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
    if (descriptor.get_key_value(entry->key) == nullptr) keys.emplace_back(entry->key);
    descriptor.add_key_value(entry->key, entry->value);
  }
  return keys;
}

// Of a codec that the media library does not know, the tag in the file.
std::string codec_name_of(const AVCodecParameters& parameters) {
  if (parameters.codec_id != AV_CODEC_ID_NONE || parameters.codec_tag == 0)
    return avcodec_get_name(parameters.codec_id);
  char text[AV_FOURCC_MAX_STRING_SIZE] = {};
  return av_fourcc_make_string(text, parameters.codec_tag);
}

TrackSource source_of(const AVStream& stream, std::vector<std::string> keys) {
  const AVCodecParameters& parameters = *stream.codecpar;
  const char* const profile = avcodec_profile_name(parameters.codec_id, parameters.profile);
  return {stream.index, codec_name_of(parameters), profile != nullptr ? profile : "",
          std::move(keys)};
}

}  // namespace

TrackReport read_tracks(const MediaFile& file) {
  AVFormatContext& format = file.format();
  TrackReport tracks;
  for (AVStream* const stream : std::span(format.streams, format.nb_streams)) {
    const std::unique_ptr<Media::TrackDescriptor> descriptor = describe_stream(file, *stream);
    descriptor->essence_kind(essence_kind_of(format, *stream->codecpar));
    if (const auto id = stated_id(format, *stream)) descriptor->track_id(*id);
    std::vector<std::string> keys = add_metadata(*stream, *descriptor);
    tracks.descriptors.add_track(*descriptor);
    tracks.sources.push_back(source_of(*stream, std::move(keys)));
  }
  return tracks;
}

}  // namespace Korvane::Tool
