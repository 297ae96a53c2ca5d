// Texts that callers hand in and that may not be null.

#ifndef KV_ENGINE_FOUNDATION_REQUIRED_TEXT_H
#define KV_ENGINE_FOUNDATION_REQUIRED_TEXT_H

#include "core/exception.h"

namespace Korvane {

// `text`, which is not null.
template <typename Character>
const Character* required_text(const Character* text) {
  if (text == nullptr) exception_throw(InvalidArgument, "Text must not be null", true);
  return text;
}

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_REQUIRED_TEXT_H
