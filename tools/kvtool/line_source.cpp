#include "line_source.h"

#include <utility>

#include "failure.h"
#include "printable.h"
#include "reading.h"

namespace Korvane::Tool {
namespace {

// What is longer is no timecode, and is not kept in full.
constexpr std::size_t kLongestLine = 256;

}  // namespace

LineSource::LineSource(std::istream& in, std::string name, const Rate& rate, LineForm form,
                       bool read_field_mark)
    : in_(in),
      name_(std::move(name)),
      rate_(rate),
      form_(form),
      read_field_mark_(read_field_mark) {}

// Without the white space at its end. False at the end of the input.
bool LineSource::read_line() {
  constexpr int kEnd = std::char_traits<char>::eof();
  std::streambuf& bytes = *in_.rdbuf();
  int next = bytes.sbumpc();
  if (next == kEnd) return false;
  ++line_number_;
  line_.clear();
  for (; next != kEnd; next = bytes.sbumpc()) {
    ++bytes_;
    if (next == '\n') break;
    const char c = std::char_traits<char>::to_char_type(next);
    if (line_.size() < kLongestLine)
      line_ += c;
    else if (c != ' ' && c != '\r')
      line_.back() = c;  // so that it does not pass for white space at the end
  }
  line_.erase(line_.find_last_not_of(" \t\r") + 1);
  return true;
}

std::optional<Timecode> LineSource::timecode_of_line() const {
  switch (form_) {
    case LineForm::Label:
      return read_label(line_, rate_);
    case LineForm::Word32:
      return read_word(line_, rate_, WordSize::Bits32, false);
    case LineForm::Word64:
      return read_word(line_, rate_, WordSize::Bits64, !read_field_mark_);
  }
  return std::nullopt;
}

std::string LineSource::refusal() const {
  switch (form_) {
    case LineForm::Label:
      return no_label(line_, rate_);
    case LineForm::Word32:
      return no_word(line_, rate_, WordSize::Bits32);
    case LineForm::Word64:
      return no_word(line_, rate_, WordSize::Bits64);
  }
  return {};
}

std::optional<Entry> LineSource::next() {
  do {
    if (!read_line()) return std::nullopt;
  } while (line_.empty());
  const std::optional<Timecode> timecode = timecode_of_line();
  if (!timecode)
    throw InputError(position_text(printable_name(name_), unit(), line_number_) + ": " + refusal());
  return Entry{*timecode, line_number_};
}

}  // namespace Korvane::Tool
