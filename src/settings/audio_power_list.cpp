#include "media/audio_power_list.h"

#include <vector>

#include "foundation/list_record.h"

namespace Korvane::Media {

// One flag for each power value; one more, which is false, may be left where memory ran out.
struct AudioPowerListPrivate {
  ListRecord<double> powers;
  std::vector<bool> muted;
};

AudioPowerList::AudioPowerList() : private_(new AudioPowerListPrivate) {}

AudioPowerList::AudioPowerList(const AudioPowerList& other) = default;

AudioPowerList& AudioPowerList::operator=(const AudioPowerList& other) = default;

AudioPowerList::~AudioPowerList() = default;

void AudioPowerList::add_value(double power, bool muted) {
  private_->muted.resize(size() + 1);
  private_->powers.add(power);
  private_->muted.back() = muted;
}

size_t AudioPowerList::size() const { return private_->powers.size(); }

const double* AudioPowerList::track_at(size_t index) const { return private_->powers.find(index); }

bool AudioPowerList::track_muted_at(size_t index) const {
  return index < private_->muted.size() && private_->muted[index];
}

}  // namespace Korvane::Media
