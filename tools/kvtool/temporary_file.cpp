#include "temporary_file.h"

#include <cstdlib>

#include "failure.h"

namespace Korvane::Tool {
namespace {

std::FILE* open_temporary() {
#ifdef _WIN32
  // tmpfile would use the root folder, where a user may not write. "D": deleted on closing.
  char* const path = _tempnam(nullptr, "kvtool");
  std::FILE* const file = path != nullptr ? std::fopen(path, "w+bTD") : nullptr;
  std::free(path);
  return file;
#else
  return std::tmpfile();
#endif
}

void require(bool done) {
  if (!done)
    throw InputError("temporary file cannot be used (expected room in the temporary folder)");
}

}  // namespace

TemporaryFile::TemporaryFile() : file_(open_temporary()) { require(file_ != nullptr); }

void TemporaryFile::write(std::string_view text) {
  require(std::fwrite(text.data(), 1, text.size(), file_.get()) == text.size());
}

void TemporaryFile::copy_to(std::ostream& out) {
  require(std::fflush(file_.get()) == 0 && std::fseek(file_.get(), 0, SEEK_SET) == 0);
  char block[16384];
  while (const std::size_t size = std::fread(block, 1, sizeof block, file_.get()))
    out.write(block, static_cast<std::streamsize>(size));
  require(std::ferror(file_.get()) == 0);
}

}  // namespace Korvane::Tool
