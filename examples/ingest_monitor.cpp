// Watches the ST 12 words that a capture card delivers with its frames, and logs each jump.

#include <cstdio>

#include "kv_engine.h"

namespace {

void print_line(void* /*context*/, const char* text) { std::printf("log: %s\n", text); }

}  // namespace

int main() {
  // Where the log of the whole process goes.
  Korvane::Logging::Logger::instance().set_sink(print_line, nullptr);

  // 29.97 frames per second, drop-frame (bit 6): up to the full minute, a jump, an unreadable word.
  const unsigned int words[] = {0x00005968, 0x00005969, 0x00010042,
                                0x00010043, 0x00010050, 0x00006000};

  Korvane::Timecode previous(30, words[0]);
  for (const unsigned int word : words) {
    try {
      const Korvane::Timecode current(30, word);
      std::printf("0x%08X %s\n", word,
                  current.c_str(Korvane::Timecode::DropFrameSemicolon,
                                Korvane::Timecode::FieldMarkOmitted));
      if (current.frame_count() != previous.frame_count())
        Korvane::TimecodeUtils::log_timecode_difference("input 1", previous, current);
      previous = current;
    } catch (const Korvane::Exception& exception) {
      std::printf("0x%08X is no timecode: %s\n", word, exception.message());
    }
  }
}
