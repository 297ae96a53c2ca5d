// What holds for any numbers. Arithmetic of the expected values is done in 128 bits and cut.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <string>
#include <vector>

#include "support/log_capture.h"
#include "support/naive_timecode.h"
#include "support/property.h"
#include "support/raises.h"
#include "timecode/timecode.h"
#include "timecode/timecode_utils.h"

namespace Korvane {
namespace {

using Naive::Counting;
using Naive::Frame;
using Naive::Int128;
using Naive::Label;
using Naive::show;
using Naive::wrapped;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

// A counting and its naive model.
struct Model {
  Counting counting;
  Naive::Minutes minutes;

  Timecode timecode(long long count) const { return {counting.rate, count, counting.drop}; }
  Frame frame(Int128 count) const { return minutes.frame_at(wrapped(count)); }
};

const std::vector<Model>& models() {
  static const std::vector<Model> all = [] {
    std::vector<Model> result;
    for (const Counting& counting : Naive::kCountings)
      result.push_back({counting, Naive::Minutes(counting)});
    return result;
  }();
  return all;
}

const Model& model_of(unsigned short rate, bool drop) {
  return *std::find_if(models().begin(), models().end(), [&](const Model& model) {
    return model.counting.rate == rate && model.counting.drop == drop;
  });
}

// Up to the first counting that fails.
template <typename Check>
AssertionResult in_each_counting(Check check) {
  for (const Model& model : models())
    if (AssertionResult result = check(model); !result)
      return result << " at " << model.counting.name;
  return AssertionSuccess();
}

template <typename... Timecodes>
AssertionResult all_are(const Model& model, const Frame& expected, const Timecodes&... timecodes) {
  for (const Timecode* timecode : {&timecodes...})
    if (!Naive::same(model.counting, expected, *timecode))
      return AssertionFailure() << "expected " << show(model.counting, expected) << "\ngot "
                                << show(*timecode);
  return AssertionSuccess();
}

TEST(TimecodeProperties, AddingTwiceIsAddingTheSum) {
  for_all([](long long start, long long a, long long b) {
    return in_each_counting([&](const Model& model) {
      Timecode twice = model.timecode(start);
      twice.add(a);
      twice.add(b);
      Timecode once = model.timecode(start);
      once.add(wrapped(Int128(a) + b));
      return all_are(model, model.frame(Int128(start) + a + b), twice, once);
    });
  });
}

TEST(TimecodeProperties, AddingDaysIsAddingTheirFrames) {
  for_all([](long long start, long long days) {
    return in_each_counting([&](const Model& model) {
      const Int128 frames = Int128(days) * model.counting.frames_per_day;
      Timecode by_days = model.timecode(start);
      by_days.add_days(days);
      Timecode by_frames = model.timecode(start);
      by_frames.add(wrapped(frames));
      return all_are(model, model.frame(start + frames), by_days, by_frames);
    });
  });
}

TEST(TimecodeProperties, StepsAreAdditionsOfOne) {
  for_all([](long long start) {
    return in_each_counting([&](const Model& model) {
      Timecode up = model.timecode(start);
      ++up;
      Timecode plus_one = model.timecode(start);
      plus_one.add(1);
      return all_are(model, model.frame(Int128(start) + 1), up, plus_one);
    });
  });
  for_all([](long long start) {
    return in_each_counting([&](const Model& model) {
      Timecode down = model.timecode(start);
      --down;
      Timecode minus_one = model.timecode(start);
      minus_one.add(-1);
      return all_are(model, model.frame(Int128(start) - 1), down, minus_one);
    });
  });
}

TEST(TimecodeProperties, StepsUndoEachOther) {
  for_all([](long long start) {
    return in_each_counting([&](const Model& model) {
      Timecode up_and_down = model.timecode(start);
      ++up_and_down;
      --up_and_down;
      Timecode down_and_up = model.timecode(start);
      --down_and_up;
      ++down_and_up;
      return all_are(model, model.frame(start), up_and_down, down_and_up);
    });
  });
}

// Everything that can be asked of a timecode and does not follow from its numbers alone.
AssertionResult same_outputs(const Timecode& a, const Timecode& b) {
  const Rational32 rate = {30000, 1001};
  const bool same =
      std::strcmp(a.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix),
                  b.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix)) == 0 &&
      std::wcscmp(a.text(Timecode::DropFrameColon, Timecode::FieldMarkFullRateFrames),
                  b.text(Timecode::DropFrameColon, Timecode::FieldMarkFullRateFrames)) == 0 &&
      std::strcmp(a.formatter("%HH.%MM.%SS.%FF"), b.formatter("%HH.%MM.%SS.%FF")) == 0 &&
      a.to_12m() == b.to_12m() && a.to_12m_full() == b.to_12m_full() &&
      a.to_ms(rate) == b.to_ms(rate);
  if (same) return AssertionSuccess();
  return AssertionFailure() << "outputs differ: " << show(a) << " and " << show(b);
}

