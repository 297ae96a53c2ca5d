// An exception that differs in all that clients of the engine library do not rely on: it can only
// be moved, and knows how many were raised before it.

#ifndef OTHER_CORE_EXCEPTION_H
#define OTHER_CORE_EXCEPTION_H

#include "core/exception_code.h"

namespace Korvane {

class Exception {
 public:
  explicit Exception(unsigned long long number) : number_(number) {}
  Exception(const Exception&) = delete;
  Exception(Exception&& other) : number_(other.number_) {}
  Exception& operator=(const Exception&) = delete;
  Exception& operator=(Exception&&) = delete;
  virtual ~Exception();

  ExceptionCode code() const;
  const char* message() const;
  unsigned long long number() const { return number_; }

 private:
  unsigned long long number_;
};

void exception_enforce(bool condition, ExceptionCode code, const char* message, bool flag);
void exception_throw(ExceptionCode code, const char* message, bool flag);

}  // namespace Korvane
#endif  // OTHER_CORE_EXCEPTION_H
