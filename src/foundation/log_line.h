// Composes one log line and hands it over whole when the logging statement ends:
//   LogLine(LogLine::to_logger) << label << ": lost " << count << " frames";
// Numbers are written alike under every global locale.

#ifndef KV_ENGINE_SRC_FOUNDATION_LOG_LINE_H
#define KV_ENGINE_SRC_FOUNDATION_LOG_LINE_H

#include <functional>
#include <sstream>
#include <utility>

namespace Korvane {

class LogLine {
 public:
  using Sink = std::function<void(const char* text)>;

  // The sink that delivers to the process-wide log.
  static void to_logger(const char* text);

  // Without a sink nothing is ever written.
  LogLine();
  explicit LogLine(Sink sink);
  LogLine(const LogLine&) = delete;
  LogLine& operator=(const LogLine&) = delete;

  // Delivers the line. Want of memory and a sink that fails lose it: logging never ends the host.
  ~LogLine();

  void set_sink(Sink sink);

  // A null text appends nothing.
  LogLine& operator<<(const char* text);

  template <typename Value>
  LogLine& operator<<(const Value& value) {
    stream_ << value;
    return *this;
  }

 private:
  std::ostringstream stream_;
  Sink sink_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_FOUNDATION_LOG_LINE_H
