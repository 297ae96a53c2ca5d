#include "timecode/timecode_listener.h"

namespace Korvane {

TimecodeListener::TimecodeListener() = default;

TimecodeListener::TimecodeListener(const TimecodeListener& /*other*/) {}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to assign
TimecodeListener& TimecodeListener::operator=(const TimecodeListener& /*other*/) { return *this; }

TimecodeListener::~TimecodeListener() = default;

}  // namespace Korvane
