// A calendar date and time of day. Nothing checks the ranges.

#ifndef KV_ENGINE_TIMECODE_TIME_DATA_H
#define KV_ENGINE_TIMECODE_TIME_DATA_H

namespace Korvane {

struct TimeData {
  unsigned short year;         // Gregorian, four digits
  unsigned short month;        // 1 to 12
  unsigned short day;          // 1 to 31
  unsigned short hour;         // 0 to 23
  unsigned short minute;       // 0 to 59
  unsigned short second;       // 0 to 59
  unsigned short millisecond;  // 0 to 999
};

}  // namespace Korvane
#endif  // KV_ENGINE_TIMECODE_TIME_DATA_H