TEST(TimecodeProperties, CopiesDropTheDaysOnly) {
  for_all([](long long count, long long replaced) {
    return in_each_counting([&](const Model& model) {
      const Timecode original = model.timecode(count);
      const Timecode copy(original);
      Timecode assigned(25, replaced, false);
      assigned = original;

      Frame without_days = model.frame(count);
      without_days.days = 0;
      if (AssertionResult result = all_are(model, without_days, copy, assigned); !result)
        return result;
      if (AssertionResult result = all_are(model, model.frame(count), original); !result)
        return result;
      AssertionResult result = same_outputs(original, copy);
      return result ? same_outputs(original, assigned) : result;
    });
  });
}

TEST(TimecodeProperties, CopiesStepAsTheOriginal) {
  for_all([](long long count, long long n) {
    return in_each_counting([&](const Model& model) {
      const Timecode original = model.timecode(count);
      Timecode copy(original);
      copy.add(n);
      if (AssertionResult result = all_are(model, model.frame(Int128(count) + n), copy); !result)
        return result;
      return all_are(model, model.frame(count), original);
    });
  });
}

unsigned long long wrapped_unsigned(Int128 value) { return static_cast<unsigned long long>(value); }

// Carried by hand; every intermediate number is kept in 64 bits.
Frame carried(const Model& model, unsigned long long hours, unsigned long long minutes,
              unsigned long long seconds, unsigned long long frames, bool full_rate) {
  const unsigned long long all_minutes = wrapped_unsigned(Int128(minutes) + seconds / 60);
  const unsigned long long all_hours = wrapped_unsigned(Int128(hours) + all_minutes / 60);
  const Label label = {static_cast<int>(all_hours % 24), static_cast<int>(all_minutes % 60),
                       static_cast<int>(seconds % 60), 0};
  const bool in_pairs = Naive::counts_pairs(model.counting) && !full_rate;
  const long long start = model.minutes.count_at(label);
  return model.frame(start + Int128(frames) * (in_pairs ? 2 : 1));
}

TEST(TimecodeProperties, FixerCarriesAndAddsTheFrames) {
  for_all([](unsigned long long hours, unsigned long long minutes, unsigned long long seconds,
             unsigned long long frames) {
    return in_each_counting([&](const Model& model) {
      for (const bool full_rate : {false, true}) {
        const Timecode fixed = TimecodeUtils::timecode_fixer(
            model.counting.rate, hours, minutes, seconds, frames, model.counting.drop, full_rate);
        const Frame expected = carried(model, hours, minutes, seconds, frames, full_rate);
        if (AssertionResult result = all_are(model, expected, fixed); !result)
          return result << (full_rate ? " with full-rate frames" : " with frames of the label");
      }
      return AssertionSuccess();
    });
  });
}

// A field of a text and the number that it is read as.
struct WrittenField {
  std::string text;
  unsigned int value = 0;
};

// Leading zeros, and "-" in the place of the digits that `dashes` marks.
WrittenField written(unsigned short number, unsigned int leading_zeros, unsigned int dashes) {
  WrittenField field;
  field.text = std::string(leading_zeros, '0') + std::to_string(number);
  for (char& digit : field.text) {
    field.value = field.value * 10 + (dashes % 2 == 1 ? 0 : static_cast<unsigned int>(digit - '0'));
    if (dashes % 2 == 1) digit = '-';
    dashes /= 2;
  }
  field.value %= 256;
  return field;
}

