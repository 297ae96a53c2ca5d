#include "media/track_descriptor.h"

#include <functional>
#include <map>
#include <string>

#include "tracks/optional_cell.h"

namespace Korvane::Media {

struct TrackDescriptorPrivate {
  TrackDescriptorEssenceKind essence_kind = EssenceNone;
  OptionalCell<unsigned int> track_id;
  OptionalCell<Rational32> sample_rate;
  OptionalCell<unsigned int> pre_charge;
  OptionalCell<int> private_data;
  // std::string compares bytes as unsigned ones; the comparison without a type spares a copy of the
  // key that is looked for.
  std::map<std::string, std::string, std::less<>> key_values;
};

TrackDescriptor::TrackDescriptor() : private_(new TrackDescriptorPrivate) {}

TrackDescriptor::TrackDescriptor(const TrackDescriptor& other) = default;
TrackDescriptor& TrackDescriptor::operator=(const TrackDescriptor& other) = default;
TrackDescriptor::~TrackDescriptor() = default;

void TrackDescriptor::essence_kind(TrackDescriptorEssenceKind value) {
  private_->essence_kind = value;
}
TrackDescriptorEssenceKind TrackDescriptor::essence_kind() const { return private_->essence_kind; }

void TrackDescriptor::track_id(unsigned int value) { private_->track_id.set(value); }
unsigned int* TrackDescriptor::track_id() const { return private_->track_id.get(); }

void TrackDescriptor::sample_rate(Rational32 value) { private_->sample_rate.set(value); }
Rational32* TrackDescriptor::sample_rate() const { return private_->sample_rate.get(); }

void TrackDescriptor::pre_charge(unsigned int value) { private_->pre_charge.set(value); }
unsigned int* TrackDescriptor::pre_charge() const { return private_->pre_charge.get(); }

void TrackDescriptor::private_data(int value) { private_->private_data.set(value); }
int* TrackDescriptor::private_data() const { return private_->private_data.get(); }

void TrackDescriptor::add_key_value(const char* key, const char* value) {
  private_->key_values.try_emplace(key, value);
}

const char* TrackDescriptor::get_key_value(const char* key) const {
  const auto found = private_->key_values.find(key);
  return found == private_->key_values.end() ? nullptr : found->second.c_str();
}

}  // namespace Korvane::Media
