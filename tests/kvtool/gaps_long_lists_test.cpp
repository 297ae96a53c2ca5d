// Long lists, which are read many lines at a time, as if each of their lines were read alone.

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <streambuf>

#include "kvtool/tool_run.h"
#include "support/naive_timecode.h"

namespace Korvane::Tool {
namespace {

// How a list is written. Frames at full rate count 00 to 49 or 59; otherwise pairs have ".0" or
// ".1".
struct Writing {
  const char* name;
  bool full_rate;
  char separator;
  const char* end;
};

constexpr Writing kWritings[] = {{"colons", false, ':', "\n"},
                                 {"full rate", true, ':', "\n"},
                                 {"semicolons", false, ';', "\n"},
                                 {"DOS", true, ':', "\r\n"},
                                 {"blanks", false, ':', "  \n"}};

std::string line_of(const Naive::Counting& counting, const Naive::Label& label,
                    const Writing& writing) {
  char text[32];
  const bool pairs = Naive::counts_pairs(counting) && !writing.full_rate;
  std::snprintf(text, sizeof text, "%02d:%02d:%02d%c%02d", label.hours, label.minutes,
                label.seconds, writing.separator, pairs ? label.frame / 2 : label.frame);
  return text + std::string(pairs ? (label.frame % 2 == 1 ? ".1" : ".0") : "") + writing.end;
}

// Four minutes over midnight.
std::vector<std::string> lines_over_midnight(const Naive::Counting& counting,
                                             const Writing& writing) {
  std::vector<std::string> lines;
  Naive::Frame frame;
  frame.label = {23, 58, 0, counting.drop ? 2 * (counting.rate / 30) : 0};
  while (frame.label.hours == 23 || frame.label.minutes < 2) {
    lines.push_back(line_of(counting, frame.label, writing));
    Naive::step_up(counting, frame);
  }
  return lines;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

std::vector<std::string> options_for(const Naive::Counting& counting) {
  std::vector<std::string> options = {"gaps", "--rate", std::to_string(counting.rate)};
  if (counting.drop) options.emplace_back("--drop");
  return options;
}

bool can_be_written(const Naive::Counting& counting, const Writing& writing) {
  return writing.separator == ':' || counting.drop;
}

// Hands out one byte at a time, as a slow pipe does.
class OneByOne : public std::streambuf {
 public:
  explicit OneByOne(std::string text) : text_(std::move(text)) {}

 protected:
  int_type underflow() override {
    if (at_ == text_.size()) return traits_type::eof();
    setg(&text_[at_], &text_[at_], &text_[at_] + 1);
    ++at_;
    return traits_type::to_int_type(*gptr());
  }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

ToolResult run_one_by_one(const std::vector<std::string>& args, const std::string& input) {
  OneByOne bytes(input);
  std::istream in(&bytes);
  std::ostringstream out;
  std::ostringstream err;
  Streams streams{in, out, err};
  const int code = run(args, streams);
  return {code, out.str(), err.str()};
}

template <typename Check>
void for_every_writing(Check check) {
  for (const Naive::Counting& counting : Naive::kCountings)
    for (const Writing& writing : kWritings)
      if (can_be_written(counting, writing)) {
        SCOPED_TRACE(std::string(counting.name) + ", " + writing.name);
        check(counting, lines_over_midnight(counting, writing));
      }
}

TEST(GapsLongLists, WithoutAGapEveryLineCounts) {
  for_every_writing([](const Naive::Counting& counting, const std::vector<std::string>& lines) {
    const ToolResult result = run_tool(options_for(counting), joined(lines));
    EXPECT_EQ(0, result.code);
    EXPECT_EQ("standard input: " + std::to_string(lines.size()) + " timecodes, 0 gaps, ",
              result.out.substr(0, result.out.find("first")));
  });
}

TEST(GapsLongLists, EveryMissingAndRepeatedLineIsFoundInItsPlace) {
  for_every_writing([](const Naive::Counting& counting, std::vector<std::string> lines) {
    std::vector<std::string> places;
    for (std::size_t at = 97; at + 1 < lines.size(); at += 389 + at % 7) {
      if (at % 2 == 0)
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
      else
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), lines[at - 1]);
      places.push_back("standard input:" + std::to_string(at + 1) + ": Found ");
    }
    const ToolResult result = run_tool(options_for(counting), joined(lines));
    EXPECT_EQ(1, result.code);
    std::istringstream out(result.out);
    std::string line;
    for (const std::string& place : places) {
      std::getline(out, line);
      EXPECT_EQ(place, line.substr(0, place.size()));
    }
    std::getline(out, line);
    EXPECT_EQ("standard input: " + std::to_string(lines.size()) + " timecodes, " +
                  std::to_string(places.size()) + " gaps, ",
              line.substr(0, line.find("first")));
  });
}

TEST(GapsLongLists, AreReadTheSameByteByByte) {
  for_every_writing([](const Naive::Counting& counting, std::vector<std::string> lines) {
    lines.resize(3000);
    lines[1000] = lines[2000];
    lines[1500] += "\n";
    const std::string text = joined(lines);
    const ToolResult whole = run_tool(options_for(counting), text);
    const ToolResult slow = run_one_by_one(options_for(counting), text);
    EXPECT_EQ(slow.code, whole.code);
    EXPECT_EQ(slow.out, whole.out);
    EXPECT_NE(std::string::npos, whole.out.find("standard input: 3000 timecodes, 2 gaps"));
  });
}

TEST(GapsLongLists, EndWithOrWithoutALineFeed) {
  const Naive::Counting& counting = Naive::kCountings[1];
  std::vector<std::string> lines = lines_over_midnight(counting, kWritings[0]);
  lines.back().pop_back();
  const ToolResult result = run_tool(options_for(counting), joined(lines));
  EXPECT_EQ("standard input: " + std::to_string(lines.size()) +
                " timecodes, 0 gaps, first 23:58:00:00, last 00:01:59:24\n",
            result.out);
}

}  // namespace
}  // namespace Korvane::Tool
