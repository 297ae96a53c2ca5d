#include "input.h"

#include <filesystem>
#include <system_error>

#include "failure.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

[[noreturn]] void refuse(const std::string& path, const char* reason) {
  throw InputError(printable_name(path) + ": " + reason + " (expected a readable file)");
}

}  // namespace

Input::Input(const std::string& path, std::istream& standard_input)
    : path_(path), name_(path == "-" ? "standard input" : path), standard_input_(standard_input) {
  if (path == "-") return;
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) refuse(path, "no such file");
  if (std::filesystem::is_directory(status)) refuse(path, "is a folder");
  file_.open(path, std::ios::binary);
  if (!file_.is_open()) refuse(path, "cannot be opened");
}

std::string Input::read_all(std::size_t most, const std::string& what) {
  std::string text;
  char block[16384];
  while (stream().read(block, sizeof block) || stream().gcount() > 0) {
    text.append(block, static_cast<std::size_t>(stream().gcount()));
    if (text.size() > most)
      throw InputError(printable_name(name_) + ": too long (expected " + what + " of at most " +
                       std::to_string(most) + " bytes)");
  }
  return text;
}

std::optional<unsigned long long> Input::size() const {
  if (is_standard_input()) return std::nullopt;
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path_, error);
  if (error) return std::nullopt;
  return size;
}

}  // namespace Korvane::Tool
