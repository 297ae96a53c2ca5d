#include "timecode_forms.h"

#include <nlohmann/json.hpp>
#include <set>
#include <string_view>

namespace Korvane::Tool {
namespace {

std::string hexadecimal(unsigned long long word, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, word >>= 4U)
    *digit = "0123456789ABCDEF"[word & 0xFU];
  return "0x" + text;
}

// A copy of a timecode has forgotten its days, so they are counted afresh. Hour 24 stands for the
// day itself.
int day_of(const Timecode& timecode) {
  if (timecode.hours() == 24) return 0;
  return Timecode(timecode.frame_rate(), timecode.frame_count(), timecode.drop_frame()).days();
}

class Lines {
 public:
  Lines(std::ostream& out, const std::string& indent) : out_(out), indent_(indent) {}

  template <typename Value>
  void write(std::string_view name, const Value& value) {
    constexpr std::size_t kColumn = 22;
    out_ << indent_ << name << std::string(kColumn - name.size(), ' ') << value << '\n';
  }

  void write_label(std::string_view name, const std::string& label) {
    if (written_.insert(label).second) write(name, label);
  }

 private:
  std::ostream& out_;
  const std::string& indent_;
  std::set<std::string> written_;
};

}  // namespace

TimecodeForms forms_of(const Timecode& timecode, const Rational32& edit_rate) {
  using enum Timecode::DropFrameIndication;
  using enum Timecode::FieldMarkIndication;
  TimecodeForms forms;
  forms.dot_suffix = timecode.c_str(DropFrameSemicolon, FieldMarkDotSuffix);
  forms.dot_suffix_colon = timecode.c_str(DropFrameColon, FieldMarkDotSuffix);
  forms.full_rate = timecode.c_str(DropFrameSemicolon, FieldMarkFullRateFrames);
  forms.full_rate_colon = timecode.c_str(DropFrameColon, FieldMarkFullRateFrames);
  forms.omitted = timecode.c_str(DropFrameSemicolon, FieldMarkOmitted);
  forms.omitted_colon = timecode.c_str(DropFrameColon, FieldMarkOmitted);
  forms.frame_rate = timecode.frame_rate();
  forms.edit_rate = edit_rate;
  forms.drop_frame = timecode.drop_frame();
  forms.frame_number = timecode.frames_ignore_field_mark();
  forms.field_mark = timecode.field_mark();
  forms.frame_count = timecode.frame_count();
  forms.absolute_frame_count = timecode.absolute_frame_count();
  forms.day = day_of(timecode);
  forms.milliseconds = timecode.to_ms(edit_rate);
  forms.word_32 = hexadecimal(timecode.to_12m(), 8);
  forms.word_64 = hexadecimal(timecode.to_12m_full(), 16);
  return forms;
}

void write_text(std::ostream& out, const TimecodeForms& forms, const std::string& indent) {
  Lines lines(out, indent);
  lines.write_label("label", forms.dot_suffix);
  lines.write_label("  with colon", forms.dot_suffix_colon);
  lines.write_label("  at full rate", forms.full_rate);
  lines.write_label("    with colon", forms.full_rate_colon);
  lines.write_label("  without field mark", forms.omitted);
  lines.write_label("    with colon", forms.omitted_colon);
  lines.write("rate", std::to_string(forms.frame_rate) +
                          (forms.drop_frame ? " drop-frame" : " non-drop-frame") + ", " +
                          describe(forms.edit_rate) + " frames per second");
  lines.write("frame in the second", forms.frame_number);
  lines.write("field mark", forms.field_mark ? 1 : 0);
  lines.write("frame count", forms.frame_count);
  lines.write("  within the day", forms.absolute_frame_count);
  lines.write("day", forms.day);
  lines.write("milliseconds", forms.milliseconds);
  lines.write("ST 12 word, 32 bits", forms.word_32);
  lines.write("ST 12 word, 64 bits", forms.word_64);
}

void write_json(std::ostream& out, const TimecodeForms& forms) {
  out << to_json(forms).dump(2) << '\n';
}

nlohmann::ordered_json to_json(const TimecodeForms& forms) {
  return {{"label", forms.dot_suffix},
          {"labels",
           {{"dot_suffix", forms.dot_suffix},
            {"dot_suffix_colon", forms.dot_suffix_colon},
            {"full_rate", forms.full_rate},
            {"full_rate_colon", forms.full_rate_colon},
            {"omitted", forms.omitted},
            {"omitted_colon", forms.omitted_colon}}},
          {"frame_rate", forms.frame_rate},
          {"edit_rate", describe(forms.edit_rate)},
          {"drop_frame", forms.drop_frame},
          {"frame_number", forms.frame_number},
          {"field_mark", forms.field_mark},
          {"frame_count", forms.frame_count},
          {"absolute_frame_count", forms.absolute_frame_count},
          {"day", forms.day},
          {"milliseconds", forms.milliseconds},
          {"st12_32", forms.word_32},
          {"st12_64", forms.word_64}};
}

}  // namespace Korvane::Tool
