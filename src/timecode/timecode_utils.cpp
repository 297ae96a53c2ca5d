#include "timecode/timecode_utils.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/replace.hpp>
#include <boost/algorithm/string/split.hpp>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/exception.h"
#include "foundation/log_line.h"
#include "foundation/required_text.h"
#include "foundation/wrapping.h"
#include "timecode/counting.h"
#include "timecode/frame_rate.h"
#include "timecode/label_scanner.h"
#include "timecode/label_text.h"
#include "timecode/st12_word.h"
#include "timecode/text_conversion.h"
#include "timecode/timecode_state.h"

namespace Korvane::TimecodeUtils {
namespace {

constexpr unsigned char cut_to_8_bits(long long value) { return static_cast<unsigned char>(value); }

// As the C library converts: 0 when `text` does not begin with a number.
unsigned char decimal_value(const std::string& text) {
  const char* next = text.c_str();
  long long value = 0;
  scan_number(next, value);
  return cut_to_8_bits(value);
}

// The frame count of a label whose minutes and seconds carry and whose hours are taken modulo 24.
long long carried_frame_count(unsigned short rate, unsigned long long hours,
                              unsigned long long minutes, unsigned long long seconds,
                              bool drop_frame) {
  const unsigned long long all_minutes = minutes + seconds / 60;
  const unsigned long long all_hours = hours + all_minutes / 60;
  const Label label = {static_cast<unsigned char>(all_hours % 24),
                       static_cast<unsigned char>(all_minutes % 60),
                       static_cast<unsigned char>(seconds % 60)};
  return count_of(label, rate, frame_rate_drop_frame_filter(rate, drop_frame));
}

Timecode lenient_timecode(const std::string& given, unsigned short rate, bool drop_frame) {
  if (given.empty() || given == "--:--:--:--") return Timecode(rate, 0, 0, 0, 0, drop_frame, false);
  const std::string text = boost::algorithm::replace_all_copy(given, "-", "0");
  std::vector<std::string> tokens;
  boost::algorithm::split(tokens, text, boost::algorithm::is_any_of(";,:"));
  return timecode_fixer(rate, decimal_value(tokens.at(0)), decimal_value(tokens.at(1)),
                        decimal_value(tokens.at(2)), decimal_value(tokens.at(3)), drop_frame,
                        false);
}

}  // namespace

bool frame_rate_drop_frame_filter(unsigned short rate, bool drop) {
  return drop && can_drop_frames(rate);
}

Timecode load_timecode_from_string(unsigned short rate, const char* text,
                                   Timecode::DropFrameIndication drop_frame,
                                   Timecode::FieldMarkIndication field_mark) {
  exception_enforce(drop_frame == Timecode::DropFrameSemicolon, InvalidArgument,
                    "Timecode mapping currently only supports semicolon indication", true);

  const bool pairs = rate == 50 || rate == 60;  // 48 is not read as a double rate
  const ScannedLabel label = scan_label(text != nullptr ? text : "");
  exception_enforce(label.items == (pairs && field_mark == Timecode::FieldMarkDotSuffix ? 6 : 5),
                    InvalidArgument, "Received invalid timecode", true);

  const bool full_rate = pairs && field_mark == Timecode::FieldMarkFullRateFrames;
  const auto number = static_cast<int>(label.frames);
  const int frames = full_rate ? number / 2 : number;
  const bool second = (full_rate ? number % 2 : static_cast<int>(label.field)) != 0;
  return Timecode(rate, cut_to_8_bits(label.hours), cut_to_8_bits(label.minutes),
                  cut_to_8_bits(label.seconds), cut_to_8_bits(frames), label.separator == ';',
                  second);
}

Timecode load_timecode_from_string(unsigned short rate, const wchar_t* text,
                                   Timecode::DropFrameIndication drop_frame,
                                   Timecode::FieldMarkIndication field_mark) {
  return load_timecode_from_string(rate, wide_to_utf8(text != nullptr ? text : L"").c_str(),
                                   drop_frame, field_mark);
}

Timecode string_to_timecode(const char* text, unsigned short rate, bool drop_frame) {
  try {
    return lenient_timecode(required_text(text), rate, drop_frame);
  } catch (...) {
    // Raises: every failure of this function is NotSupported.
    return Timecode(0, 0LL, false);  // GCOVR_EXCL_BR_LINE: the call does not return
  }
}

Timecode timecode_fixer(unsigned short rate, unsigned long long hours, unsigned long long minutes,
                        unsigned long long seconds, unsigned long long frames, bool drop_frame,
                        bool frames_are_full_rate) {
  const long long start = carried_frame_count(rate, hours, minutes, seconds, drop_frame);
  const long long factor = frames_are_full_rate || rate <= 30 ? 1 : 2;
  const long long more = wrapping_multiply(static_cast<long long>(frames), factor);
  return Timecode(rate, wrapping_add(start, more), drop_frame);
}

void add_minutes(Timecode& tc, int minutes) {
  const auto magnitude = static_cast<unsigned long long>(std::llabs(minutes));
  const long long frames = carried_frame_count(tc.frame_rate(), 0, magnitude, 0, tc.drop_frame());
  if (minutes != 0) tc.add(minutes < 0 ? -frames : frames);
}

void log_timecode_difference(const char* label, const Timecode& previous, const Timecode& current) {
  TimecodeState expected(previous.frame_rate(), previous.drop_frame(),
                         wrapping_add(previous.frame_count(), 1));
  expected.normalize(true);
  if (expected.absolute_frame_count() == current.absolute_frame_count()) return;

  LabelText expected_text;
  write_label(expected, Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix, expected_text);
  LogLine(LogLine::to_logger) << label
                              << ": Found timecode difference, expected: " << expected_text.narrow
                              << " actual: "
                              << current.c_str(Timecode::DropFrameSemicolon,
                                               Timecode::FieldMarkDotSuffix);
}

Timecode load_timecode_from_full_st12m(unsigned short rate, unsigned long long word,
                                       bool ignore_field_mark) {
  const Label label = label_of_word(kSt12Word64, rate, word);
  return Timecode(rate, label.hours, label.minutes, label.seconds, label.frames,
                  bit(word, kSt12Word64.drop_frame_bit), label.field_mark && !ignore_field_mark);
}

}  // namespace Korvane::TimecodeUtils
