#include "expression.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "characters.h"
#include "core/exception.h"
#include "failure.h"
#include "label.h"
#include "printable.h"
#include "reading.h"
#include "timecode/timecode_utils.h"

namespace Korvane::Tool {
namespace {

bool is_number(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(), is_digit);
}

bool is_clock(std::string_view text) {
  return std::count(text.begin(), text.end(), ':') == 2 &&
         text.find_first_not_of("0123456789:.") == std::string_view::npos;
}

Timecode read_count(const std::string& text, const Rate& rate) {
  const std::string_view digits = std::string_view(text).substr(text.front() == '+' ? 1 : 0);
  long long count = 0;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
  if (error != std::errc())
    throw InputError(in_quotes(text) + " is no frame count (expected a number of 64 bits)");
  return Timecode(rate.nominal, count, rate.drop_frame);
}

Timecode read_hexadecimal(const std::string& text, const Rate& rate) {
  const WordSize size = text.size() <= 10 ? WordSize::Bits32 : WordSize::Bits64;
  const std::optional<Timecode> timecode = read_word(text, rate, size, true);
  if (!timecode) throw InputError(no_word(text, rate, size));
  return *timecode;
}

// Reads a number of exactly `digits` digits that stands before `end` (or, if that is 0, at the end)
// and is at most `limit`.
std::optional<unsigned short> take_number(std::string_view& text, std::size_t digits, char end,
                                          unsigned short limit) {
  unsigned short value = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || stop != text.data() + digits || value > limit) return std::nullopt;
  text.remove_prefix(digits);
  if (end == 0 ? !text.empty() : !text.starts_with(end)) return std::nullopt;
  if (end != 0) text.remove_prefix(1);
  return value;
}

std::optional<TimeData> parse_clock(std::string_view text) {
  const bool has_milliseconds = text.find('.') != std::string_view::npos;
  const auto hour = take_number(text, 2, ':', 23);
  const auto minute = hour ? take_number(text, 2, ':', 59) : std::nullopt;
  const auto second =
      minute ? take_number(text, 2, has_milliseconds ? '.' : '\0', 59) : std::nullopt;
  if (!second) return std::nullopt;
  TimeData clock{};
  clock.hour = *hour;
  clock.minute = *minute;
  clock.second = *second;
  if (!has_milliseconds) return clock;
  const auto millisecond = take_number(text, 3, '\0', 999);
  if (!millisecond) return std::nullopt;
  clock.millisecond = *millisecond;
  return clock;
}

Timecode read_clock(const std::string& text, const Rate& rate) {
  const std::optional<TimeData> clock = parse_clock(text);
  if (!clock)
    throw InputError(in_quotes(text) +
                     " is no time of day (expected HH:MM:SS or HH:MM:SS.mmm from "
                     "00:00:00 to 23:59:59.999)");
  return Timecode(rate.nominal, *clock, rate.drop_frame, rate.edit);
}

Expression repair_label(const std::string& text, const Rate& rate) {
  const std::optional<Timecode> strict = read_label(text, rate);
  const bool drop_frame = rate.drop_frame || text.find(';') != std::string::npos;
  try {
    const Timecode lenient =
        TimecodeUtils::string_to_timecode(text.c_str(), rate.nominal, drop_frame);
    if (strict && strict->frame_count() == lenient.frame_count()) return {lenient, {}};
    return {lenient, in_quotes(text) + " is repaired to " + label(lenient) +
                         (strict ? "; read strictly it is " + label(*strict)
                                 : "; read strictly it is no timecode at rate " + describe(rate))};
  } catch (const Exception&) {
    throw InputError(in_quotes(text) + " cannot be repaired to a timecode at rate " +
                     describe(rate) + " (expected four fields parted by \":\", \";\" or \",\")");
  }
}

}  // namespace

Expression read_expression(const std::string& text, const Rate& rate, bool repair) {
  if (is_number(text)) return {read_count(text, rate), {}};
  if (text.starts_with("0x") || text.starts_with("0X")) return {read_hexadecimal(text, rate), {}};
  if (is_clock(text)) return {read_clock(text, rate), {}};
  if (repair) return repair_label(text, rate);
  const std::optional<Timecode> timecode = read_label(text, rate);
  if (!timecode) throw InputError(no_label(text, rate));
  return {*timecode, {}};
}

}  // namespace Korvane::Tool
