// Collects what is logged while it lives.

#ifndef KV_ENGINE_TESTS_SUPPORT_LOG_CAPTURE_H
#define KV_ENGINE_TESTS_SUPPORT_LOG_CAPTURE_H

#include <string>
#include <vector>

#include "core/logger.h"

namespace Korvane {

class LogCapture {
 public:
  LogCapture() { Logging::Logger::instance().set_sink(collect, this); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;
  ~LogCapture() { Logging::Logger::instance().set_sink(nullptr, nullptr); }

  const std::vector<std::string>& lines() const { return lines_; }

 private:
  static void collect(void* context, const char* text) {
    static_cast<LogCapture*>(context)->lines_.emplace_back(text);
  }

  std::vector<std::string> lines_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_LOG_CAPTURE_H
