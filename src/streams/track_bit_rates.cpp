#include "media/track_bit_rates.h"

namespace Korvane::Media {

struct TrackBitRatesPrivate {
  TrackDescriptorEssenceKind essence_kind = EssenceNone;
  unsigned int bit_rate = 0;
};

TrackBitRates::TrackBitRates() : private_(new TrackBitRatesPrivate) {}

TrackBitRates::TrackBitRates(TrackDescriptorEssenceKind kind, unsigned int bit_rate)
    : private_(new TrackBitRatesPrivate{kind, bit_rate}) {}

TrackBitRates::TrackBitRates(const TrackBitRates& other) = default;

TrackBitRates& TrackBitRates::operator=(const TrackBitRates& other) = default;

TrackBitRates::~TrackBitRates() = default;

TrackDescriptorEssenceKind TrackBitRates::essence_kind() { return private_->essence_kind; }

void TrackBitRates::essence_kind(TrackDescriptorEssenceKind value) {
  private_->essence_kind = value;
}

unsigned int TrackBitRates::bit_rate() const { return private_->bit_rate; }

void TrackBitRates::bit_rate(unsigned int value) { private_->bit_rate = value; }

}  // namespace Korvane::Media
