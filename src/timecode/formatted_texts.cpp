#include "timecode/formatted_texts.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "timecode/label_text.h"
#include "timecode/text_conversion.h"

namespace Korvane {
namespace {

// Out of the way of most calls, whose pattern is short and ASCII.
[[gnu::cold, gnu::noinline]] void make_room(FormattedText& text, std::size_t size) {
  text.narrow.resize(std::max(text.narrow.size(), size));
  text.wide.resize(std::max(text.wide.size(), size));
}

[[gnu::cold, gnu::noinline]] void convert_to_wide(FormattedText& text, std::size_t size) {
  text.wide = utf8_to_wide({text.narrow.data(), size});
}

}  // namespace

FormattedTexts::~FormattedTexts() = default;  // GCOVR_EXCL_BR_LINE: the compiler's own loop

const FormattedText& FormattedTexts::write(const TimecodeState& state, const char* pattern) {
  FormattedText& text = *next_;
  const std::size_t size = std::strlen(pattern);
  if (std::min(text.narrow.size(), text.wide.size()) < size) make_room(text, size);
  const ExpandedPattern expanded =
      expand_pattern(state, pattern, text.narrow.data(), text.wide.data());
  if (!expanded.wide_is_right()) convert_to_wide(text, expanded.size);
  next_ = &text == texts_ ? texts_ + 1 : texts_;
  return text;
}

}  // namespace Korvane
