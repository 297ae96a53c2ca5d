// What docstrings.py found in the exported headers.

#ifndef KV_PYTHON_DOCSTRINGS_H
#define KV_PYTHON_DOCSTRINGS_H

#include <span>
#include <string_view>

namespace Korvane::Python {

struct Docstring {
  std::string_view key;  // "Timecode.add", "Timecode.__init__", "Timecode.__doc__"
  const char* text;      // empty where the declaration has no comment
};

struct Enumerator {
  std::string_view enumeration;  // "VideoFormats", "Timecode.DropFrameIndication"
  const char* name;
  unsigned int value;
  const char* text;
};

// Sorted by key.
std::span<const Docstring> docstrings();

// By enumeration, in the order of the header.
std::span<const Enumerator> enumerators();

}  // namespace Korvane::Python
#endif  // KV_PYTHON_DOCSTRINGS_H