TEST(TimecodeProperties, LenientReadingCarries) {
  for_all([](unsigned short hours, unsigned short minutes, unsigned short seconds,
             unsigned short frames, unsigned int style) {
    std::vector<WrittenField> fields;
    std::string text;
    for (const unsigned short number : {hours, minutes, seconds, frames}) {
      fields.push_back(written(number, style % 3, style / 3 % 64));
      text += fields.back().text + ";,:"[style % 3];
      style = style / 5 + style % 5 * 858993459;  // other low digits for the next field
    }
    if (style % 2 == 0) text.pop_back();  // with the last separator a fifth field is left empty
    return in_each_counting([&](const Model& model) {
      const Timecode read =
          TimecodeUtils::string_to_timecode(text.c_str(), model.counting.rate, model.counting.drop);
      const Frame expected =
          carried(model, fields[0].value, fields[1].value, fields[2].value, fields[3].value, false);
      AssertionResult result = all_are(model, expected, read);
      if (!result) result << " of \"" << text << '"';
      return result;
    });
  });
}

Int128 frames_of_minutes(const Model& model, int minutes) {
  const Int128 magnitude = minutes < 0 ? -Int128(minutes) : Int128(minutes);
  const Label label = {static_cast<int>(magnitude / 60 % 24), static_cast<int>(magnitude % 60), 0,
                       0};
  const Int128 frames = model.minutes.count_at(label);
  return minutes < 0 ? -frames : frames;
}

TEST(TimecodeProperties, AddsMinutesModuloADay) {
  for_all([](long long start, int minutes) {
    return in_each_counting([&](const Model& model) {
      Timecode timecode = model.timecode(start);
      TimecodeUtils::add_minutes(timecode, minutes);
      const Frame expected = model.frame(start + frames_of_minutes(model, minutes));
      if (AssertionResult result = all_are(model, expected, timecode); !result) return result;

      if (minutes == INT_MIN) return AssertionSuccess();  // has no opposite
      TimecodeUtils::add_minutes(timecode, -minutes);
      return all_are(model, model.frame(start), timecode);
    });
  });
}

AssertionResult is_a_label(const Model& model, const Timecode& timecode) {
  const Label label = {timecode.hours(), timecode.minutes(), timecode.seconds(),
                       timecode.frames_ignore_field_mark()};
  const int label_frames = model.counting.rate / (Naive::counts_pairs(model.counting) ? 2 : 1);
  if (label.hours < 24 && label.minutes < 60 && label.seconds < 60 &&
      timecode.frames() < label_frames && label.frame < model.counting.rate &&
      (Naive::counts_pairs(model.counting) || !timecode.field_mark()) &&
      !Naive::is_dropped(model.counting, label))
    return AssertionSuccess();
  return AssertionFailure() << "no label: " << show(timecode);
}

template <typename... Operations>
AssertionResult keep_a_label(const Model& model, Timecode& timecode, Operations... operations) {
  AssertionResult result = is_a_label(model, timecode);
  const auto apply = [&](const auto& operation) {
    if (!result) return;
    operation(timecode);
    result = is_a_label(model, timecode);
  };
  (apply(operations), ...);
  return result;
}

TEST(TimecodeProperties, EveryOperationLeavesALabel) {
  for_all([](long long start, long long n, int minutes) {
    return in_each_counting([&](const Model& model) {
      Timecode timecode = model.timecode(start);
      return keep_a_label(
          model, timecode, [&](Timecode& tc) { tc.add(n); }, [&](Timecode& tc) { tc.add_days(n); },
          [](Timecode& tc) { ++tc; }, [&](Timecode& tc) { tc.add(n); }, [](Timecode& tc) { --tc; },
          [&](Timecode& tc) { TimecodeUtils::add_minutes(tc, minutes); },
          [](Timecode& tc) { tc = Timecode(tc); }, [](Timecode& tc) { ++tc; });
    });
  });
}

TEST(TimecodeProperties, DaysAndAbsoluteCountMakeTheCount) {
  for_all([](short days, long long position) {
    return in_each_counting([&](const Model& model) {
      const long long per_day = model.counting.frames_per_day;
      const long long absolute = (position % per_day + per_day) % per_day;
      const Timecode timecode = model.timecode(days * per_day + absolute);
      if (timecode.days() == days && timecode.absolute_frame_count() == absolute)
        return AssertionSuccess();
      return AssertionFailure() << "expected days " << days << " absolute " << absolute << ", got "
                                << show(timecode);
    });
  });
}

