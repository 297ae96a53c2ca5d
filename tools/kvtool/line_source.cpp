#include "line_source.h"

#include <utility>

#include "failure.h"
#include "printable.h"
#include "reading.h"

namespace Korvane::Tool {

LineSource::LineSource(std::istream& in, std::string name, const Rate& rate, LineForm form,
                       bool read_field_mark)
    : reader_(in),
      name_(std::move(name)),
      rate_(rate),
      form_(form),
      read_field_mark_(read_field_mark) {}

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
    if (!reader_.read_line(whole_line_)) return std::nullopt;
    ++line_number_;
    line_.assign(whole_line_, 0, whole_line_.find_last_not_of(" \t\r\n") + 1);
  } while (line_.empty());
  const std::optional<Timecode> timecode = timecode_of_line();
  if (!timecode)
    throw InputError(position_text(printable_name(name_), unit(), line_number_) + ": " + refusal());
  return Entry{*timecode, line_number_};
}

unsigned long long LineSource::take_following(Timecode& last) {
  if (form_ != LineForm::Label) return 0;
  const FollowingLines::Found found = following_.find(reader_.ahead(), whole_line_, last);
  reader_.skip(found.bytes);
  line_number_ += found.lines;
  return found.lines;
}

}  // namespace Korvane::Tool
