// The engine library on another core: failures and log lines go to that one.

#include <cstdio>
#include <cstring>

#include "kv_engine.h"

namespace {

int failed = 0;

void check(bool condition, const char* what) {
  if (condition) return;
  std::printf("wrong: %s\n", what);
  failed = 1;
}

}  // namespace

int main() {
  for (unsigned long long number = 0; number < 2; ++number) {
    try {
      const Korvane::Timecode unsupported(48, false);
      check(false, "48 frames per second are accepted");
    } catch (const Korvane::Exception& exception) {
      check(exception.number() == number, "not as many exceptions of this core");
      check(exception.code() == Korvane::NotSupported, "code");
      check(std::strcmp(exception.message(), "Frame rate not supported.") == 0, "message");
    }
  }
  Korvane::TimecodeUtils::log_timecode_difference("A", Korvane::Timecode(25, 0LL, false),
                                                  Korvane::Timecode(25, 2LL, false));
  check(std::strcmp(Korvane::Logging::Logger::instance().last_line(),
                    "A: Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02") == 0,
        "log line");
  return failed;
}