TEST(TimecodeProperties, DaysAreKeptIn16Bits) {
  for_all([](long long count) {
    return in_each_counting([&](const Model& model) {
      const Timecode timecode = model.timecode(count);
      const Int128 in_days = Int128(count) - timecode.absolute_frame_count();
      const Int128 days = in_days / model.counting.frames_per_day;
      if (in_days % model.counting.frames_per_day == 0 && (days - timecode.days()) % 65536 == 0 &&
          timecode.frame_count() == count)
        return AssertionSuccess();
      return AssertionFailure() << "not the days of the count: " << show(timecode);
    });
  });
}

TEST(TimecodeProperties, TextReadsBackAsTheSameFrameOfTheDay) {
  for_all([](long long count) {
    return in_each_counting([&](const Model& model) {
      const Timecode timecode = model.timecode(count);
      const Frame frame = model.frame(model.frame(count).absolute);
      for (const Timecode::FieldMarkIndication indication :
           {Timecode::FieldMarkDotSuffix, Timecode::FieldMarkFullRateFrames,
            Timecode::FieldMarkOmitted}) {
        const char* const text = timecode.c_str(Timecode::DropFrameSemicolon, indication);
        const Timecode read = TimecodeUtils::load_timecode_from_string(
            model.counting.rate, text, Timecode::DropFrameSemicolon, indication);
        const Frame expected = indication == Timecode::FieldMarkOmitted
                                   ? Naive::with_field_mark(model.counting, frame, false)
                                   : frame;
        if (AssertionResult result = all_are(model, expected, read); !result)
          return result << " of \"" << text << '"';
      }
      return AssertionSuccess();
    });
  });
}

constexpr unsigned short kRates[] = {24, 25, 30, 50, 60};

// What a word holds, in range or not.
struct WordFields {
  int hours;
  int minutes;
  int seconds;
  int frames;
  bool drop;
  bool field_mark;
};

int bits(unsigned long long word, int first, int count) {
  return static_cast<int>(word >> first & ((1ULL << count) - 1));
}

WordFields fields_of_32_bits(unsigned short rate, unsigned int word) {
  const int mark_bit = rate == 50 ? 31 : 15;
  return {bits(word, 28, 2) * 10 + bits(word, 24, 4),
          bits(word, 20, 3) * 10 + bits(word, 16, 4),
          bits(word, 12, 3) * 10 + bits(word, 8, 4),
          bits(word, 4, 2) * 10 + bits(word, 0, 4),
          bits(word, 6, 1) == 1,
          rate > 30 && bits(word, mark_bit, 1) == 1};
}

WordFields fields_of_64_bits(unsigned short rate, unsigned long long word, bool ignore_field_mark) {
  const int mark_bit = rate == 50 ? 59 : 27;
  return {bits(word, 56, 2) * 10 + bits(word, 48, 4),
          bits(word, 40, 3) * 10 + bits(word, 32, 4),
          bits(word, 24, 3) * 10 + bits(word, 16, 4),
          bits(word, 8, 2) * 10 + bits(word, 0, 4),
          bits(word, 10, 1) == 1,
          !ignore_field_mark && rate > 30 && bits(word, mark_bit, 1) == 1};
}

// The text of the first rule that the fields break, or null. The rate is a supported one.
const char* first_error(unsigned short rate, const WordFields& fields) {
  const bool drops = fields.drop && (rate == 30 || rate == 60);
  if (fields.hours > 24) return "Hours cannot be lower than 0 and higher than 24.";
  if (fields.minutes > 59) return "Minutes cannot be lower than 0 and higher than 59.";
  if (fields.seconds > 59) return "Seconds cannot be lower than 0 and higher than 59.";
  if (fields.frames >= (rate > 30 ? rate / 2 : rate))
    return "Frames cannot be lower than 0 and higher than the frame rate value.";
  if (drops && fields.minutes % 10 != 0 && fields.seconds == 0 && fields.frames <= 1)
    return "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.";
  return nullptr;
}

// `read` gives what the fields say, or the error that they deserve. A day is taken off hour 24 when
// the reading `wraps`.
template <typename Read>
AssertionResult reads_as(unsigned short rate, const WordFields& fields, bool wraps, Read read) {
  if (const char* const error = first_error(rate, fields))
    return raises(InvalidArgument, error, read);

  const Model& model = model_of(rate, fields.drop && (rate == 30 || rate == 60));
  const int number = rate > 30 ? fields.frames * 2 + (fields.field_mark ? 1 : 0) : fields.frames;
  const Label label = {fields.hours, fields.minutes, fields.seconds, number};
  const long long count = model.minutes.count_at(label);
  return all_are(model, wraps ? model.frame(count) : Frame{count, count, 0, label}, read());
}

