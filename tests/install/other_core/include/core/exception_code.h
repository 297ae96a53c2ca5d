// The codes that the engine library uses, among this core's own.

#ifndef OTHER_CORE_EXCEPTION_CODE_H
#define OTHER_CORE_EXCEPTION_CODE_H

namespace Korvane {

enum ExceptionCode : unsigned int {
  OutOfCoffee = 1,
  StringConversionFailed = 14,
  InvalidArgument = 15,
  NotSupported = 21,
  UnmappedValue = 22,
  MissingProperty = 24
};

}  // namespace Korvane
#endif  // OTHER_CORE_EXCEPTION_CODE_H
