#include "core/exception.h"

#include <atomic>
#include <cstring>
#include <memory>

namespace Korvane {

// Lives until the last exception that refers to it is destroyed.
struct ExceptionState {
  std::atomic<unsigned int> owners{1};
  ExceptionCode code;
  std::unique_ptr<char[]> message;
};

namespace {

std::unique_ptr<char[]> copy_text(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  auto copy = std::make_unique<char[]>(size);
  std::memcpy(copy.get(), text, size);
  return copy;
}

ExceptionState* share(ExceptionState* state) {
  state->owners.fetch_add(1, std::memory_order_relaxed);
  return state;
}

void release(ExceptionState* state) {
  if (state->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) delete state;
}

}  // namespace

Exception::Exception(ExceptionCode code, const char* message)
    : state_(new ExceptionState{1, code, copy_text(message != nullptr ? message : "")}) {}

Exception::Exception(const Exception& other) noexcept : state_(share(other.state_)) {}

Exception::Exception(Exception&& other) noexcept : state_(share(other.state_)) {}

Exception& Exception::operator=(const Exception& other) noexcept {
  if (this != &other) {
    ExceptionState* const former = state_;
    state_ = share(other.state_);  // first, for it may be the same
    release(former);
  }
  return *this;
}

Exception& Exception::operator=(Exception&& other) noexcept {
  const Exception& source = other;
  return *this = source;
}

Exception::~Exception() { release(state_); }

ExceptionCode Exception::code() const { return state_->code; }

const char* Exception::message() const { return state_->message.get(); }

void exception_enforce(bool condition, ExceptionCode code, const char* message, bool flag) {
  if (!condition) exception_throw(code, message, flag);
}

void exception_throw(ExceptionCode code, const char* message, bool /*flag*/) {
  throw Exception(code, message);
}

}  // namespace Korvane
