// One reading of audio power for each track, with whether the track is muted, in the order in which
// they were added. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_AUDIO_POWER_LIST_H
#define KV_ENGINE_MEDIA_AUDIO_POWER_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"

namespace Korvane {
namespace Media {

struct AudioPowerListPrivate;

class KV_ENGINE_API AudioPowerList {
 public:
  // Empty.
  AudioPowerList();

  AudioPowerList(const AudioPowerList& other);
  AudioPowerList& operator=(const AudioPowerList& other);
  ~AudioPowerList();

  // Appends the reading of one track. The unit of `power` is that of the code that fills the list;
  // any value is kept. Without memory for it the list stays as it was.
  void add_value(double power, bool muted);

  // The number of readings.
  size_t size() const;

  // The power at `index`, counted from 0; null when `index` is not below size(). Valid until the
  // next add_value, an assignment or the end of the list.
  const double* track_at(size_t index) const;

  // Whether the track at `index` is muted; false when `index` is not below size().
  bool track_muted_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<AudioPowerListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_AUDIO_POWER_LIST_H