AssertionResult reads_32_bits(unsigned short rate, unsigned int word) {
  const WordFields fields = fields_of_32_bits(rate, word);
  AssertionResult result = reads_as(rate, fields, false, [&] { return Timecode(rate, word); });
  if (!result) result << " of word " << Naive::show_word(word) << " at " << rate;
  return result;
}

AssertionResult reads_64_bits(unsigned short rate, unsigned long long word,
                              bool ignore_field_mark) {
  const WordFields fields = fields_of_64_bits(rate, word, ignore_field_mark);
  AssertionResult result = reads_as(rate, fields, true, [&] {
    return TimecodeUtils::load_timecode_from_full_st12m(rate, word, ignore_field_mark);
  });
  if (!result)
    result << " of word " << Naive::show_word(word) << " at " << rate
           << (ignore_field_mark ? " without field mark" : " with field mark");
  return result;
}

TEST(TimecodeProperties, Any32BitsAreReadOrRefused) {
  for_all([](unsigned int word) {
    for (const unsigned short rate : kRates)
      if (AssertionResult result = reads_32_bits(rate, word); !result) return result;
    return AssertionSuccess();
  });
}

TEST(TimecodeProperties, Any64BitsAreReadOrRefused) {
  for_all([](unsigned long long word, unsigned char choice) {
    for (const unsigned short rate : kRates)
      if (AssertionResult result = reads_64_bits(rate, word, choice % 2 == 0); !result)
        return result;
    return AssertionSuccess();
  });
}

// Of random words, few are good and hardly any has a label that is left out; these are within one
// bit of a label, and half of them in the first frames of a minute.
TEST(TimecodeProperties, WordsBesideLabelsAreReadOrRefused) {
  for_all([](long long count, unsigned char number, unsigned char choice) {
    return in_each_counting([&](const Model& model) {
      Label label = model.frame(count).label;
      if (choice % 2 == 0) {
        label.seconds = 0;
        label.frame %= 8;
      }
      const unsigned short rate = model.counting.rate;
      const unsigned int word32 = Naive::word32_of(model.counting, label) ^ 1U << number % 32;
      const unsigned long long word64 =
          Naive::word64_of(model.counting, label) ^ 1ULL << number % 64;
      AssertionResult result = reads_32_bits(rate, word32);
      return result ? reads_64_bits(rate, word64, choice / 2 % 2 == 0) : result;
    });
  });
}

TEST(TimecodeProperties, OtherRatesAreRefusedBeforeAnythingElse) {
  for_all([](unsigned short given, unsigned int word32, unsigned long long word64) {
    const bool supported = std::count(std::begin(kRates), std::end(kRates), given) != 0;
    const unsigned short rate = supported ? 48 : given;
    const char* const message = "Frame rate not supported.";
    AssertionResult result = raises(NotSupported, message, [&] { Timecode(rate, word32); });
    if (!result) return result;
    return raises(NotSupported, message,
                  [&] { TimecodeUtils::load_timecode_from_full_st12m(rate, word64, false); });
  });
}

TEST(TimecodeProperties, MillisecondsAreTruncatedAndWrap) {
  for_all([](long long count, int numerator, int denominator) {
    return in_each_counting([&](const Model& model) {
      const long long dividend = wrapped(Int128(model.frame(count).absolute) * denominator * 1000);
      const Int128 quotient = numerator == 0 ? 0 : Int128(dividend) / numerator;
      const auto expected = static_cast<unsigned long long>(wrapped(quotient));
      const unsigned long long actual = model.timecode(count).to_ms({numerator, denominator});
      if (actual == expected) return AssertionSuccess();
      return AssertionFailure() << "expected " << expected << " ms, got " << actual;
    });
  });
}

// The time of day in 32 signed bits, the product in 64, the division unsigned.
long long frames_at(const TimeData& clock, const Rational32& edit_rate) {
  const Int128 seconds = (Int128(clock.hour) * 60 + clock.minute) * 60 + clock.second;
  const auto milliseconds =
      static_cast<int>(static_cast<unsigned int>(seconds * 1000 + clock.millisecond));
  const auto dividend = static_cast<unsigned long long>(Int128(edit_rate.numerator) * milliseconds);
  const auto divisor = static_cast<unsigned long long>(Int128(edit_rate.denominator) * 1000);
  return divisor == 0 ? 0 : wrapped(Int128(dividend) / Int128(divisor));
}

