// What is known of the timecode of a recording: at most its first one. Not copyable.

#ifndef KV_ENGINE_TIMECODE_TIMECODE_INFO_H
#define KV_ENGINE_TIMECODE_TIMECODE_INFO_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {

class Timecode;

namespace Media {

struct TimecodeInfoPrivate;

class KV_ENGINE_API TimecodeInfo {
 public:
  // Without a timecode.
  TimecodeInfo();
  virtual ~TimecodeInfo();

  // Keeps a copy of `tc`, whose `days` are therefore 0.
  void initial_timecode(const Timecode& tc);

  // Null while none was set. Valid until the next one is set or this object ends.
  virtual const Timecode* initial_timecode() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::SoleRecordPtr<TimecodeInfoPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIMECODE_INFO_H
