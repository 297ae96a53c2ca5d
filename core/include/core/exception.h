// The one exception type of the product, and the two functions that raise it.
//
// An Exception is a counted reference to an immutable code and message: copying and moving both
// share them, never allocate and never fail, so an exception may be caught by value, stored in a
// std::exception_ptr and passed between threads. It derives from nothing.

#ifndef KV_CORE_EXCEPTION_H
#define KV_CORE_EXCEPTION_H

#include "core/exception_code.h"
#include "core/export.h"

namespace Korvane {

struct ExceptionState;

class KV_CORE_API Exception {
 public:
  // Copies `message` (UTF-8, zero-terminated; null counts as empty). Raises std::bad_alloc when
  // there is no memory for the copy.
  Exception(ExceptionCode code, const char* message);

  Exception(const Exception& other) noexcept;
  Exception(Exception&& other) noexcept;  // copies: the source keeps its code and message
  Exception& operator=(const Exception& other) noexcept;
  Exception& operator=(Exception&& other) noexcept;
  virtual ~Exception();

  // The kind of failure, by which a program tells failures apart.
  ExceptionCode code() const;

  // The text of the failure (UTF-8), never null. Valid as long as any copy of this exception lives.
  const char* message() const;

 private:
  ExceptionState* state_;  // never null
};

static_assert(sizeof(void*) != 8 || sizeof(Exception) == 16, "one slot behind the virtual table");

// Raises Exception(code, message) when `condition` is false. `flag` is reserved: pass true.
KV_CORE_API void exception_enforce(bool condition, ExceptionCode code, const char* message,
                                   bool flag);

// Raises Exception(code, message). `flag` is reserved: pass true.
[[noreturn]] KV_CORE_API void exception_throw(ExceptionCode code, const char* message, bool flag);

}  // namespace Korvane
#endif  // KV_CORE_EXCEPTION_H
