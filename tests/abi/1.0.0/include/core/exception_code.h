// The kinds of failure that an Exception reports. Other values may be in use elsewhere.

#ifndef KV_CORE_EXCEPTION_CODE_H
#define KV_CORE_EXCEPTION_CODE_H

namespace Korvane {

enum ExceptionCode : unsigned int {
  StringConversionFailed = 14,  // between UTF-8 and UTF-16
  InvalidArgument = 15,         // out of range, past the end, or without a mapping
  NotSupported = 21,            // a timecode frame rate outside the supported ones
  UnmappedValue = 22,           // a colour space without component depth or plane count
  MissingProperty = 24          // a picture track descriptor lacks what the operation needs
};

}  // namespace Korvane
#endif  // KV_CORE_EXCEPTION_CODE_H
