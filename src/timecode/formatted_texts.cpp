#include "timecode/formatted_texts.h"

#include <algorithm>
#include <cstddef>

#include "timecode/label_text.h"
#include "timecode/text_conversion.h"

namespace Korvane {
namespace {

// Out of the way of most calls, whose pattern is short and ASCII.
[[gnu::cold]] void make_room(FormattedText& text, std::size_t size) {
  text.narrow.resize(std::max(text.narrow.size(), size));
  text.wide.resize(std::max(text.wide.size(), size));
}

[[gnu::cold]] void convert_to_wide(FormattedText& text, std::size_t size) {
  text.wide = utf8_to_wide({text.narrow.data(), size});
}

}  // namespace

FormattedTexts::~FormattedTexts() = default;  // GCOVR_EXCL_BR_LINE: the compiler's own loop

const FormattedText& FormattedTexts::write(const TimecodeState& state, std::string_view pattern) {
  FormattedText& text = *next_;
  if (std::min(text.narrow.size(), text.wide.size()) < pattern.size())
    make_room(text, pattern.size());
  const ExpandedPattern expanded =
      expand_pattern(state, pattern, text.narrow.data(), text.wide.data());
  if (!expanded.wide_is_right()) convert_to_wide(text, expanded.size);
  next_ = &text == texts_ ? texts_ + 1 : texts_;
  return text;
}

}  // namespace Korvane
