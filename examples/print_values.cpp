// ext/print.h: everything prints as one line, and a password never.

#include <iostream>

#include "ext/print.h"

int main() {
  using namespace Korvane;

  const Timecode timecode(50, 49LL, false);
  std::cout << timecode << ", " << Ext::label_with_mark(timecode) << ", "
            << Ext::label_at_full_rate(timecode) << '\n';

  Media::SoundTrackDescriptor sound;
  sound.essence_kind(Media::EssencePcm);
  sound.sampling_rate(48000);
  sound.channel_count(2);
  const Media::TrackDescriptor& track = sound;  // prints as what it is; absent attributes stay out
  std::cout << track << '\n';

  std::cout << ImageInfo(Media::Hd1080i50, V210, ColorimetryUnspecified) << '\n'
            << Media::InterplayWebService("mam.example", 443, "News", "ingest", "secret", true, 30)
            << '\n';
}
