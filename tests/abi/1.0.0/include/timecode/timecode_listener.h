// Receives the timecodes of a running source. Implemented by whoever wants them; calls come on the
// thread that reads the source, and no exception may leave them.

#ifndef KV_ENGINE_TIMECODE_TIMECODE_LISTENER_H
#define KV_ENGINE_TIMECODE_TIMECODE_LISTENER_H

#include "foundation/export.h"

namespace Korvane {

class Timecode;

class KV_ENGINE_API TimecodeListener {
 public:
  TimecodeListener();
  TimecodeListener(const TimecodeListener& other);
  TimecodeListener& operator=(const TimecodeListener& other);
  virtual ~TimecodeListener();

  // The timecode of frame `frame_index`, counted from 0 where the source was opened. `timecode` is
  // valid during the call.
  virtual void timecode_received(unsigned long long frame_index, const Timecode& timecode) = 0;

  // The source gave no readable timecode for frame `frame_index`.
  virtual void timecode_missing(unsigned long long frame_index) = 0;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIMECODE_LISTENER_H