TEST(TimecodeProperties, ClockGivesTheFrameThatHasStarted) {
  for_all([](unsigned short hour, unsigned short minute, unsigned short second,
             unsigned short millisecond, int numerator, int denominator) {
    const Rational32 edit_rate = {numerator, denominator};
    const TimeData any = {0, 0, 0, hour, minute, second, millisecond};
    const TimeData of_day = {2024,
                             2,
                             29,
                             static_cast<unsigned short>(hour % 24),
                             static_cast<unsigned short>(minute % 60),
                             static_cast<unsigned short>(second % 60),
                             static_cast<unsigned short>(millisecond % 1000)};
    return in_each_counting([&](const Model& model) {
      for (const TimeData& clock : {any, of_day}) {
        const Timecode timecode(model.counting.rate, clock, model.counting.drop, edit_rate);
        const Frame expected = model.frame(frames_at(clock, edit_rate));
        if (AssertionResult result = all_are(model, expected, timecode); !result) return result;
      }
      return AssertionSuccess();
    });
  });
}

struct Compared {
  const Model* model;
  Frame frame;
  Timecode timecode;
};

void append_in_each_counting(std::vector<Compared>& compared, long long count) {
  for (const Model& model : models())
    compared.push_back({&model, model.frame(count), model.timecode(count)});
}

bool compare_equal(const Compared& a, const Compared& b) {
  return a.model->counting.rate == b.model->counting.rate &&
         a.model->counting.drop == b.model->counting.drop &&
         Naive::frames_field(a.model->counting, a.frame.label) ==
             Naive::frames_field(b.model->counting, b.frame.label);
}

TEST(TimecodeProperties, EqualityIsThatOfRateDropFrameAndFrames) {
  for_all([](long long count, long long other_count) {
    std::vector<Compared> left;
    append_in_each_counting(left, count);
    std::vector<Compared> right;
    append_in_each_counting(right, count);
    append_in_each_counting(right, other_count);
    append_in_each_counting(right, wrapped(Int128(count) + 1));
    for (Compared& a : left)
      for (const Compared& b : right)
        if (const bool expected = compare_equal(a, b);
            (a.timecode == b.timecode) != expected || (a.timecode != b.timecode) == expected)
          return AssertionFailure() << "expected " << (expected ? "equal: " : "unequal: ")
                                    << show(a.timecode) << " and " << show(b.timecode);
    return AssertionSuccess();
  });
}

// What is logged when `current` comes after `previous`: nothing or one line.
std::vector<std::string> lines_for(const Model& model, const Frame& expected,
                                   const Model& current_model, const Frame& current) {
  if (expected.absolute == current.absolute) return {};
  return {"Source: Found timecode difference, expected: " +
          Naive::text_of(model.counting, expected.label, Timecode::DropFrameSemicolon,
                         Timecode::FieldMarkDotSuffix) +
          " actual: " +
          Naive::text_of(current_model.counting, current.label, Timecode::DropFrameSemicolon,
                         Timecode::FieldMarkDotSuffix)};
}

AssertionResult logs_what_it_should(const Model& model, long long previous,
                                    const Model& current_model, Int128 current) {
  const std::vector<std::string> expected = lines_for(model, model.frame(Int128(previous) + 1),
                                                      current_model, current_model.frame(current));
  const LogCapture capture;
  TimecodeUtils::log_timecode_difference("Source", model.timecode(previous),
                                         current_model.timecode(wrapped(current)));
  if (capture.lines() == expected) return AssertionSuccess();
  return AssertionFailure() << "expected " << ::testing::PrintToString(expected) << ", logged "
                            << ::testing::PrintToString(capture.lines());
}

TEST(TimecodeProperties, DifferencesAreLoggedUnlessSuccessive) {
  for_all([](long long previous, long long distance, short days) {
    return in_each_counting([&](const Model& model) {
      const Int128 next = Int128(previous) + 1;
      for (const Int128 current :
           {next, next + distance, next + Int128(days) * model.counting.frames_per_day})
        if (AssertionResult result = logs_what_it_should(model, previous, model, current); !result)
          return result;
      return logs_what_it_should(model, previous, models().front(), next + distance);
    });
  });
}

}  // namespace
}  // namespace Korvane
