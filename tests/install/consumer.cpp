// A stranger's program: only the exported headers, C++11.

#include <cstdio>
#include <cstring>

#include "kv_engine.h"

int main() {
  Korvane::Timecode timecode(30, 1799LL, true);
  ++timecode;
  const char* const label =
      timecode.c_str(Korvane::Timecode::DropFrameSemicolon, Korvane::Timecode::FieldMarkOmitted);
  std::puts(label);
  bool refused = false;
  try {
    Korvane::Timecode(48, false);
  } catch (const Korvane::Exception& exception) {
    refused = exception.code() == Korvane::NotSupported;
  }
  return refused && std::strcmp(label, "00:01:00;02") == 0 ? 0 : 1;
}
