#include "foundation/log_line.h"

#include <locale>

#include "core/logger.h"

namespace Korvane {

void LogLine::to_logger(const char* text) { Logging::Logger::instance().info(text); }

LogLine::LogLine() { stream_.imbue(std::locale::classic()); }

LogLine::LogLine(Sink sink) : LogLine() { set_sink(std::move(sink)); }

LogLine::~LogLine() {
  if (!sink_ || !stream_) return;  // a stream that ran out of memory holds half a line
  try {
    sink_(stream_.str().c_str());
  } catch (...) {  // NOLINT(bugprone-empty-catch): nothing may leave a destructor
  }
}

void LogLine::set_sink(Sink sink) { sink_ = std::move(sink); }

LogLine& LogLine::operator<<(const char* text) {
  if (text != nullptr) stream_ << text;
  return *this;
}

}  // namespace Korvane
