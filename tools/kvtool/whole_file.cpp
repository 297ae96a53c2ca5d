#include "whole_file.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "failure.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

[[noreturn]] void refuse_target(const std::string& path, const char* reason) {
  throw InputError(printable_name(path) + ": " + reason + " (expected a file that can be written)");
}

}  // namespace

void write_whole_file(const std::string& path, std::string_view text) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::exists(status) && !fs::is_regular_file(status)) refuse_target(path, "is no regular file");
  // What a link stands for is replaced, not the link.
  const fs::path target = fs::exists(status) ? fs::canonical(path, error) : fs::path(path);
  fs::path part = target;
  part += "." + std::to_string(std::random_device()()) + ".part";

  std::ofstream out(part, std::ios::binary);
  if (!out.is_open()) refuse_target(path, "cannot be made");
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  const bool written = out.good();
  if (written) fs::rename(part, target, error);
  if (written && !error) return;
  fs::remove(part, error);
  refuse_target(path, "cannot be written");
}

}  // namespace Korvane::Tool
