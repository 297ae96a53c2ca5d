// Reads UTF-8 code point by code point, whatever the bytes.

#ifndef KV_ENGINE_SRC_TIMECODE_UTF8_READER_H
#define KV_ENGINE_SRC_TIMECODE_UTF8_READER_H

#include <string_view>

namespace Korvane {

struct Utf8CodePoint {
  char32_t value;  // U+FFFD for an ill-formed part
  int size;        // bytes read: the whole code point, or the whole maximal ill-formed part
  bool well_formed;
};

// The code point at the start of `text`, which is not empty.
Utf8CodePoint read_utf8(std::string_view text);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_UTF8_READER_H
