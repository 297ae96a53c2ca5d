// What the library and others do with labels and words that do not exist, and without memory, as a
// table; ends with 1 unless nothing in the library's own column went wrong.
//
// Labels and words are those of 30 drop-frame. Hour 24 is left out: the library takes it for hour 0
// of the next day. Words are drawn at random, the same in each run.

#include "oracles/beside_others.h"

#include <gst/gst.h>
#include <gst/video/gstvideotimecode.h>
#include <ltc.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

extern "C" {
#include <libavutil/timecode.h>
}

#include "core/exception.h"
#include "support/naive_timecode.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

constexpr Naive::Counting kDropFrame = Naive::kCountings[3];

bool exists(const Naive::Label& label) {
  return label.hours <= 23 && label.minutes <= 59 && label.seconds <= 59 && label.frame <= 29 &&
         !Naive::is_dropped(kDropFrame, label);
}

std::string text_of(const Naive::Label& label) {
  return Naive::text_of(kDropFrame, label, Timecode::DropFrameSemicolon,
                        Timecode::FieldMarkDotSuffix);
}

// ---- Reading a label and printing it again; empty when it is refused

std::string ours_again(const std::string& text) {
  try {
    return TimecodeUtils::load_timecode_from_string(30, text.c_str(), Timecode::DropFrameSemicolon,
                                                    Timecode::FieldMarkDotSuffix)
        .c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
  } catch (const Exception&) {
    return "";
  }
}

std::string libavutil_again(const std::string& text) {
  AVTimecode timecode = {};
  char again[AV_TIMECODE_STR_SIZE];
  if (av_timecode_init_from_string(&timecode, kRealRate, text.c_str(), nullptr) != 0) return "";
  return av_timecode_make_string(&timecode, again, 0);
}

std::string gstreamer_again(const std::string& text) {
  GstVideoTimeCode* const timecode = gst_video_time_code_new_from_string(text.c_str());
  if (timecode == nullptr) return "";
  timecode->config.fps_n = kRealRate.num;
  timecode->config.fps_d = kRealRate.den;
  std::string again;
  if (gst_video_time_code_is_valid(timecode) != FALSE) {
    char* const printed = gst_video_time_code_to_string(timecode);
    again = printed;
    g_free(printed);
  }
  gst_video_time_code_free(timecode);
  return again;
}

// ---- A word of 32 bits, as text; empty when it is refused

std::string ours_of_word(unsigned int word) {
  try {
    return Timecode(30, word).c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
  } catch (const Exception&) {
    return "";
  }
}

std::string libavutil_of_word(unsigned int word) {
  char text[AV_TIMECODE_STR_SIZE];
  return av_timecode_make_smpte_tc_string2(text, {30, 1}, Naive::bytes_reversed(word), 0, 1);
}

// The digits of the word in the frame of libltc, which parts them by user bits.
std::string libltc_of_word(unsigned int word) {
  LTCFrame frame = {};
  frame.frame_units = word & 0xF;
  frame.frame_tens = word >> 4 & 3;
  frame.dfbit = word >> 6 & 1;
  frame.secs_units = word >> 8 & 0xF;
  frame.secs_tens = word >> 12 & 7;
  frame.mins_units = word >> 16 & 0xF;
  frame.mins_tens = word >> 20 & 7;
  frame.hours_units = word >> 24 & 0xF;
  frame.hours_tens = word >> 28 & 3;
  SMPTETimecode read = {};
  ltc_frame_to_time(&read, &frame, 0);
  return text_of({read.hours, read.mins, read.secs, read.frame});
}

// ---- The table

constexpr const char* kNames[kLibraryCount] = {"kv_Engine_r", "libavutil", "GStreamer", "libltc"};

void print_row(const char* what, const Counts& counts) {
  std::printf("%-55s", what);
  for (const Count& count : counts) {
    char text[32] = "-";
    if (count.of != 0) std::snprintf(text, sizeof text, "%ld of %ld", count.wrong, count.of);
    std::printf("%20s", text);
  }
  std::printf("\n");
}

using Again = std::string (*)(const std::string& text);
constexpr Again kAgain[kLibraryCount] = {ours_again, libavutil_again, gstreamer_again, nullptr};

struct ReadingCounts {
  Counts accepted;  // though there is no such label
  Counts lost;      // refused, or printed otherwise, though there is

  void add(std::size_t library, const Naive::Label& label, const std::string& shown) {
    if (exists(label))
      lost[library].add(shown != text_of(label));
    else
      accepted[library].add(!shown.empty());
  }
};

ReadingCounts read_labels() {
  ReadingCounts counts = {};
  const auto count_label = [&](const Naive::Label& label) {
    for (std::size_t library = 0; library < kLibraryCount; ++library)
      if (kAgain[library] != nullptr) counts.add(library, label, kAgain[library](text_of(label)));
  };
  for (int hours = 0; hours < 30; ++hours)
    for (int minutes = 0; hours != 24 && minutes < 70; ++minutes)
      for (const int seconds : {0, 1, 30, 58, 59, 60, 69})
        for (const int frame : {0, 1, 2, 29, 30, 39}) count_label({hours, minutes, seconds, frame});
  return counts;
}

using OfWord = std::string (*)(unsigned int word);
constexpr OfWord kOfWord[kLibraryCount] = {ours_of_word, libavutil_of_word, nullptr,
                                           libltc_of_word};

// A digit above 9 counts as 10 to 15 here and in libltc, as 0 in libavutil: no reading is the right
// one.
bool is_decimal(unsigned int word) {
  for (const int bit : {0, 8, 16, 24})
    if ((word >> bit & 0xF) > 9) return false;
  return true;
}

ReadingCounts read_words() {
  constexpr int kWords = 1 << 20;
  ReadingCounts counts = {};
  std::mt19937 random;
  for (int i = 0; i < kWords; ++i) {
    const unsigned int word = static_cast<unsigned int>(random()) | 0x40U;  // drop-frame
    const Naive::Label label = Naive::label_of_word(word);
    if (label.hours == 24 || !is_decimal(word)) continue;
    for (std::size_t library = 0; library < kLibraryCount; ++library)
      if (kOfWord[library] != nullptr) counts.add(library, label, kOfWord[library](word));
  }
  return counts;
}

int run() {
  std::printf("%-55s", "");
  for (const char* name : kNames) std::printf("%20s", name);
  std::printf("\n");
  const ReadingCounts labels = read_labels();
  const ReadingCounts words = read_words();
  const MemoryCounts memory = run_without_memory();
  print_row("Labels that do not exist: accepted", labels.accepted);
  print_row("Labels that exist: refused, or printed otherwise", labels.lost);
  print_row("Words that hold no label: shown as one", words.accepted);
  print_row("Words that hold a label: refused, or shown otherwise", words.lost);
  print_row("Runs with an allocation failing: the process ended", memory.ended);
  print_row("Runs with an allocation failing: memory leaked", memory.leaked);
  for (const Counts& counts :
       {labels.accepted, labels.lost, words.accepted, words.lost, memory.ended, memory.leaked})
    if (counts[kOurs].wrong != 0 || counts[kOurs].of == 0) return 1;
  return 0;
}

}  // namespace
}  // namespace Korvane

int main(int argc, char** argv) {
  setenv("G_SLICE", "always-malloc", 1);  // as GLib does of itself from 2.76 on
  gst_init(&argc, &argv);
  return Korvane::run();
}
