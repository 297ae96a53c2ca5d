#include <deque>
#include <string>

#include "core/exception.h"
#include "core/logger.h"

namespace Korvane {
namespace {

struct Failure {
  ExceptionCode code;
  std::string message;
};

// Kept for ever, as an exception holds only its number.
std::deque<Failure>& failures() {
  static std::deque<Failure> all;
  return all;
}

std::string& log_line() {
  static std::string line;
  return line;
}

}  // namespace

Exception::~Exception() = default;

ExceptionCode Exception::code() const { return failures()[number_].code; }

const char* Exception::message() const { return failures()[number_].message.c_str(); }

void exception_enforce(bool condition, ExceptionCode code, const char* message, bool flag) {
  if (!condition) exception_throw(code, message, flag);
}

void exception_throw(ExceptionCode code, const char* message, bool /*flag*/) {
  failures().push_back({code, message});
  throw Exception(failures().size() - 1);
}

namespace Logging {

Logger& Logger::instance() {
  static Logger logger;
  return logger;
}

void Logger::info(const char* text) { log_line() = text; }

const char* Logger::last_line() const { return log_line().c_str(); }

}  // namespace Logging
}  // namespace Korvane
