// ext/chrono.h: where a drop-frame label lies in real time, and which label is due at a time.

#include <chrono>
#include <iostream>

#include "ext/chrono.h"
#include "ext/print.h"

int main() {
  using namespace Korvane;
  using namespace std::chrono_literals;

  // Exact, in a duration whose unit is the frame of 29.97.
  using Frames2997 = Ext::Frames<30000, 1001>;
  const Timecode hour(30, 1, 0, 0, 0, true, false);
  const auto position = Ext::frames_of<Frames2997>(hour);
  std::cout << hour << " is frame " << position.count() << ", "
            << std::chrono::duration_cast<std::chrono::microseconds>(1h - position).count()
            << " microseconds before the full hour\n";

  // Where the rate is known at run time only, in nanoseconds.
  const Rational32 edit_rate = Media::VideoFormatsHelper::edit_rate(Media::Hd1080i5994);
  std::cout << "on air after an hour: " << Ext::timecode_at(30, 1h, true, edit_rate) << '\n'
            << "frames of 16.683 ms: " << Ext::edit_rate_of(16683us) << " a second\n";
}
