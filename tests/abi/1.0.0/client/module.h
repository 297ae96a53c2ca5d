// A module of an engine and what its host asks of it. Module and host are built by different
// compilers, with different settings, against headers of different versions, and meet in the
// library.

#ifndef KV_TESTS_ABI_CLIENT_MODULE_H
#define KV_TESTS_ABI_CLIENT_MODULE_H

#include "kv_engine.h"

namespace Client {

// Frames 0, 1 and 2 at 25 frames per second from 10:00:00:00, each with one sample of four bytes
// that hold its number.
Korvane::Media::FrameProviderPtr new_frames();
Korvane::Media::ISampleProviderPtr new_samples();

// How many objects of the module are alive.
int alive();

// Makes listeners that add up the sizes of encoded frames into encoded_bytes(). Refuses the encoder
// "refused" by NotSupported "No such encoder".
Korvane::Media::IEncodingPerfListenerProvider& encoders();
unsigned long long encoded_bytes();

// Calls each function of the listeners once, in their order, with numbers that count from 1.
void report(Korvane::TimecodeListener& timecodes, Korvane::Media::FrameListener& frames,
            Korvane::Media::MediaSampleListener& samples,
            Korvane::Media::StreamStatsListener& statistics);

// The tick that `ticks` gives, and the identifiers that `info` holds: of tape, master and source.
unsigned long long tick_of(const Korvane::TickCountProvider& ticks);
void name_material(Korvane::Media::IUmidInfo& info);

// Raises InvalidArgument "Raised by the module".
void fail();

}  // namespace Client
#endif  // KV_TESTS_ABI_CLIENT_MODULE_H
