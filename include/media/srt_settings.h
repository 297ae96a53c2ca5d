// How the statistics of SRT connections are collected and for how long they are kept. Nothing is
// checked. A value, changed by assignment alone: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_SRT_SETTINGS_H
#define KV_ENGINE_MEDIA_SRT_SETTINGS_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct SrtSettingsPrivate;

class KV_ENGINE_API SrtSettings {
 public:
  // Kept for 2 days, polling period 5.
  SrtSettings();

  // Any values are kept.
  SrtSettings(unsigned short days_to_preserve_stats, unsigned int polling_period);

  SrtSettings(const SrtSettings& other);
  SrtSettings& operator=(const SrtSettings& other);
  virtual ~SrtSettings();

  // For how many days samples are kept.
  unsigned short days_to_preserve_stats() const;

  // From one sample to the next, in the unit of the code that polls.
  unsigned int polling_period() const;

  // Equal when both values are. Published without const.
  bool operator==(const SrtSettings& other);
  bool operator!=(const SrtSettings& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<SrtSettings, Left, Right> operator==(Left&& left, Right&& right) {
    return left.operator==(right);
  }

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SrtSettingsPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SRT_SETTINGS_H
