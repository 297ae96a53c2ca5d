// Words of SMPTE ST 12 of 32 bits, valid or not, at every rate: which ones are refused and why, and
// what the others say, against a plain reading of their fields.
//
//   st12_words STRIDE [THINNING [RATE]]
//
// Of each STRIDE successive words one is read, drawn at random but the same in each run; 1 reads
// all. A refusal costs many times as much as a reading, so that of the words that are to be refused
// each THINNING-th may be read; of the others only the finding of the fault is called.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "core/exception.h"
#include "support/naive_timecode.h"
#include "timecode/counting.h"
#include "timecode/st12_word.h"

namespace Korvane {
namespace {

constexpr unsigned long long kWords = 1ULL << 32;
constexpr unsigned short kRates[] = {24, 25, 30, 50, 60};

struct Fields {
  Naive::Label label;  // the frames as in the word
  bool drop;
  bool field_mark;
};

Fields fields_of(unsigned short rate, unsigned int word) {
  const bool pairs = rate == 50 || rate == 60;
  return {Naive::label_of_word(word), (rate == 30 || rate == 60) && (word & 0x40) != 0,
          pairs && (word & (rate == 50 ? 0x80000000 : 0x8000)) != 0};
}

// What the library finds wrong with a word, before it raises that. Null for one that it accepts.
const char* found_fault(unsigned short rate, unsigned int word) {
  const Label label = label_of_word(kSt12Word32, rate, word);
  const bool drop = bit(word, kSt12Word32.drop_frame_bit);
  return with_counting(rate, drop, [&](auto way) {
    using Counting = decltype(way);
    return fault_of(label, Counting::kLastFrame, Counting::kDrop);
  });
}

bool same_text(const char* a, const char* b) {
  return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
}

// Null for a word that is to be accepted.
const char* expected_refusal(unsigned short rate, const Fields& fields) {
  const Naive::Label& label = fields.label;
  if (label.hours > 24) return "Hours cannot be lower than 0 and higher than 24.";
  if (label.minutes > 59) return "Minutes cannot be lower than 0 and higher than 59.";
  if (label.seconds > 59) return "Seconds cannot be lower than 0 and higher than 59.";
  if (label.frame >= (rate > 30 ? rate / 2 : rate))
    return "Frames cannot be lower than 0 and higher than the frame rate value.";
  if (fields.drop && label.minutes % 10 != 0 && label.seconds == 0 && label.frame <= 1)
    return "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates.";
  return nullptr;
}

// The plain reading of the words of one rate.
class Reading {
 public:
  explicit Reading(unsigned short rate) : rate_(rate) {
    for (const Naive::Counting& counting : Naive::kCountings)
      if (counting.rate == rate) ways_.push_back({counting, Naive::Minutes(counting)});
  }

  bool is_right(const Fields& fields, const Timecode& timecode) const {
    const Way& way = ways_[fields.drop ? 1 : 0];
    Naive::Frame frame;
    frame.label = fields.label;
    if (Naive::counts_pairs(way.counting))
      frame.label.frame = fields.label.frame * 2 + (fields.field_mark ? 1 : 0);
    frame.count = way.minutes.count_at(frame.label);
    frame.absolute = frame.count;  // not wrapped: hour 24 stays
    return Naive::same(way.counting, frame, timecode);
  }

  unsigned short rate() const { return rate_; }

 private:
  struct Way {
    Naive::Counting counting;
    Naive::Minutes minutes;
  };

  unsigned short rate_;
  std::vector<Way> ways_;  // without drop-frame, then with it
};

struct Tally {
  unsigned long long accepted = 0;
  unsigned long long refused = 0;
  unsigned long long only_faulty = 0;  // refused, were they read
  unsigned long long wrong = 0;
};

bool reads_right(const Reading& reading, const Fields& fields, const char* refusal,
                 unsigned int word) {
  try {
    const Timecode timecode(reading.rate(), word);
    return refusal == nullptr && reading.is_right(fields, timecode);
  } catch (const Exception& exception) {
    return refusal != nullptr && exception.code() == InvalidArgument &&
           std::strcmp(exception.message(), refusal) == 0;
  }
}

// A word of each block of `stride`, the refused ones when their number is a multiple of `thinning`.
Tally read_words(const Reading& reading, unsigned int stride, unsigned int thinning) {
  std::mt19937 random(20010921);
  Tally tally;
  unsigned long long candidates = 0;
  for (unsigned long long block = 0; block < kWords; block += stride) {
    const unsigned long long place = block + (stride > 1 ? random() % stride : 0);
    if (place >= kWords) continue;
    const auto word = static_cast<unsigned int>(place);
    const Fields fields = fields_of(reading.rate(), word);
    const char* const refusal = expected_refusal(reading.rate(), fields);
    const bool left_out = refusal != nullptr && candidates++ % thinning != 0;
    ++(left_out ? tally.only_faulty : refusal != nullptr ? tally.refused : tally.accepted);
    if (same_text(refusal, found_fault(reading.rate(), word)) &&
        (left_out || reads_right(reading, fields, refusal, word)))
      continue;
    if (++tally.wrong <= 10) std::printf("wrong at %u: %08X\n", +reading.rate(), word);
  }
  return tally;
}

int run(unsigned int stride, unsigned int thinning, long only_rate) {
  unsigned long long wrong = 0;
  for (const unsigned short rate : kRates) {
    if (only_rate != 0 && rate != only_rate) continue;
    const Tally tally = read_words(Reading(rate), stride, thinning);
    std::printf("rate %u: %llu accepted, %llu refused, %llu found faulty, %llu wrong\n", +rate,
                tally.accepted, tally.refused, tally.only_faulty, tally.wrong);
    std::fflush(stdout);
    wrong += tally.wrong;
  }
  return wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace Korvane

int main(int argc, char** argv) {
  const long stride = argc > 1 ? std::atol(argv[1]) : 0;
  const long thinning = argc > 2 ? std::atol(argv[2]) : 1;
  const long only_rate = argc > 3 ? std::atol(argv[3]) : 0;
  if (argc > 4 || stride < 1 || stride > 1L << 24 || thinning < 1) {
    std::fputs("usage: st12_words STRIDE [THINNING [RATE]]\n", stderr);
    return 2;
  }
  return Korvane::run(static_cast<unsigned int>(stride), static_cast<unsigned int>(thinning),
                      only_rate);
}
