#include "timecode/timecode.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <string>

#include "binding.h"
#include "foundation/rational32.h"
#include "timecode/time_data.h"
#include "timecode/timecode_info.h"
#include "timecode/timecode_utils.h"

namespace Korvane::Python {
namespace {

// A number past the type that takes it becomes the greatest of that type, which no rate and no
// field of a label may be: the constructor then tells what is wrong, where a cut number might pass.
template <typename Field>
Field clamped(long long value) {
  constexpr Field kGreatest = std::numeric_limits<Field>::max();
  return value < 0 || value > kGreatest ? kGreatest : static_cast<Field>(value);
}

unsigned short rate_of(long long value) { return clamped<unsigned short>(value); }
unsigned char field_of(long long value) { return clamped<unsigned char>(value); }

const auto kDropFrame = [] { return py::arg_v("drop_frame", Timecode::DropFrameSemicolon); };
const auto kFieldMark = [] { return py::arg_v("field_mark", Timecode::FieldMarkDotSuffix); };

py::str label(const Timecode& timecode) {
  return to_python(timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix));
}

std::string describe(const Timecode& timecode) {
  return "<Timecode " + py::cast<std::string>(label(timecode)) + " at " +
         std::to_string(timecode.frame_rate()) + (timecode.drop_frame() ? " drop-frame" : "") +
         ", frame " + std::to_string(timecode.frame_count()) + ">";
}

bool same_rational(const Rational32& left, const Rational32& right) {
  return left.numerator == right.numerator && left.denominator == right.denominator;
}

py::tuple fields_of(const TimeData& time) {
  return py::make_tuple(time.year, time.month, time.day, time.hour, time.minute, time.second,
                        time.millisecond);
}

// Neither compares in C++. Here they are constant records, which compare field by field.
void bind_records(py::module_& module) {
  Class<Rational32>(module, "Rational32")
      .constant("numerator", &Rational32::numerator)
      .constant("denominator", &Rational32::denominator)
      .repr({"numerator", "denominator"})
      .def(py::init([](int numerator, int denominator) {
             return Rational32{numerator, denominator};
           }),
           py::arg("numerator"), py::arg("denominator"))
      .def("__eq__", same_rational, py::is_operator())
      .def("__hash__",
           [](const Rational32& self) {
             return py::hash(py::make_tuple(self.numerator, self.denominator));
           })
      .def("__str__", [](const Rational32& self) {
        return std::to_string(self.numerator) + "/" + std::to_string(self.denominator);
      });

  using Field = unsigned short;
  Class<TimeData>(module, "TimeData")
      .constant("year", &TimeData::year)
      .constant("month", &TimeData::month)
      .constant("day", &TimeData::day)
      .constant("hour", &TimeData::hour)
      .constant("minute", &TimeData::minute)
      .constant("second", &TimeData::second)
      .constant("millisecond", &TimeData::millisecond)
      .repr({"year", "month", "day", "hour", "minute", "second", "millisecond"})
      .def(py::init([](Field year, Field month, Field day, Field hour, Field minute, Field second,
                       Field millisecond) {
             return TimeData{year, month, day, hour, minute, second, millisecond};
           }),
           py::arg("year") = 0, py::arg("month") = 0, py::arg("day") = 0, py::arg("hour") = 0,
           py::arg("minute") = 0, py::arg("second") = 0, py::arg("millisecond") = 0)
      .def(
          "__eq__",
          [](const TimeData& left, const TimeData& right) {
            return fields_of(left).equal(fields_of(right));
          },
          py::is_operator())
      .def("__hash__", [](const TimeData& self) { return py::hash(fields_of(self)); });
}

// Made in their place, as a copy would lose the days. The constructor of one number comes after
// that of one flag: True is a number, too.
void bind_constructors(Class<Timecode>& type) {
  using Number = long long;
  type.factory(
      [](Number rate, Number hours, Number minutes, Number seconds, Number frames, bool drop_frame,
         bool field_mark) {
        return std::make_unique<Timecode>(rate_of(rate), field_of(hours), field_of(minutes),
                                          field_of(seconds), field_of(frames), drop_frame,
                                          field_mark);
      },
      py::arg("rate"), py::arg("hours"), py::arg("minutes"), py::arg("seconds"), py::arg("frames"),
      flag("drop_frame"), flag("field_mark"));
  type.def(py::init([](Number rate, Number hours, Number minutes, Number seconds, bool drop_frame) {
             return std::make_unique<Timecode>(rate_of(rate), field_of(hours), field_of(minutes),
                                               field_of(seconds), drop_frame);
           }),
           py::arg("rate"), py::arg("hours"), py::arg("minutes"), py::arg("seconds"),
           flag("drop_frame"));
  type.def(py::init([](Number rate, const TimeData& clock, bool drop_frame,
                       const Rational32& edit_rate) {
             return std::make_unique<Timecode>(rate_of(rate), clock, drop_frame, edit_rate);
           }),
           py::arg("rate"), py::arg("clock"), flag("drop_frame"), py::arg("edit_rate"));
  type.def(py::init([](Number rate, Number frame_count, bool drop_frame) {
             return std::make_unique<Timecode>(rate_of(rate), frame_count, drop_frame);
           }),
           py::arg("rate"), py::arg("frame_count"), flag("drop_frame"));
  type.def(py::init([](Number rate, bool drop_frame) {
             return std::make_unique<Timecode>(rate_of(rate), drop_frame);
           }),
           py::arg("rate"), flag("drop_frame"));
  type.def(py::init([](Number rate, unsigned int st12) {
             return std::make_unique<Timecode>(rate_of(rate), st12);
           }),
           py::arg("rate"), py::arg("st12"));
}

void bind_timecode_class(py::module_& module) {
  Class<Timecode> type(module, "Timecode");
  enumeration<Timecode::DropFrameIndication>(type, "Timecode", "DropFrameIndication");
  enumeration<Timecode::FieldMarkIndication>(type, "Timecode", "FieldMarkIndication");
  for (const char* const name : {"DropFrameIndication", "FieldMarkIndication"}) {
    const py::dict members = type.attr(name).attr("__members__");
    for (const auto member : members) type.attr(member.first) = member.second;
  }
  bind_constructors(type);
  type.copies()
      .equality()
      .getter("frame_rate", &Timecode::frame_rate)
      .getter("frame_count", &Timecode::frame_count)
      .getter("absolute_frame_count", &Timecode::absolute_frame_count)
      .getter("days", &Timecode::days)
      .getter("drop_frame", &Timecode::drop_frame)
      .getter("field_mark", &Timecode::field_mark)
      .getter("hours", &Timecode::hours)
      .getter("minutes", &Timecode::minutes)
      .getter("seconds", &Timecode::seconds)
      .getter("frames", &Timecode::frames)
      .getter("frames_ignore_field_mark", &Timecode::frames_ignore_field_mark)
      .method("add", &Timecode::add, py::arg("n"))
      .method("add_days", &Timecode::add_days, py::arg("n"))
      .method("to_ms", &Timecode::to_ms, py::arg("edit_rate"))
      .method("to_12m", &Timecode::to_12m)
      .method("to_12m_full", &Timecode::to_12m_full)
      .method(
          "c_str",
          [](const Timecode& self, Timecode::DropFrameIndication drop_frame,
             Timecode::FieldMarkIndication field_mark) {
            return to_python(self.c_str(drop_frame, field_mark));
          },
          kDropFrame(), kFieldMark())
      .method(
          "text",
          [](const Timecode& self, Timecode::DropFrameIndication drop_frame,
             Timecode::FieldMarkIndication field_mark) {
            return to_python(self.text(drop_frame, field_mark));
          },
          kDropFrame(), kFieldMark())
      .method(
          "formatter",
          [](const Timecode& self, const Narrow& pattern) {
            return to_python(self.formatter(pattern.value.c_str()));
          },
          py::arg("pattern"))
      .def("__str__", label)
      .def("__repr__", describe);
}

void bind_timecode_info(py::module_& module) {
  using Media::TimecodeInfo;
  Class<TimecodeInfo>(module, "TimecodeInfo")
      .constructor<>()
      .read_write(
          "initial_timecode",
          [](const TimecodeInfo& self) -> py::object {
            const Timecode* const first = self.initial_timecode();
            if (first == nullptr) return py::none();
            return py::cast(Timecode(*first));
          },
          [](TimecodeInfo& self, const Timecode& timecode) { self.initial_timecode(timecode); })
      .repr({"initial_timecode"});
}

struct TimecodeUtilsScope {};

void bind_timecode_utils(py::module_& module) {
  const std::string name = "TimecodeUtils";
  py::class_<TimecodeUtilsScope> scope(module, name.c_str(), doc(name, "__doc__"));
  scope.def_static(
      "frame_rate_drop_frame_filter",
      [](long long rate, bool drop) {
        return TimecodeUtils::frame_rate_drop_frame_filter(rate_of(rate), drop);
      },
      py::arg("rate"), flag("drop"), doc(name, "frame_rate_drop_frame_filter"));
  scope.def_static(
      "load_timecode_from_string",
      [](long long rate, const Narrow& text, Timecode::DropFrameIndication drop_frame,
         Timecode::FieldMarkIndication field_mark) {
        return new Timecode(TimecodeUtils::load_timecode_from_string(
            rate_of(rate), text.value.c_str(), drop_frame, field_mark));
      },
      py::arg("rate"), py::arg("text"), kDropFrame(), kFieldMark(),
      doc(name, "load_timecode_from_string"));
  scope.def_static(
      "string_to_timecode",
      [](const Narrow& text, long long rate, bool drop_frame) {
        return new Timecode(
            TimecodeUtils::string_to_timecode(text.value.c_str(), rate_of(rate), drop_frame));
      },
      py::arg("text"), py::arg("rate"), flag("drop_frame"), doc(name, "string_to_timecode"));
  using Count = unsigned long long;
  scope.def_static(
      "timecode_fixer",
      [](long long rate, Count hours, Count minutes, Count seconds, Count frames, bool drop_frame,
         bool frames_are_full_rate) {
        return new Timecode(TimecodeUtils::timecode_fixer(
            rate_of(rate), hours, minutes, seconds, frames, drop_frame, frames_are_full_rate));
      },
      py::arg("rate"), py::arg("hours"), py::arg("minutes"), py::arg("seconds"), py::arg("frames"),
      flag("drop_frame"), flag("frames_are_full_rate"), doc(name, "timecode_fixer"));
  scope.def_static("add_minutes", &TimecodeUtils::add_minutes, py::arg("tc"), py::arg("minutes"),
                   doc(name, "add_minutes"));
  scope.def_static(
      "log_timecode_difference",
      [](const Narrow& label_text, const Timecode& previous, const Timecode& current) {
        // Copies, which other threads cannot change meanwhile.
        const Timecode before(previous);  // NOLINT(performance-unnecessary-copy-initialization)
        const Timecode after(current);    // NOLINT(performance-unnecessary-copy-initialization)
        const py::gil_scoped_release released;  // as in Logger.info
        TimecodeUtils::log_timecode_difference(label_text.value.c_str(), before, after);
      },
      py::arg("label"), py::arg("previous"), py::arg("current"),
      doc(name, "log_timecode_difference"));
  scope.def_static(
      "load_timecode_from_full_st12m",
      [](long long rate, unsigned long long word, bool ignore_field_mark) {
        return new Timecode(
            TimecodeUtils::load_timecode_from_full_st12m(rate_of(rate), word, ignore_field_mark));
      },
      py::arg("rate"), py::arg("word"), flag("ignore_field_mark"),
      doc(name, "load_timecode_from_full_st12m"));
}

}  // namespace

void bind_timecode(py::module_& module) {
  bind_records(module);
  bind_timecode_class(module);
  bind_timecode_info(module);
  bind_timecode_utils(module);
}

}  // namespace Korvane::Python
