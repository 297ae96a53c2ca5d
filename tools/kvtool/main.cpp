#include <ext/stdio_filebuf.h>

#include <iostream>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

#include "run.h"

namespace {

bool prepare_and_ask_terminal() {
#ifdef _WIN32
  _setmode(_fileno(stdin), _O_BINARY);
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // Standard input in blocks as large as what a pipe holds; std::cin takes an eighth of that at
  // once.
  constexpr std::size_t kBlock = 65536;
  __gnu_cxx::stdio_filebuf<char> blocks(0, std::ios::in | std::ios::binary, kBlock);
  std::istream in(&blocks);
  Korvane::Tool::Streams streams{in, std::cout, std::cerr, prepare_and_ask_terminal()};
  return Korvane::Tool::run({argv + 1, argv + argc}, streams);
}
