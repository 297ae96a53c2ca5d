// ext/ltc.h: the words of linear timecode as they are sent, with a reel number in the user bits.

#include <cstdio>

#include "ext/ltc.h"

int main() {
  using namespace Korvane;

  Ext::LtcExtras extras;
  extras.user_bits = 0x00000042;
  Timecode timecode(30, 0, 59, 59, 28, true, false);
  for (int i = 0; i < 3; ++i, ++timecode) {
    const Ext::LtcWord word = Ext::to_ltc(timecode, extras);
    for (const unsigned int byte : word) std::printf("%02X ", byte);
    const Timecode read = Ext::from_ltc(30, word);
    std::printf("%s, reel %X, parity %s\n",
                read.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkOmitted),
                Ext::ltc_extras(30, word).user_bits,
                Ext::has_even_ltc_parity(word) ? "even" : "odd");
  }
}
