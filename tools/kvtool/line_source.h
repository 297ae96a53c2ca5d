// Timecodes from lines of text: labels or hexadecimal words. Memory does not grow with the input.

#ifndef KV_TOOLS_KVTOOL_LINE_SOURCE_H
#define KV_TOOLS_KVTOOL_LINE_SOURCE_H

#include <istream>
#include <string>

#include "following_lines.h"
#include "line_reader.h"
#include "rate.h"
#include "timecode_source.h"

namespace Korvane::Tool {

enum class LineForm { Label, Word32, Word64 };

class LineSource : public TimecodeSource {
 public:
  // `name` is printed in errors. Reads `in`, which must outlive the source. The field mark is of
  // 64-bit words, whose bit more often holds parity.
  LineSource(std::istream& in, std::string name, const Rate& rate, LineForm form,
             bool read_field_mark);

  std::optional<Entry> next() override;
  unsigned long long take_following(Timecode& last) override;
  unsigned short frame_rate() const override { return rate_.nominal; }
  const char* unit() const override { return "line"; }
  unsigned long long bytes_read() const override { return reader_.bytes_read(); }

 private:
  std::optional<Timecode> timecode_of_line() const;
  std::string refusal() const;

  LineReader reader_;
  FollowingLines following_;
  std::string name_;
  Rate rate_;
  LineForm form_;
  bool read_field_mark_;
  std::string whole_line_;  // with what stands at its end
  std::string line_;        // without white space at its end
  unsigned long long line_number_ = 0;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_LINE_SOURCE_H
