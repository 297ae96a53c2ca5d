// A tone of 1 kHz, the same on two channels.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_TONE_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_TONE_H

#include <vector>

namespace Playout {

constexpr int kSoundRate = 48000;

// The samples `first` to `end` - 1 of a tone that began with sample 0: 16-bit PCM, low byte first,
// left before right.
std::vector<unsigned char> make_tone(long long first, long long end);

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_TONE_H
