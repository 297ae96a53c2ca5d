// ext/ranges.h: range-for and the standard algorithms over the library's lists.

#include <algorithm>
#include <iostream>

#include "ext/print.h"
#include "ext/ranges.h"

int main() {
  using namespace Korvane;

  Media::TrackDescriptorList tracks;
  tracks.add_track(Media::PictureTrackDescriptor());
  tracks.add_track(Media::SoundTrackDescriptor());
  tracks.add_track(Media::SoundTrackDescriptor());
  for (const Media::TrackDescriptor& track : tracks) std::cout << track << '\n';

  Media::AudioPowerList powers;
  powers.add_value(-18, false);
  powers.add_value(-3, true);
  powers.add_value(-9, false);
  const auto loudest = std::max_element(
      begin(powers), end(powers), [](const Ext::AudioPower& left, const Ext::AudioPower& right) {
        return left.power < right.power;
      });
  std::cout << "loudest: track " << loudest - begin(powers) << " of " << powers.size()
            << (loudest->muted ? ", muted" : "") << '\n';
}
