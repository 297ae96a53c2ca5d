// The vectors in tests/vectors, which other programs read, too.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/raises.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

// The lines of a file by the names of its columns.
class Vectors {
 public:
  explicit Vectors(const char* name) : file_(std::string(KV_VECTORS "/") + name) {
    if (next()) names_ = cells_;
  }

  bool next() {
    std::string line;
    if (!std::getline(file_, line)) return false;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    cells_.clear();
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, ',');) cells_.push_back(cell);
    return true;
  }

  const std::string& text(const std::string& name) const {
    for (std::size_t i = 0; i < names_.size(); ++i)
      if (names_[i] == name) return cells_.at(i);
    ADD_FAILURE() << "no column " << name;
    return cells_.at(0);
  }

  long long number(const std::string& name) const { return std::stoll(text(name)); }
  unsigned long long word(const std::string& name) const {
    return std::stoull(text(name), nullptr, 16);
  }
  unsigned short rate() const { return static_cast<unsigned short>(number("rate")); }
  unsigned char field(const std::string& name) const {
    return static_cast<unsigned char>(number(name));
  }
  bool flag(const std::string& name) const { return text(name) == "1"; }
  std::string line() const { return ::testing::PrintToString(cells_); }

 private:
  std::ifstream file_;
  std::vector<std::string> names_;
  std::vector<std::string> cells_;
};

void expect_numbers(const Vectors& row, const Timecode& timecode) {
  EXPECT_EQ(row.number("frame_count"), timecode.frame_count());
  EXPECT_EQ(row.number("absolute_frame_count"), timecode.absolute_frame_count());
  EXPECT_EQ(row.number("days"), timecode.days());
  EXPECT_EQ(row.number("hours"), timecode.hours());
  EXPECT_EQ(row.number("minutes"), timecode.minutes());
  EXPECT_EQ(row.number("seconds"), timecode.seconds());
  EXPECT_EQ(row.number("frames"), timecode.frames());
  EXPECT_EQ(row.flag("field_mark"), timecode.field_mark());
  EXPECT_EQ(row.number("full_rate_frame"), timecode.frames_ignore_field_mark());
}

void expect_forms(const Vectors& row, const Timecode& timecode) {
  EXPECT_EQ(row.text("label"),
            timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix));
  EXPECT_EQ(row.text("full_rate_label"),
            timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames));
  EXPECT_EQ(row.word("st12_word32"), timecode.to_12m());
  EXPECT_EQ(row.word("st12_word64"), timecode.to_12m_full());
  EXPECT_EQ(static_cast<unsigned long long>(row.number("milliseconds")),
            timecode.to_ms({static_cast<int>(row.number("edit_rate_numerator")),
                            static_cast<int>(row.number("edit_rate_denominator"))}));
}

TEST(TimecodeVectors, CountsGiveLabelsTextsAndWords) {
  Vectors row("timecodes.csv");
  int rows = 0;
  for (; row.next(); ++rows) {
    SCOPED_TRACE(row.line());
    const Timecode timecode(row.rate(), row.number("frame_count"), row.flag("drop_frame"));
    expect_numbers(row, timecode);
    expect_forms(row, timecode);
  }
  EXPECT_EQ(824, rows);
}

TEST(TimecodeVectors, LabelsTextsAndWordsGiveCounts) {
  Vectors row("timecodes.csv");
  int rows = 0;
  for (; row.next(); ++rows) {
    SCOPED_TRACE(row.line());
    const long long absolute = row.number("absolute_frame_count");
    const Timecode label(row.rate(), row.field("hours"), row.field("minutes"), row.field("seconds"),
                         row.field("frames"), row.flag("drop_frame"), row.flag("field_mark"));
    EXPECT_EQ(absolute, label.frame_count());
    EXPECT_EQ(
        absolute,
        Timecode(row.rate(), static_cast<unsigned int>(row.word("st12_word32"))).frame_count());
    const Timecode read = TimecodeUtils::load_timecode_from_string(
        row.rate(), row.text("label").c_str(), Timecode::DropFrameSemicolon,
        Timecode::FieldMarkDotSuffix);
    EXPECT_EQ(absolute, read.frame_count());
    const Timecode unpacked =
        TimecodeUtils::load_timecode_from_full_st12m(row.rate(), row.word("st12_word64"), true);
    EXPECT_EQ(absolute - row.number("field_mark"), unpacked.frame_count());
  }
  EXPECT_EQ(824, rows);
}

TEST(TimecodeVectors, WrongLabelsAreRefusedByTheirFirstFault) {
  Vectors row("timecode_errors.csv");
  int rows = 0;
  for (; row.next(); ++rows) {
    SCOPED_TRACE(row.line());
    EXPECT_TRUE(
        raises(static_cast<ExceptionCode>(row.number("code")), row.text("message").c_str(), [&row] {
          Timecode(row.rate(), row.field("hours"), row.field("minutes"), row.field("seconds"),
                   row.field("frames"), row.flag("drop_frame"), row.flag("field_mark"));
        }));
  }
  EXPECT_EQ(18, rows);
}

}  // namespace
}  // namespace Korvane
