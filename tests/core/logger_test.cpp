#include "core/logger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include "support/log_capture.h"

namespace Korvane {
namespace {

using Logging::Logger;

// Everything that reaches standard error while `operation` runs.
template <typename Operation>
std::string standard_error_of(Operation&& operation) {
  ::testing::internal::CaptureStderr();
  operation();
  std::string text = ::testing::internal::GetCapturedStderr();
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

TEST(Logger, IsOneObject) { EXPECT_EQ(&Logger::instance(), &Logger::instance()); }

TEST(Logger, WritesALineToStandardErrorByDefault) {
  EXPECT_EQ("hello\n", standard_error_of([] { Logger::instance().info("hello"); }));
}

TEST(Logger, NullIsAnEmptyLine) {
  EXPECT_EQ("\n", standard_error_of([] { Logger::instance().info(nullptr); }));
}

TEST(Logger, LineBreaksInATextDoNotMakeFurtherLines) {
  EXPECT_EQ("a b  c\n", standard_error_of([] { Logger::instance().info("a\nb\r\nc"); }));
}

TEST(Logger, ASinkTakesTheLines) {
  std::vector<std::string> lines;
  EXPECT_EQ("", standard_error_of([&] {
              const LogCapture log;
              Logger::instance().info("one");
              Logger::instance().info("two\nhalves");
              lines = log.lines();
            }));
  EXPECT_EQ((std::vector<std::string>{"one", "two\nhalves"}), lines);
}

TEST(Logger, ANullSinkRestoresStandardError) {
  { const LogCapture log; }
  EXPECT_EQ("back\n", standard_error_of([] { Logger::instance().info("back"); }));
}

TEST(Logger, ASinkMayLogAndChangeTheSink) {
  struct Reentrant {
    static void sink(void* /*context*/, const char* text) {
      Logger::instance().info((std::string("from the sink: ") + text).c_str());
      Logger::instance().set_sink(nullptr, nullptr);
    }
  };
  EXPECT_EQ("from the sink: x\ny\n", standard_error_of([] {
              Logger::instance().set_sink(Reentrant::sink, nullptr);
              Logger::instance().info("x");
              Logger::instance().info("y");
            }));
}

TEST(Logger, AFailingSinkLeavesTheLogUsable) {
  Logger::instance().set_sink([](void*, const char*) { throw 1; }, nullptr);
  EXPECT_THROW(Logger::instance().info("x"), int);
  const LogCapture log;
  Logger::instance().info("y");
  EXPECT_EQ(std::vector<std::string>{"y"}, log.lines());
}

constexpr int kThreads = 8;
constexpr int kLinesEach = 2000;

void log_from_eight_threads() {
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t] {
      const std::string line(60, static_cast<char>('a' + t));
      for (int i = 0; i < kLinesEach; ++i) Logger::instance().info(line.c_str());
    });
  }
  for (std::thread& thread : threads) thread.join();
}

// Counts lines of sixty equal letters by letter; anything else counts as mixed.
struct Counts {
  int by_thread[kThreads] = {};
  int mixed = 0;

  void add(const std::string& line) {
    const bool whole = line.size() == 60 && line == std::string(60, line[0]);
    const int thread = whole ? line[0] - 'a' : -1;
    if (thread >= 0 && thread < kThreads)
      ++by_thread[thread];
    else
      ++mixed;
  }

  void expect_whole() const {
    EXPECT_EQ(0, mixed);
    for (const int lines : by_thread) EXPECT_EQ(kLinesEach, lines);
  }
};

TEST(Logger, LinesOfEightThreadsStayWholeInASink) {
  const LogCapture log;
  log_from_eight_threads();
  Counts counts;
  for (const std::string& line : log.lines()) counts.add(line);
  counts.expect_whole();
}

TEST(Logger, LinesOfEightThreadsStayWholeOnStandardError) {
  const std::string text = standard_error_of(log_from_eight_threads);
  Counts counts;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    ASSERT_NE(std::string::npos, end);
    counts.add(text.substr(start, end - start));
    start = end + 1;
  }
  counts.expect_whole();
}

void count_line(void* context, const char* /*text*/) { ++*static_cast<int*>(context); }

TEST(Logger, NoLineIsLostWhileTheSinkChanges) {
  int in_sinks = 0;
  const std::string on_standard_error = standard_error_of([&] {
    std::thread logging([] {
      for (int i = 0; i < kLinesEach; ++i) Logger::instance().info("line");
    });
    for (int i = 0; i < 200; ++i) {
      int lines = 0;
      Logger::instance().set_sink(count_line, &lines);
      std::this_thread::yield();
      Logger::instance().set_sink(nullptr, nullptr);
      in_sinks += lines;  // no call is running any more
    }
    logging.join();
  });
  EXPECT_EQ(kLinesEach,
            in_sinks + std::count(on_standard_error.begin(), on_standard_error.end(), '\n'));
}

}  // namespace
}  // namespace Korvane
