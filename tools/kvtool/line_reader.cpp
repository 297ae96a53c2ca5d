#include "line_reader.h"

#include <algorithm>

namespace Korvane::Tool {
namespace {

constexpr std::streamsize kMostAtOnce = 65536;

void append_shortened(std::string& line, std::string_view part) {
  const std::size_t room =
      LineReader::kLongestLine - std::min(line.size(), LineReader::kLongestLine);
  line += part.substr(0, room);
  if (part.size() <= room) return;
  const std::size_t last = part.find_last_not_of(" \t\r\n");
  // So that it does not pass for white space at the end.
  if (last != std::string_view::npos && last >= room) line.back() = part[last];
}

}  // namespace

// Waits until there is something, and takes what is there without waiting for more: a line is to be
// looked at when it comes.
bool LineReader::fill() {
  std::streambuf& bytes = *in_.rdbuf();
  if (bytes.sgetc() == std::char_traits<char>::eof()) return false;
  const std::streamsize waiting = std::clamp<std::streamsize>(bytes.in_avail(), 1, kMostAtOnce);
  buffer_.resize(static_cast<std::size_t>(kMostAtOnce));
  begin_ = 0;
  end_ = static_cast<std::size_t>(bytes.sgetn(buffer_.data(), waiting));
  return end_ > 0;
}

bool LineReader::read_line(std::string& line) {
  line.clear();
  bool any = false;
  while (begin_ < end_ || fill()) {
    any = true;
    const std::string_view rest = ahead();
    const std::size_t feed = rest.find('\n');
    const std::size_t size = feed == std::string_view::npos ? rest.size() : feed + 1;
    append_shortened(line, rest.substr(0, size));
    skip(size);
    if (feed != std::string_view::npos) break;
  }
  return any;
}

}  // namespace Korvane::Tool
