// Operations in any order on descriptors of every class: each holds what was last set, through its
// setters or through its getters, and none shares anything with another. Seen at the end: each
// beginning of a sequence is a sequence too.

#include <array>
#include <memory>
#include <optional>

#include "input.h"
#include "kv_engine.h"

namespace {

using Korvane::expect;
using Korvane::Input;
using Korvane::Rational32;
namespace Media = Korvane::Media;

using Number = std::optional<unsigned int>;

constexpr std::array<const char*, 4> kKeys = {"", "a", "b", "language"};

std::string text_of(unsigned int length) { return std::string(length, 'x'); }

// The attributes of all classes; those that a class has not stay unset. A flag is 0 or 1, of a rate
// this is the numerator.
struct Attributes {
  unsigned int kind = 0;
  Number track_id, sample_rate, pre_charge, private_data;
  Number width, height, field_height, interlaced, aspect_ratio, bit_rate, component_depth;
  unsigned int colorspace = 0, colorimetry = 0;
  Number sampling_rate, sampling_bits, channel_count;
  std::array<Number, 4> key_values;  // of each key, the length of its text
};

bool is(const unsigned int* value, const Number& model) {
  return model ? value != nullptr && *value == *model : value == nullptr;
}
bool is(const int* value, const Number& model) {
  return model ? value != nullptr && *value == static_cast<int>(*model) : value == nullptr;
}
bool is(const bool* value, const Number& model) {
  return model ? value != nullptr && *value == (*model != 0) : value == nullptr;
}
bool is(const Rational32* value, const Number& model) {
  return model ? value != nullptr && value->numerator == static_cast<int>(*model) &&
                     value->denominator == 1001
               : value == nullptr;
}

Rational32 rate_of(unsigned int value) { return {static_cast<int>(value), 1001}; }

void check(const Media::TrackDescriptor& track, const Attributes& model) {
  expect(track.essence_kind() == model.kind);
  expect(is(track.track_id(), model.track_id));
  expect(is(track.sample_rate(), model.sample_rate));
  expect(is(track.pre_charge(), model.pre_charge));
  expect(is(track.private_data(), model.private_data));
  for (std::size_t key = 0; key < kKeys.size(); ++key) {
    const char* const value = track.get_key_value(kKeys[key]);
    const Number& length = model.key_values[key];
    expect(length ? value != nullptr && text_of(*length) == value : value == nullptr);
  }
}

void check_own(const Media::TrackDescriptor& /*track*/, const Attributes& /*model*/) {}

void check_own(const Media::PictureTrackDescriptor& track, const Attributes& model) {
  expect(is(track.width(), model.width));
  expect(is(track.height(), model.height));
  expect(is(track.field_height(), model.field_height));
  expect(is(track.interlaced(), model.interlaced));
  expect(is(track.aspect_ratio(), model.aspect_ratio));
  expect(is(track.bit_rate(), model.bit_rate));
  expect(is(track.component_depth(), model.component_depth));
  expect(track.colorspace() == model.colorspace && track.colorimetry() == model.colorimetry);
}

void check_own(const Media::SoundTrackDescriptor& track, const Attributes& model) {
  expect(is(track.sampling_rate(), model.sampling_rate));
  expect(is(track.sampling_bits(), model.sampling_bits));
  expect(is(track.channel_count(), model.channel_count));
}

void set(Media::TrackDescriptor& track, Attributes& model, Input& input) {
  const unsigned int attribute = input.take_below(7);
  const unsigned int value = input.take<std::uint8_t>();
  switch (attribute) {
    case 0:
      track.essence_kind(static_cast<Media::TrackDescriptorEssenceKind>(model.kind = value));
      break;
    case 1:
      track.track_id(*(model.track_id = value));
      break;
    case 2:
      track.sample_rate(rate_of(*(model.sample_rate = value)));
      break;
    case 3:
      track.pre_charge(*(model.pre_charge = value));
      break;
    case 4:
      track.private_data(static_cast<int>(*(model.private_data = value)));
      break;
    case 5:
      if (model.track_id) *track.track_id() = *(model.track_id = value);
      break;
    default:
      track.add_key_value(kKeys[value % 4], text_of(value).c_str());
      if (!model.key_values[value % 4]) model.key_values[value % 4] = value;  // the first one stays
  }
}

void set_own(Media::TrackDescriptor& /*track*/, Attributes& /*model*/, Input& /*input*/) {}

unsigned int lines_of_field(const Attributes& model) {
  return model.interlaced.value_or(0) != 0 ? *model.height / 2 : *model.height;
}

void set_own(Media::PictureTrackDescriptor& track, Attributes& model, Input& input) {
  const unsigned int attribute = input.take_below(11);
  const unsigned int value = input.take<std::uint8_t>();
  switch (attribute) {
    case 0:
      track.width(*(model.width = value));
      break;
    case 1:
      track.height(*(model.height = value));
      model.field_height = lines_of_field(model);
      break;
    case 2:
      track.interlaced(*(model.interlaced = value % 2) != 0);
      if (model.height) model.field_height = lines_of_field(model);
      break;
    case 3:
      track.aspect_ratio(rate_of(*(model.aspect_ratio = value)));
      break;
    case 4:
      track.bit_rate(*(model.bit_rate = value));
      break;
    case 5:
      track.component_depth(*(model.component_depth = value));
      break;
    case 6:
      track.colorspace(static_cast<Korvane::Colorspaces>(model.colorspace = value));
      break;
    case 7:
      track.colorimetry(static_cast<Korvane::Colorimetry>(model.colorimetry = value));
      break;
    case 8:  // only the setters derive the height of a field
      if (model.height) *track.height() = *(model.height = value);
      break;
    case 9:
      if (model.field_height) *track.field_height() = *(model.field_height = value);
      break;
    default:
      if (model.interlaced) *track.interlaced() = *(model.interlaced = value % 2) != 0;
  }
}

void set_own(Media::SoundTrackDescriptor& track, Attributes& model, Input& input) {
  const unsigned int attribute = input.take_below(3);
  const unsigned int value = input.take<std::uint8_t>();
  switch (attribute) {
    case 0:
      track.sampling_rate(*(model.sampling_rate = value));
      break;
    case 1:
      track.sampling_bits(*(model.sampling_bits = value));
      break;
    default:
      track.channel_count(*(model.channel_count = value));
  }
}

template <typename Track>
struct Described {
  Track track;
  Attributes model;
};

template <typename Track>
void check_all(const Described<Track>& described) {
  check(described.track, described.model);
  check_own(described.track, described.model);
}

template <typename Track>
void run(Input& input) {
  std::array<Described<Track>, 2> tracks;
  while (input.has_operation()) {
    const unsigned int operation = input.take_below(16);
    Described<Track>& one = tracks[operation % 2];
    const Described<Track>& other = tracks[input.take_below(2)];
    switch (operation / 2) {
      case 0:
        one = other;
        break;
      case 1:
        one = Described<Track>(other);
        break;
      case 2: {
        const std::unique_ptr<Media::TrackDescriptor> clone(other.track.clone());
        const Attributes model = other.model;
        set(one.track, one.model, input);
        const auto& same_class = dynamic_cast<const Track&>(*clone);
        check_all(Described<Track>{same_class, model});
        break;
      }
      case 3:
        one = Described<Track>();
        break;
      case 4:
        set(one.track, one.model, input);
        break;
      default:
        set_own(one.track, one.model, input);
    }
  }
  for (const Described<Track>& described : tracks) check_all(described);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  switch (input.take_below(6)) {
    case 0:
      run<Media::DataTrackDescriptor>(input);
      break;
    case 1:
      run<Media::CompoundTrackDescriptor>(input);
      break;
    case 2:
      run<Media::SoundTrackDescriptor>(input);
      break;
    default:
      run<Media::PictureTrackDescriptor>(input);
  }
  return 0;
}
