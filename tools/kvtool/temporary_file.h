// A file without a name that lasts as long as its object.

#ifndef KV_TOOLS_KVTOOL_TEMPORARY_FILE_H
#define KV_TOOLS_KVTOOL_TEMPORARY_FILE_H

#include <cstdio>
#include <memory>
#include <ostream>
#include <string_view>

namespace Korvane::Tool {

// Every operation raises InputError when the file cannot be made, written or read.
class TemporaryFile {
 public:
  TemporaryFile();
  void write(std::string_view text);
  void copy_to(std::ostream& out);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TEMPORARY_FILE_H
