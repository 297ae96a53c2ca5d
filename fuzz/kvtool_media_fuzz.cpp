// Damaged media files, probed and read for timecodes in pictures and in sound.

#include <sys/mman.h>
#include <unistd.h>

#include "gaps_command.h"
#include "kvtool_run.h"
#include "media_inputs.h"

namespace {

// A file in memory.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* data, std::size_t size) : file_(memfd_create("clip", 0)) {
    Korvane::expect(file_ >= 0);
    Korvane::expect(write(file_, data, size) == static_cast<ssize_t>(size));
  }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(file_); }

  std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace Tool = Korvane::Tool;
  const MemoryFile file(data, size);
  Korvane::run_json_command([&](Tool::Streams& streams) {
    return Tool::run_probe({file.path(), true}, streams);
  });
  Korvane::run_json_command([&](Tool::Streams& streams) {
    return Tool::run_gaps({file.path(), "media", "", false, false, true}, streams);
  });
  Korvane::run_json_command([&](Tool::Streams& streams) {
    return Tool::run_gaps({file.path(), "ltc", "25", false, false, true}, streams);
  });
  return 0;
}
