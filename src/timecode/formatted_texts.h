// What formatter() hands out: a pattern with the numbers of a timecode in place of its tokens.

#ifndef KV_ENGINE_SRC_TIMECODE_FORMATTED_TEXTS_H
#define KV_ENGINE_SRC_TIMECODE_FORMATTED_TEXTS_H

#include <string>

#include "timecode/timecode_state.h"

namespace Korvane {

// Room that only grows. The text in it ends with the first zero.
struct FormattedText {
  std::wstring wide;
  std::string narrow;
};

// The last text, and room for the next: the pattern of a call may be the text of the one before,
// and a call that fails leaves that text.
class FormattedTexts {
 public:
  FormattedTexts() = default;
  FormattedTexts(const FormattedTexts&) = delete;
  FormattedTexts& operator=(const FormattedTexts&) = delete;
  ~FormattedTexts();

  // Valid until the next call. Raises what utf8_to_wide() raises.
  const FormattedText& write(const TimecodeState& state, const char* pattern);

 private:
  FormattedText texts_[2];
  FormattedText* next_ = texts_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_FORMATTED_TEXTS_H
