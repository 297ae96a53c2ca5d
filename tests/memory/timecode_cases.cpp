#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

using DropFrame = Timecode::DropFrameIndication;
using FieldMark = Timecode::FieldMarkIndication;

constexpr auto kSemicolon = Timecode::DropFrameSemicolon;
constexpr auto kDot = Timecode::FieldMarkDotSuffix;
const char* const kLabel = "01:02:03;04 and a tail too long for a short buffer";
const wchar_t* const kWideLabel = L"01:02:03;04 and a tail too long for a short buffer";
const char* const kPattern = "%HH:%MM:%SS:%FF and a tail too long for a short buffer";
const wchar_t* const kWidePattern = L"%HH:%MM:%SS:%FF and a tail too long for a short buffer";

struct Listener final : TimecodeListener {
  void timecode_received(unsigned long long /*index*/, const Timecode& /*timecode*/) override {}
  void timecode_missing(unsigned long long /*index*/) override {}
};

auto add_timecode_class(Cases& cases) {
  ClassCases timecode(cases, [] { return Timecode(30, 2589408LL + 7, true); });
  timecode.reading([](const Timecode& read) { return text_of(read); });
  timecode.copying([] { return Timecode(60, 1LL, false); });
  return timecode;
}

template <typename TimecodeCases>
void add_timecode_constructors(TimecodeCases& timecode) {
  using Byte = unsigned char;
  using Rate = unsigned short;
  timecode.template constructor<Rate, Byte, Byte, Byte, Byte, bool, bool>(25, 1, 2, 3, 4, false,
                                                                          false);
  timecode.template constructor<Rate, Byte, Byte, Byte, bool>(25, 1, 2, 3, false);
  timecode.template constructor<Rate, unsigned int>(25, 0x01020304U);
  timecode.template constructor<Rate, unsigned int>(25, 0xFFFFFFFFU);
  timecode.template constructor<Rate, TimeData, bool, Rational32>(
      25, TimeData{2024, 2, 29, 1, 2, 3, 40}, false, Rational32{25, 1});
  timecode.template constructor<Rate, long long, bool>(25, 5LL, false);
  timecode.template constructor<Rate, bool>(25, false);
  timecode.template constructor<Rate, bool>(48, false);
}

template <typename TimecodeCases>
void add_timecode_members(TimecodeCases& timecode) {
  timecode.getter("frame_rate", &Timecode::frame_rate);
  timecode.getter("frame_count", &Timecode::frame_count);
  timecode.getter("absolute_frame_count", &Timecode::absolute_frame_count);
  timecode.getter("days", &Timecode::days);
  timecode.getter("drop_frame", &Timecode::drop_frame);
  timecode.getter("field_mark", &Timecode::field_mark);
  timecode.getter("hours", &Timecode::hours);
  timecode.getter("minutes", &Timecode::minutes);
  timecode.getter("seconds", &Timecode::seconds);
  timecode.getter("frames", &Timecode::frames);
  timecode.getter("frames_ignore_field_mark", &Timecode::frames_ignore_field_mark);
  timecode.getter("to_12m", &Timecode::to_12m);
  timecode.getter("to_12m_full", &Timecode::to_12m_full);
  timecode.method("add", &Timecode::add, 12345678LL);
  timecode.method("add_days", &Timecode::add_days, -3LL);
  timecode.operation(member_name<Timecode>("operator++"), [](Timecode& target) { ++target; });
  timecode.operation(member_name<Timecode>("operator--"), [](Timecode& target) { --target; });
  timecode.method("operator==", &Timecode::operator==, Timecode(25, false));
  timecode.method("operator!=", &Timecode::operator!=, Timecode(25, false));
  timecode.method("to_ms", &Timecode::to_ms, Rational32{30000, 1001});
  timecode.method("c_str", &Timecode::c_str, kSemicolon, kDot);
  timecode.method("text", &Timecode::text, kSemicolon, kDot);
  timecode.method("formatter",
                  static_cast<const char* (Timecode::*)(const char*) const>(&Timecode::formatter),
                  kPattern);
  timecode.method(
      "formatter",
      static_cast<const wchar_t* (Timecode::*)(const wchar_t*) const>(&Timecode::formatter),
      kWidePattern);
}

void ignore_line(void* /*context*/, const char* /*text*/) {}

void add_utils(Cases& cases) {
  namespace Utils = TimecodeUtils;
  const auto name = [](const char* function) {
    return "Korvane::TimecodeUtils::" + std::string(function);
  };
  const auto add = [&](const char* function, auto* pointer, auto... arguments) {
    add_function_case(cases, name(function).c_str(), pointer, arguments...);
  };
  add("frame_rate_drop_frame_filter", &Utils::frame_rate_drop_frame_filter, 30, true);
  using Narrow = Timecode (*)(unsigned short, const char*, DropFrame, FieldMark);
  using Wide = Timecode (*)(unsigned short, const wchar_t*, DropFrame, FieldMark);
  add("load_timecode_from_string", static_cast<Narrow>(&Utils::load_timecode_from_string), 30,
      kLabel, kSemicolon, kDot);
  add("load_timecode_from_string", static_cast<Wide>(&Utils::load_timecode_from_string), 30,
      kWideLabel, kSemicolon, kDot);
  add("load_timecode_from_string", static_cast<Wide>(&Utils::load_timecode_from_string), 30,
      L"no label", kSemicolon, kDot);
  add("timecode_fixer", &Utils::timecode_fixer, 25, 1, 2, 3, 4, false, false);
  add("load_timecode_from_full_st12m", &Utils::load_timecode_from_full_st12m, 30, 0, true);
  // Its one failure stands for all others too.
  add_function_case(
      cases, name("string_to_timecode") + parameter_names<const char*, unsigned short, bool>(),
      [] { Utils::string_to_timecode(kLabel, 30, true); }, Failing::AsRefusal);
  add_function_case(cases, name("add_minutes") + parameter_names<Timecode&, int>(), [] {
    Timecode stepped(25, false);
    Utils::add_minutes(stepped, 7);
  });
  add_function_case(
      cases,
      name("log_timecode_difference") +
          parameter_names<const char*, const Timecode&, const Timecode&>(),
      [timecode = Timecode(25, false)] {
        Logging::Logger::instance().set_sink(ignore_line, nullptr);
        Utils::log_timecode_difference("a label too long for a short buffer", timecode, timecode);
      },
      Failing::AsNothing);
}

void add_timecode_information(Cases& cases) {
  using Media::TimecodeInfo;
  struct Filled : TimecodeInfo {
    Filled() { initial_timecode(Timecode(25, 7LL, false)); }
  };
  static const Timecode other(30, 9LL, true);
  ClassCases info(cases, [] { return Filled(); });
  info.getter("initial_timecode", &TimecodeInfo::initial_timecode);
  info.operation(member_name<TimecodeInfo, const Timecode&>("initial_timecode"),
                 [](TimecodeInfo& changed) { changed.initial_timecode(other); });
  info.operation(constructor_name<TimecodeInfo>(),
                 [](TimecodeInfo& /*unused*/) { const TimecodeInfo made; });
  info.operation(destructor_name<TimecodeInfo>(),
                 [](TimecodeInfo& /*unused*/) { const TimecodeInfo made; });
}

}  // namespace

void add_timecode_cases(Cases& cases) {
  auto timecode = add_timecode_class(cases);
  add_timecode_constructors(timecode);
  add_timecode_members(timecode);
  add_utils(cases);
  add_timecode_information(cases);
  add_interface_cases<TimecodeListener, Listener>(cases);
}

}  // namespace Korvane::MemoryTests
