#include "core/logger.h"

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <string>

namespace Korvane::Logging {
namespace {

using Sink = void (*)(void* context, const char* text);

// Recursive, so that a sink may itself log or change the sink.
struct State {
  std::recursive_mutex mutex;
  Sink sink = nullptr;
  void* context = nullptr;
  bool in_sink = false;
};

// Never destroyed: other static objects may log while the process ends.
State& state() {
  static State* const instance = new State;
  return *instance;
}

void write_to_standard_error(const char* text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
}

// Marks the sink as running, also when it leaves by an exception.
class SinkCall {
 public:
  explicit SinkCall(State& state) : state_(state) { state_.in_sink = true; }
  SinkCall(const SinkCall&) = delete;
  SinkCall& operator=(const SinkCall&) = delete;
  ~SinkCall() { state_.in_sink = false; }

 private:
  State& state_;
};

}  // namespace

Logger& Logger::instance() {
  static Logger* const logger = new Logger;
  return *logger;
}

void Logger::info(const char* text) {
  const char* const line = text != nullptr ? text : "";
  State& log = state();
  const std::lock_guard<std::recursive_mutex> lock(log.mutex);
  if (log.sink == nullptr || log.in_sink) {
    write_to_standard_error(line);
  } else {
    const SinkCall call(log);
    log.sink(log.context, line);
  }
}

void Logger::set_sink(void (*sink)(void* context, const char* text), void* context) {
  State& log = state();
  const std::lock_guard<std::recursive_mutex> lock(log.mutex);
  log.sink = sink;
  log.context = context;
}

}  // namespace Korvane::Logging
