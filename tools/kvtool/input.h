// The file or stream that a command reads.

#ifndef KV_TOOLS_KVTOOL_INPUT_H
#define KV_TOOLS_KVTOOL_INPUT_H

#include <fstream>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <utility>

namespace Korvane::Tool {

class Input {
 public:
  // "-" is `standard_input`. Raises InputError when the file is missing or cannot be read.
  Input(const std::string& path, std::istream& standard_input);

  bool is_standard_input() const { return !file_.is_open(); }
  const std::string& name() const { return name_; }
  const std::string& path() const { return path_; }
  std::istream& stream() { return is_standard_input() ? standard_input_ : file_; }

  // `reached` is called for every block that a media library reads, until it is replaced by null.
  // It must not raise.
  void on_read(std::function<void()> reached) { reached_ = std::move(reached); }
  void tell_read() const {
    if (reached_) reached_();
  }

  // Raises InputError when there is more than `most` bytes; `what` was expected then.
  std::string read_all(std::size_t most, const std::string& what);

  // In bytes; unknown for standard input and for what is no regular file.
  std::optional<unsigned long long> size() const;

 private:
  std::string path_;
  std::string name_;  // for messages
  std::ifstream file_;
  std::istream& standard_input_;
  std::function<void()> reached_;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_INPUT_H
