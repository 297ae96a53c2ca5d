#include "timecode/timecode.h"

#include <bit>

#include "core/exception.h"
#include "foundation/required_text.h"
#include "foundation/wrapping.h"
#include "timecode/counting.h"
#include "timecode/frame_rate.h"
#include "timecode/label_text.h"
#include "timecode/st12_word.h"
#include "timecode/text_conversion.h"
#include "timecode/timecode_private.h"

namespace Korvane {
namespace {

// In 32 bits, wrapping; signed when it is widened.
int milliseconds_of_day(const TimeData& clock) {
  unsigned int milliseconds = clock.hour;
  milliseconds = milliseconds * 60 + clock.minute;
  milliseconds = milliseconds * 60 + clock.second;
  milliseconds = milliseconds * 1000 + clock.millisecond;
  return static_cast<int>(milliseconds);
}

long long frames_at(const TimeData& clock, const Rational32& edit_rate) {
  const auto dividend = static_cast<unsigned long long>(
      wrapping_multiply(edit_rate.numerator, milliseconds_of_day(clock)));
  const auto divisor = static_cast<unsigned long long>(edit_rate.denominator * 1000LL);
  return divisor == 0 ? 0 : static_cast<long long>(dividend / divisor);
}

// The digits and the drop-frame flag.
unsigned long long pack_label(const TimecodeState& state, const St12Layout& layout) {
  const unsigned long long word =
      layout.frames.pack(state.frames) | layout.seconds.pack(state.seconds) |
      layout.minutes.pack(state.minutes) | layout.hours.pack(state.hours);
  return with_bit(word, layout.drop_frame_bit, state.drop_frame);
}

const FormattedText& formatted(TimecodePrivate& record, const char* pattern) {
  if (record.formatted == nullptr) record.formatted = std::make_unique<FormattedTexts>();
  return record.formatted->write(record, pattern);
}

const LabelText& printed(TimecodePrivate& record, Timecode::DropFrameIndication drop_frame,
                         Timecode::FieldMarkIndication field_mark) {
  write_label(record, drop_frame, field_mark, record.text);
  return record.text;
}

// Apart, as few labels take it.
template <typename Counting>
[[gnu::noinline]] TimecodePrivate* derived_record(long long count, bool wrap) {
  return new TimecodePrivate(state_of_count<Counting>(count, wrap));
}

// Raises the first error of rate and label; `check_drop_frame_label` also refuses the labels that
// drop-frame counting leaves out.
[[gnu::always_inline]] inline TimecodePrivate* record_of_label(unsigned short rate, bool drop_frame,
                                                               const Label& label, bool wrap,
                                                               bool check_drop_frame_label) {
  return with_counting(rate, drop_frame, [&](auto way) {
    using Counting = decltype(way);
    const bool drops_checked = Counting::kDrop && check_drop_frame_label;
    if (const char* const fault = fault_of(label, Counting::kLastFrame, drops_checked))
      exception_throw(InvalidArgument, fault, true);
    if (check_drop_frame_label && label.hours != 24) [[likely]]
      return new TimecodePrivate(state_of_day_label<Counting>(label));
    return derived_record<Counting>(count_of(label, Counting::kRate, Counting::kDrop), wrap);
  });
}

[[gnu::always_inline]] inline TimecodePrivate* record_of_count(unsigned short rate, bool drop_frame,
                                                               long long count) {
  return with_counting(rate, drop_frame, [&](auto way) {
    using Counting = decltype(way);
    return new TimecodePrivate(state_of_count<Counting>(count, true));
  });
}

}  // namespace

Timecode::Timecode(unsigned short rate, unsigned char hours, unsigned char minutes,
                   unsigned char seconds, unsigned char frames, bool drop_frame, bool field_mark)
    : private_(record_of_label(rate, drop_frame, {hours, minutes, seconds, frames, field_mark},
                               true, true)) {}

Timecode::Timecode(unsigned short rate, unsigned char hours, unsigned char minutes,
                   unsigned char seconds, bool drop_frame)
    : private_(record_of_label(rate, drop_frame, {hours, minutes, seconds}, true, false)) {}

Timecode::Timecode(unsigned short rate, unsigned int st12)
    : private_(record_of_label(rate, bit(st12, kSt12Word32.drop_frame_bit),
                               label_of_word(kSt12Word32, rate, st12), false, true)) {}

Timecode::Timecode(unsigned short rate, TimeData clock, bool drop_frame, Rational32 edit_rate)
    : Timecode(rate, frames_at(clock, edit_rate), drop_frame) {}

Timecode::Timecode(unsigned short rate, long long frame_count, bool drop_frame)
    : private_(record_of_count(rate, drop_frame, frame_count)) {}

Timecode::Timecode(unsigned short rate, bool drop_frame) : Timecode(rate, 0LL, drop_frame) {}

Timecode::Timecode(const Timecode& other) = default;

Timecode& Timecode::operator=(const Timecode& other) = default;

Timecode::~Timecode() = default;

unsigned short Timecode::frame_rate() const { return private_->frame_rate; }
long long Timecode::frame_count() const { return private_->frame_count; }
long long Timecode::absolute_frame_count() const { return private_->absolute_frame_count(); }
short Timecode::days() const { return private_->days; }
bool Timecode::drop_frame() const { return private_->drop_frame; }
bool Timecode::field_mark() const { return private_->field_mark; }
unsigned char Timecode::hours() const { return private_->hours; }
unsigned char Timecode::minutes() const { return private_->minutes; }
unsigned char Timecode::seconds() const { return private_->seconds; }
unsigned char Timecode::frames() const { return private_->frames; }

unsigned char Timecode::frames_ignore_field_mark() const { return private_->full_rate_frames(); }

void Timecode::add(long long n) { private_->add(n); }

void Timecode::add_days(long long n) {
  private_->add(wrapping_multiply(frames_per_day(private_->frame_rate, private_->drop_frame), n));
}

void Timecode::operator++() { private_->step(); }

void Timecode::operator--() { private_->step_back(); }

bool Timecode::operator==(const Timecode& other) {
  // Only these three: two frames an hour apart are equal.
  return private_->frame_rate == other.private_->frame_rate &&
         private_->drop_frame == other.private_->drop_frame &&
         private_->frames == other.private_->frames;
}

bool Timecode::operator!=(const Timecode& other) { return !(*this == other); }

unsigned long long Timecode::to_ms(const Rational32& edit_rate) const {
  // Never the smallest number, whose quotient by -1 would not fit: that would take 2^63 in the
  // product.
  const long long dividend = wrapping_multiply(
      wrapping_multiply(private_->absolute_frame_count(), edit_rate.denominator), 1000);
  if (edit_rate.numerator == 0) return 0;
  return static_cast<unsigned long long>(dividend / edit_rate.numerator);
}

const char* Timecode::c_str(DropFrameIndication drop_frame, FieldMarkIndication field_mark) const {
  return printed(*private_, drop_frame, field_mark).narrow;
}

const wchar_t* Timecode::text(DropFrameIndication drop_frame,
                              FieldMarkIndication field_mark) const {
  return printed(*private_, drop_frame, field_mark).wide;
}

const char* Timecode::formatter(const char* pattern) const {
  return formatted(*private_, required_text(pattern)).narrow.c_str();
}

const wchar_t* Timecode::formatter(const wchar_t* pattern) const {
  return formatted(*private_, wide_to_utf8(required_text(pattern)).c_str()).wide.c_str();
}

unsigned int Timecode::to_12m() const {
  unsigned long long word = pack_label(*private_, kSt12Word32);
  if (private_->field_mark)
    word = with_bit(word, kSt12Word32.field_mark_bit_at(private_->frame_rate), true);
  return static_cast<unsigned int>(word);
}

unsigned long long Timecode::to_12m_full() const {
  const unsigned long long word = pack_label(*private_, kSt12Word64);
  // Parity over the frames byte pair only, in the place where the field mark would stand: at 25,
  // too, it has the bit of 50.
  const bool parity = std::popcount(static_cast<unsigned short>(word & 0xFFFF)) % 2 == 0;
  const unsigned short rate = private_->frame_rate;
  return with_bit(word, kSt12Word64.field_mark_bit_at(rate == 25 ? 50 : rate), parity);
}

}  // namespace Korvane
