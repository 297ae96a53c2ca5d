#include "foundation/log_line.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/log_capture.h"

namespace Korvane {
namespace {

class LogLineTest : public ::testing::Test {
 protected:
  LogLine::Sink sink() {
    return [this](const char* text) { lines_.emplace_back(text); };
  }
  std::vector<std::string> lines_;
};

TEST_F(LogLineTest, WritesOnceAtItsEnd) {
  {
    LogLine line(sink());
    line << "lost " << 3 << " of " << 4ULL << " frames";
    EXPECT_TRUE(lines_.empty());
  }
  EXPECT_EQ(std::vector<std::string>{"lost 3 of 4 frames"}, lines_);
}

TEST_F(LogLineTest, TakesItsSinkAfterCreation) {
  {
    LogLine line;
    line.set_sink(sink());
    line << "text";
  }
  EXPECT_EQ(std::vector<std::string>{"text"}, lines_);
}

TEST_F(LogLineTest, WithoutASinkNothingIsWritten) {
  const LogCapture log;
  LogLine() << "text";
  EXPECT_TRUE(log.lines().empty());
}

TEST_F(LogLineTest, NullTextAppendsNothing) {
  const char* const nothing = nullptr;
  LogLine(sink()) << "a" << nothing << "b";
  EXPECT_EQ(std::vector<std::string>{"ab"}, lines_);
}

TEST_F(LogLineTest, NumbersDoNotFollowTheGlobalLocale) {
  struct Grouped : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new Grouped));
  LogLine(sink()) << 1234567;
  std::locale::global(before);
  EXPECT_EQ(std::vector<std::string>{"1234567"}, lines_);
}

TEST_F(LogLineTest, AFailingSinkLosesTheLineOnly) {
  LogLine([](const char*) { throw std::runtime_error("full"); }) << "text";
  LogLine(sink()) << "next";
  EXPECT_EQ(std::vector<std::string>{"next"}, lines_);
}

TEST_F(LogLineTest, DeliversToTheProcessWideLog) {
  const LogCapture log;
  LogLine(LogLine::to_logger) << "to the log";
  EXPECT_EQ(std::vector<std::string>{"to the log"}, log.lines());
}

}  // namespace
}  // namespace Korvane
