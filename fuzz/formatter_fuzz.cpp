// Patterns, narrow and wide: every token is replaced, nothing else changes.

#include "core/exception.h"
#include "input.h"
#include "timecode/timecode.h"

namespace {

void replace_all(std::string& text, const std::string& token, const std::string& value) {
  for (std::size_t at = 0; (at = text.find(token, at)) != std::string::npos; at += value.size())
    text.replace(at, token.size(), value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Korvane::Input input(data, size);
  const Korvane::Timecode timecode(30, 11, 22, 33, 14, input.take_bool(), false);
  const std::string pattern = input.rest().c_str();

  std::string expected = pattern;
  replace_all(expected, "%HH", "11");
  replace_all(expected, "%MM", "22");
  replace_all(expected, "%SS", "33");
  replace_all(expected, "%FF", "14");
  Korvane::expect(expected == timecode.formatter(pattern.c_str()));

  const std::wstring wide(pattern.begin(), pattern.end());
  Korvane::expect(timecode.formatter(wide.c_str()) != nullptr);
  return 0;
}
