// The private record of a timecode: its numbers, and the texts that it last handed out.

#ifndef KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H
#define KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H

#include <memory>
#include <new>

#include "timecode/formatted_texts.h"
#include "timecode/label_text.h"
#include "timecode/timecode_state.h"

namespace Korvane {

struct TimecodePrivate : TimecodeState {
  std::unique_ptr<FormattedTexts> formatted;  // null until the first call
  LabelText text;                             // nothing until the first call

  explicit TimecodePrivate(const TimecodeState& state) : TimecodeState(state) {}

  // A copy does not carry the texts, nor the days, which its first step derives.
  TimecodePrivate(const TimecodePrivate& other) : TimecodeState(other) {
    days = 0;
    stepping = Stepping::Derived;
  }
  TimecodePrivate& operator=(const TimecodePrivate&) = delete;
  ~TimecodePrivate() = default;

  // Most have no formatted texts, and then nothing is left but to give the memory back.
  static void operator delete(TimecodePrivate* record, std::destroying_delete_t) {
    if (record->formatted != nullptr) return delete_with_texts(record);
    ::operator delete(record);
  }

 private:
  [[gnu::cold, gnu::noinline]] static void delete_with_texts(TimecodePrivate* record) {
    record->~TimecodePrivate();
    ::operator delete(record);
  }
};

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_TIMECODE_PRIVATE_H
