// The bit rates of the tracks of one stream, in the order in which they were added: one entry for
// each track, also when kinds repeat. The list holds copies of its own. A value: copies are deep
// and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_TRACK_BIT_RATES_LIST_H
#define KV_ENGINE_MEDIA_TRACK_BIT_RATES_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"
#include "media/track_bit_rates.h"

namespace Korvane {
namespace Media {

struct TrackBitRatesListPrivate;

class KV_ENGINE_API TrackBitRatesList {
 public:
  // Empty.
  TrackBitRatesList();

  TrackBitRatesList(const TrackBitRatesList& other);
  TrackBitRatesList& operator=(const TrackBitRatesList& other);
  ~TrackBitRatesList();

  // Appends a copy.
  void add_track(const TrackBitRates& track);

  size_t size() const;

  // Null when `index`, counted from 0, is not below the size. Otherwise valid until the next
  // add_track, an assignment or the end of the list.
  const TrackBitRates* track_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<TrackBitRatesListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_BIT_RATES_LIST_H
