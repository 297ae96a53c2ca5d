// A program that uses the installed library and its companion headers.

#include <iostream>

#include "ext/print.h"

int main() {
  Korvane::Timecode timecode(30, 0, 59, 59, 29, true, false);
  ++timecode;
  std::cout << timecode << '\n';
}
