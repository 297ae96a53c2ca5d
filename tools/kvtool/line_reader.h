// Lines of a stream, and the lines that wait behind them. Memory does not grow with the input.

#ifndef KV_TOOLS_KVTOOL_LINE_READER_H
#define KV_TOOLS_KVTOOL_LINE_READER_H

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Tool {

class LineReader {
 public:
  // What is longer is not kept in full.
  static constexpr std::size_t kLongestLine = 256;

  // Reads `in`, which must outlive the reader.
  explicit LineReader(std::istream& in) : in_(in) {}

  // The next line with the white space at its end, its line feed too. Of a line longer than
  // kLongestLine the last character kept is the last that is no white space. False at the end.
  bool read_line(std::string& line);

  // The bytes behind the last line that have been read already; none may be there. Valid until the
  // next call of read_line.
  std::string_view ahead() const { return {buffer_.data() + begin_, end_ - begin_}; }

  // Takes `size` of the bytes ahead for read.
  void skip(std::size_t size) {
    begin_ += size;
    bytes_ += size;
  }

  unsigned long long bytes_read() const { return bytes_; }

 private:
  bool fill();

  std::istream& in_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  unsigned long long bytes_ = 0;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_LINE_READER_H
