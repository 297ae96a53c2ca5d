#include "following_lines.h"

#include <algorithm>

namespace Korvane::Tool {
namespace {

constexpr std::size_t kTimeSize = 8;  // "HH:MM:SS"
constexpr std::size_t kSeparatorAt = kTimeSize;

std::size_t same_at_front(std::string_view a, std::string_view b) {
  if (a.starts_with(b)) return b.size();
  return static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
}

}  // namespace

std::string FollowingLines::line_of(const Timecode& timecode, const Style& style) {
  std::string line = timecode.c_str(Timecode::DropFrameSemicolon, style.field_mark);
  line[kSeparatorAt] = style.separator;
  return line + style.end;
}

std::optional<FollowingLines::Style> FollowingLines::style_of(const std::string& line,
                                                              const Timecode& timecode) {
  const std::size_t end = line.find_last_not_of(" \t\r\n") + 1;
  if (end <= kSeparatorAt || !line.ends_with('\n')) return std::nullopt;
  for (const auto field_mark : {Timecode::FieldMarkDotSuffix, Timecode::FieldMarkFullRateFrames}) {
    const Style style = {field_mark, line[kSeparatorAt], line.substr(end)};
    if (line_of(timecode, style) == line) return style;
  }
  return std::nullopt;
}

void FollowingLines::write_second(const Timecode& within) {
  Timecode timecode(within);
  while (timecode.seconds() == within.seconds()) --timecode;
  ++timecode;
  first_count_ = timecode.frame_count();
  begins_minute_ = timecode.seconds() == 0;
  second_.clear();
  for (; timecode.seconds() == within.seconds(); ++timecode) second_ += line_of(timecode, style_);
  line_size_ = line_of(within, style_).size();
}

std::string_view FollowingLines::lines_from(const Timecode& first) {
  const std::string_view time(first.c_str(Timecode::DropFrameSemicolon, style_.field_mark),
                              kTimeSize);
  const auto lines = static_cast<long long>(second_.size() / line_size_);
  const long long index = first.frame_count() - first_count_;
  const std::string_view written = second_;
  if (lines > 0 && index == lines && !begins_minute_ && first.seconds() != 0) {
    // The next second has as many frames, so that only its time is another.
    for (std::size_t at = 0; at < second_.size(); at += line_size_)
      time.copy(&second_[at], kTimeSize);
    first_count_ = first.frame_count();
    return second_;
  }
  if (index < 0 || index >= lines || written.substr(0, kTimeSize) != time) write_second(first);
  return std::string_view(second_).substr(
      static_cast<std::size_t>(first.frame_count() - first_count_) * line_size_);
}

FollowingLines::Found FollowingLines::find(std::string_view text, const std::string& line,
                                           Timecode& last) {
  if (text.empty() || last.hours() > 23) return {};
  const std::optional<Style> style = style_of(line, last);
  if (!style) return {};
  if (*style != style_) {
    style_ = *style;
    second_.clear();
  }
  Found found;
  Timecode next(last);
  ++next;
  for (bool whole = true; whole;) {
    const std::string_view expected = lines_from(next);
    const std::size_t same = same_at_front(text, expected) / line_size_;
    found.lines += same;
    found.bytes += same * line_size_;
    next.add(static_cast<long long>(same));
    text.remove_prefix(same * line_size_);
    whole = same * line_size_ == expected.size();
  }
  last.add(static_cast<long long>(found.lines));
  return found;
}

}  // namespace Korvane::Tool
