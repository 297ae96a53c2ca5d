// The bit rate of one track, with the kind of its essence. A value: copies are deep and
// independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_TRACK_BIT_RATES_H
#define KV_ENGINE_MEDIA_TRACK_BIT_RATES_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/track_descriptor_essence_kind.h"

namespace Korvane {
namespace Media {

struct TrackBitRatesPrivate;

class KV_ENGINE_API TrackBitRates {
 public:
  // EssenceNone, bit rate 0.
  TrackBitRates();

  // Values outside the enumeration are kept too.
  TrackBitRates(TrackDescriptorEssenceKind kind, unsigned int bit_rate);

  TrackBitRates(const TrackBitRates& other);
  TrackBitRates& operator=(const TrackBitRates& other);
  ~TrackBitRates();

  // Published without const: of an entry of a list, ask a copy.
  TrackDescriptorEssenceKind essence_kind();
  void essence_kind(TrackDescriptorEssenceKind value);

  // In the unit of the code that fills the record.
  unsigned int bit_rate() const;
  void bit_rate(unsigned int value);

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<TrackBitRatesPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_BIT_RATES_H
