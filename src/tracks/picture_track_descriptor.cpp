#include "media/picture_track_descriptor.h"

#include "tracks/optional_cell.h"

namespace Korvane::Media {

// The field height is there once the height is; only the setters of height and interlaced set it.
struct PictureTrackDescriptorPrivate {
  OptionalCell<unsigned int> width;
  OptionalCell<unsigned int> height;
  OptionalCell<unsigned int> field_height;
  OptionalCell<bool> interlaced;
  OptionalCell<Rational32> aspect_ratio;
  OptionalCell<unsigned int> bit_rate;
  OptionalCell<unsigned int> component_depth;
  Colorspaces colorspace = ColorspaceUndefined;
  Colorimetry colorimetry = ColorimetryUnspecified;
};

namespace {

unsigned int lines_of_field(unsigned int height, bool interlaced) {
  return interlaced ? height >> 1U : height;
}

}  // namespace

PictureTrackDescriptor::PictureTrackDescriptor() : private_(new PictureTrackDescriptorPrivate) {}

PictureTrackDescriptor::PictureTrackDescriptor(const PictureTrackDescriptor& other) = default;

PictureTrackDescriptor& PictureTrackDescriptor::operator=(const PictureTrackDescriptor& other) {
  if (this != &other) {
    private_ = other.private_;
    TrackDescriptor::operator=(other);
  }
  return *this;
}

PictureTrackDescriptor::~PictureTrackDescriptor() = default;

TrackDescriptor* PictureTrackDescriptor::clone() const { return new PictureTrackDescriptor(*this); }

void PictureTrackDescriptor::width(unsigned int value) { private_->width.set(value); }
unsigned int* PictureTrackDescriptor::width() const { return private_->width.get(); }

// Here and in interlaced(), the cell of the field height is made first: without memory for it
// nothing changes.
void PictureTrackDescriptor::height(unsigned int value) {
  const bool* const interlaced = private_->interlaced.get();
  OptionalCell<unsigned int> field_height;
  field_height.set(lines_of_field(value, interlaced != nullptr && *interlaced));
  private_->height.set(value);
  private_->field_height.swap(field_height);
}
unsigned int* PictureTrackDescriptor::height() const { return private_->height.get(); }

unsigned int* PictureTrackDescriptor::field_height() const { return private_->field_height.get(); }

void PictureTrackDescriptor::interlaced(bool value) {
  const unsigned int* const height = private_->height.get();
  OptionalCell<unsigned int> field_height;
  if (height != nullptr) field_height.set(lines_of_field(*height, value));
  private_->interlaced.set(value);
  if (height != nullptr) private_->field_height.swap(field_height);
}
bool* PictureTrackDescriptor::interlaced() const { return private_->interlaced.get(); }

void PictureTrackDescriptor::aspect_ratio(Rational32 value) { private_->aspect_ratio.set(value); }
Rational32* PictureTrackDescriptor::aspect_ratio() const { return private_->aspect_ratio.get(); }

void PictureTrackDescriptor::bit_rate(unsigned int value) const { private_->bit_rate.set(value); }
unsigned int* PictureTrackDescriptor::bit_rate() const { return private_->bit_rate.get(); }

void PictureTrackDescriptor::component_depth(unsigned int value) const {
  private_->component_depth.set(value);
}
unsigned int* PictureTrackDescriptor::component_depth() const {
  return private_->component_depth.get();
}

void PictureTrackDescriptor::colorspace(Colorspaces value) const { private_->colorspace = value; }
Colorspaces PictureTrackDescriptor::colorspace() const { return private_->colorspace; }

void PictureTrackDescriptor::colorimetry(Colorimetry value) const { private_->colorimetry = value; }
Colorimetry PictureTrackDescriptor::colorimetry() const { return private_->colorimetry; }

}  // namespace Korvane::Media
