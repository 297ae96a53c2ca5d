#include <ext/stdio_filebuf.h>

#include <cstdlib>
#include <iostream>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

#include "run.h"

namespace {

struct Terminals {
  bool out = false;
  bool err = false;
};

// Those that show escape sequences, which a console of Windows has to be asked for.
#ifdef _WIN32
bool shows_escapes(DWORD which) {
  const HANDLE console = GetStdHandle(which);
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) != 0 &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

Terminals terminals_in_color() {
  return {shows_escapes(STD_OUTPUT_HANDLE), shows_escapes(STD_ERROR_HANDLE)};
}

bool prepare_and_ask_terminal() {
  _setmode(_fileno(stdin), _O_BINARY);
  return _isatty(_fileno(stderr)) != 0;
}
#else
Terminals terminals_in_color() { return {isatty(STDOUT_FILENO) != 0, isatty(STDERR_FILENO) != 0}; }

bool prepare_and_ask_terminal() { return isatty(STDERR_FILENO) != 0; }
#endif

// No other thread runs yet.
std::string_view variable(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? "" : value;
}

bool wants_color() { return variable("NO_COLOR").empty() && variable("TERM") != "dumb"; }

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // Standard input in blocks as large as what a pipe holds; std::cin takes an eighth of that at
  // once.
  constexpr std::size_t kBlock = 65536;
  __gnu_cxx::stdio_filebuf<char> blocks(0, std::ios::in | std::ios::binary, kBlock);
  std::istream in(&blocks);
  Korvane::Tool::Streams streams{in, std::cout, std::cerr, prepare_and_ask_terminal()};
  if (wants_color()) {
    const Terminals terminals = terminals_in_color();
    streams.out_ink = Korvane::Tool::Ink(terminals.out);
    streams.err_ink = Korvane::Tool::Ink(terminals.err);
  }
  return Korvane::Tool::run({argv + 1, argv + argc}, streams);
}
