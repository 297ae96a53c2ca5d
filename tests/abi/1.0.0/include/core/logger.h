// The process-wide log. Every operation may be called from any thread.

#ifndef KV_CORE_LOGGER_H
#define KV_CORE_LOGGER_H

#include "core/export.h"

namespace Korvane {
namespace Logging {

class KV_CORE_API Logger {
 public:
  // Created on the first call; lives until the process ends.
  static Logger& instance();

  Logger(const Logger&) = delete;
  Logger& operator=(const Logger&) = delete;

  // Hands one informational line (UTF-8, zero-terminated; null counts as empty) to the sink. Lines
  // of several threads never mix. The default sink writes the text and a line feed to standard
  // error, with line breaks inside the text written as spaces.
  void info(const char* text);

  // Sends every later line to `sink`, called with `context` and a text that is valid during the
  // call. Calls of the sink never overlap, and once set_sink returns the former sink is no longer
  // running, unless it was the former sink that called set_sink. A null sink restores the default.
  // A line that the sink itself logs goes to the default sink.
  void set_sink(void (*sink)(void* context, const char* text), void* context);

 private:
  Logger() = default;
  ~Logger() = default;
};

}  // namespace Logging
}  // namespace Korvane
#endif  // KV_CORE_LOGGER_H
