// A log that keeps its last line.

#ifndef OTHER_CORE_LOGGER_H
#define OTHER_CORE_LOGGER_H

namespace Korvane {
namespace Logging {

class Logger {
 public:
  static Logger& instance();
  void info(const char* text);
  const char* last_line() const;
};

}  // namespace Logging
}  // namespace Korvane
#endif  // OTHER_CORE_LOGGER_H
