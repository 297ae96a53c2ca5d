// The lines that follow one label when no frame is missing, written as that line is.

#ifndef KV_TOOLS_KVTOOL_FOLLOWING_LINES_H
#define KV_TOOLS_KVTOOL_FOLLOWING_LINES_H

#include <optional>
#include <string>
#include <string_view>

#include "timecode/timecode.h"

namespace Korvane::Tool {

class FollowingLines {
 public:
  struct Found {
    unsigned long long lines = 0;
    std::size_t bytes = 0;
  };

  // Those at the front of `text` that follow `last`, one frame on each; `last` becomes the last of
  // them. `line` is the line of `last`, its end included: none is found when it is not as the
  // library writes that label, but for the character before the frames.
  Found find(std::string_view text, const std::string& line, Timecode& last);

 private:
  struct Style {
    Timecode::FieldMarkIndication field_mark;
    char separator;
    std::string end;
    bool operator==(const Style& other) const = default;
  };

  static std::optional<Style> style_of(const std::string& line, const Timecode& timecode);
  static std::string line_of(const Timecode& timecode, const Style& style);

  std::string_view lines_from(const Timecode& first);
  void write_second(const Timecode& within);

  Style style_ = {Timecode::FieldMarkDotSuffix, ':', ""};
  std::string second_;         // all lines of one second
  std::size_t line_size_ = 1;  // of each of them
  long long first_count_ = 0;  // of the first of them
  bool begins_minute_ = true;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_FOLLOWING_LINES_H
