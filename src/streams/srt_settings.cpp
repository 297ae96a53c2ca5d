#include "media/srt_settings.h"

namespace Korvane::Media {

struct SrtSettingsPrivate {
  unsigned short days_to_preserve_stats = 2;
  unsigned int polling_period = 5;
};

SrtSettings::SrtSettings() : private_(new SrtSettingsPrivate) {}

SrtSettings::SrtSettings(unsigned short days_to_preserve_stats, unsigned int polling_period)
    : private_(new SrtSettingsPrivate{days_to_preserve_stats, polling_period}) {}

SrtSettings::SrtSettings(const SrtSettings& other) = default;

SrtSettings& SrtSettings::operator=(const SrtSettings& other) = default;

SrtSettings::~SrtSettings() = default;

unsigned short SrtSettings::days_to_preserve_stats() const {
  return private_->days_to_preserve_stats;
}

unsigned int SrtSettings::polling_period() const { return private_->polling_period; }

bool SrtSettings::operator==(const SrtSettings& other) {
  return private_->days_to_preserve_stats == other.private_->days_to_preserve_stats &&
         private_->polling_period == other.private_->polling_period;
}

bool SrtSettings::operator!=(const SrtSettings& other) { return !(*this == other); }

}  // namespace Korvane::Media
