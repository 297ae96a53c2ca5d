#include "reading.h"

#include <charconv>
#include <string_view>

#include "characters.h"
#include "core/exception.h"
#include "printable.h"
#include "timecode/timecode_utils.h"

namespace Korvane::Tool {
namespace {

// Takes one or two digits off the front.
bool take_field(std::string_view& text) {
  std::size_t digits = 0;
  while (digits < text.size() && is_digit(text[digits])) ++digits;
  text.remove_prefix(digits);
  return digits == 1 || digits == 2;
}

bool take_one_of(std::string_view& text, std::string_view characters) {
  if (text.empty() || characters.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

struct LabelForm {
  bool valid = false;
  std::size_t separator = 0;  // where the character before the frames stands
  bool has_field_mark = false;
};

// The library's strict reader takes any separator and lets text follow; a typing error must not
// pass for a timecode.
LabelForm form_of(const std::string& text) {
  LabelForm form;
  std::string_view rest = text;
  if (!take_field(rest) || !take_one_of(rest, ":") || !take_field(rest) ||
      !take_one_of(rest, ":") || !take_field(rest))
    return form;
  form.separator = text.size() - rest.size();
  if (!take_one_of(rest, ":;") || !take_field(rest)) return form;
  form.has_field_mark = take_one_of(rest, ".");
  form.valid = (!form.has_field_mark || take_one_of(rest, "01")) && rest.empty();
  return form;
}

constexpr bool counts_pairs(unsigned short rate) { return rate == 50 || rate == 60; }

std::string expected_label(const Rate& rate) {
  const std::string form = rate.drop_frame ? "HH:MM:SS;FF" : "HH:MM:SS:FF";
  std::string text = form + " with frames 00 to " + std::to_string(rate.nominal - 1);
  if (counts_pairs(rate.nominal))
    text += " or " + form + ".f with frames 00 to " + std::to_string(rate.nominal / 2 - 1);
  if (rate.drop_frame)
    text += std::string(", the first ") + (counts_pairs(rate.nominal) ? "four" : "two") +
            " frame numbers of a minute only where that is divisible by 10";
  return text;
}

}  // namespace

std::optional<Timecode> read_label(const std::string& text, const Rate& rate) {
  const LabelForm form = form_of(text);
  if (!form.valid) return std::nullopt;
  std::string label = text;
  if (rate.drop_frame) label[form.separator] = ';';
  const auto field_mark =
      form.has_field_mark ? Timecode::FieldMarkDotSuffix : Timecode::FieldMarkFullRateFrames;
  try {
    return TimecodeUtils::load_timecode_from_string(rate.nominal, label.c_str(),
                                                    Timecode::DropFrameSemicolon, field_mark);
  } catch (const Exception&) {
    return std::nullopt;
  }
}

std::string no_label(const std::string& text, const Rate& rate) {
  const bool can_drop = rate.nominal == 30 || rate.nominal == 60;
  const bool drop_frame = rate.drop_frame || (can_drop && text.find(';') != std::string::npos);
  const Rate counted = counting(rate, drop_frame);
  return no_timecode(text, counted, expected_label(counted));
}

std::optional<Timecode> read_word(const std::string& text, const Rate& rate, WordSize size,
                                  bool ignore_field_mark) {
  std::string_view digits = text;
  if (digits.starts_with("0x") || digits.starts_with("0X")) digits.remove_prefix(2);
  if (digits.empty() || digits.size() > (size == WordSize::Bits32 ? 8 : 16)) return std::nullopt;
  unsigned long long word = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, word, 16);
  if (error != std::errc() || stop != end) return std::nullopt;
  try {
    if (size == WordSize::Bits32) return Timecode(rate.nominal, static_cast<unsigned int>(word));
    return TimecodeUtils::load_timecode_from_full_st12m(rate.nominal, word, ignore_field_mark);
  } catch (const Exception&) {
    return std::nullopt;
  }
}

std::string no_word(const std::string& text, const Rate& rate, WordSize size) {
  return no_timecode(text, rate,
                     size == WordSize::Bits32
                         ? "a 32-bit word of up to 8 hexadecimal digits, its fields in range"
                         : "a 64-bit word of up to 16 hexadecimal digits, its fields in range");
}

std::string no_timecode(const std::string& value, const Rate& rate, const std::string& expected) {
  return in_quotes(value) + " is no timecode at rate " + describe(rate) + " (expected " + expected +
         ')';
}

}  // namespace Korvane::Tool
