#include "timecode/timecode_listener.h"

namespace Korvane {

TimecodeListener::TimecodeListener() = default;

TimecodeListener::TimecodeListener(const TimecodeListener& /*other*/) {}

TimecodeListener& TimecodeListener::operator=(const TimecodeListener&) = default;

TimecodeListener::~TimecodeListener() = default;

}  // namespace Korvane
