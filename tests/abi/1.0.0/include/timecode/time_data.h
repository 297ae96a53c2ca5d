// A calendar date and time of day. Nothing checks the ranges.

#ifndef KV_ENGINE_TIMECODE_TIME_DATA_H
#define KV_ENGINE_TIMECODE_TIME_DATA_H

namespace Korvane {

struct TimeData {
  unsigned short year;
  unsigned short month;
  unsigned short day;
  unsigned short hour;
  unsigned short minute;
  unsigned short second;
  unsigned short millisecond;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIME_DATA_H
