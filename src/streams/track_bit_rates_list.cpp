#include "media/track_bit_rates_list.h"

#include "foundation/list_record.h"

namespace Korvane::Media {

struct TrackBitRatesListPrivate : ListRecord<TrackBitRates> {};

TrackBitRatesList::TrackBitRatesList() : private_(new TrackBitRatesListPrivate) {}

TrackBitRatesList::TrackBitRatesList(const TrackBitRatesList& other) = default;

TrackBitRatesList& TrackBitRatesList::operator=(const TrackBitRatesList& other) = default;

TrackBitRatesList::~TrackBitRatesList() = default;

void TrackBitRatesList::add_track(const TrackBitRates& track) { private_->add(track); }

size_t TrackBitRatesList::size() const { return private_->size(); }

const TrackBitRates* TrackBitRatesList::track_at(size_t index) const {
  return private_->find(index);
}

}  // namespace Korvane::Media
