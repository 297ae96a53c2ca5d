#include "timecode/timecode_info.h"

#include <memory>

#include "timecode/timecode.h"

namespace Korvane::Media {

struct TimecodeInfoPrivate {
  std::unique_ptr<Timecode> initial_timecode;
};

TimecodeInfo::TimecodeInfo() : private_(new TimecodeInfoPrivate) {}

TimecodeInfo::~TimecodeInfo() = default;

void TimecodeInfo::initial_timecode(const Timecode& tc) {
  // The new one comes in before the old one goes: `tc` may be the old one.
  private_->initial_timecode.reset(new Timecode(tc));
}

const Timecode* TimecodeInfo::initial_timecode() const { return private_->initial_timecode.get(); }

}  // namespace Korvane::Media
